#include "forms/frmSelSortFields.h"
#include "forms/widgets/FlatCmd.h"
#include "forms/widgets/GradualControl.h"
#include "forms/widgets/TickBoxes.h"
#include "support/DarkPalette.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QPalette paletteOf(const QColor &window, const QColor &base)
{
    QPalette palette(window); // with a text colour that suits it
    palette.setColor(QPalette::Base, base);
    return palette;
}

// The strongest contrast between a part of a picture and what is left of that part.
double visibilityOf(const QImage &picture, const QRect &part)
{
    const QColor paper = picture.pixelColor(part.left() - 1, part.center().y());
    double most = 1;
    for (int x = part.left(); x <= part.right(); ++x) {
        for (int y = part.top(); y <= part.bottom(); ++y)
            most = std::max(most, contrast(picture.pixelColor(x, y), paper));
    }
    return most;
}

struct Boxes : testing::TestWithParam<QPalette>
{
};

INSTANTIATE_TEST_SUITE_P(Palettes, Boxes,
                         testing::Values(QPalette(QColor(239, 239, 239)), KovaTest::darkPalette(),
                                         paletteOf(Qt::white, Qt::white), paletteOf(Qt::black, Qt::black),
                                         paletteOf({128, 128, 128}, Qt::white),
                                         paletteOf({110, 110, 110}, {90, 90, 90}),
                                         paletteOf({0, 0, 96}, {0, 0, 60}),
                                         paletteOf({255, 236, 200}, {255, 250, 240})));

} // namespace

TEST_P(Boxes, CanBeSeenWithoutATick)
{
    QWidget window;
    window.setPalette(GetParam());
    window.resize(300, 200);
    CheckBox check(u"x"_s, &window);
    check.move(10, 10);
    RadioButton radio(u"x"_s, &window);
    radio.move(10, 50);
    QTreeWidget list(&window);
    list.setItemDelegate(new TickDelegate(&list));
    list.setGeometry(10, 90, 200, 100);
    list.setHeaderHidden(true);
    list.setRootIsDecorated(false);
    (new QTreeWidgetItem(&list, {u"x"_s}))->setCheckState(0, Qt::Unchecked);
    Menu menu(&window);
    menu.addAction(u"x"_s)->setCheckable(true);
    const QImage picture = window.grab().toImage();

    QStyleOptionButton button;
    button.initFrom(&check);
    EXPECT_GE(visibilityOf(picture, check.style()
                                        ->subElementRect(QStyle::SE_CheckBoxIndicator, &button, &check)
                                        .translated(check.pos())),
              leastPictureContrast);
    button.initFrom(&radio);
    EXPECT_GE(visibilityOf(picture, radio.style()
                                        ->subElementRect(QStyle::SE_RadioButtonIndicator, &button, &radio)
                                        .translated(radio.pos())),
              leastPictureContrast);
    QStyleOptionViewItem item;
    item.initFrom(&list);
    item.rect = list.visualItemRect(list.topLevelItem(0));
    item.features = QStyleOptionViewItem::HasCheckIndicator;
    EXPECT_GE(visibilityOf(list.viewport()->grab().toImage(),
                           list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &item, &list)),
              leastPictureContrast);
    const QRect entry = menu.actionGeometry(menu.actions().front());
    EXPECT_GE(visibilityOf(menu.grab().toImage(),
                           {entry.left() + 2, entry.top() + 2, entry.height() - 4, entry.height() - 4}),
              leastPictureContrast);
}

TEST(GradualControl, IsAsPlainAsTheWindow)
{
    GradualControl band;
    QPalette palette = band.palette();
    palette.setColor(QPalette::Window, QColor(10, 20, 30));
    palette.setColor(QPalette::Highlight, Qt::blue);
    band.setPalette(palette);
    band.resize(200, 20);
    const QImage image = band.grab().toImage();
    for (const int x : {0, 100, 199})
        EXPECT_EQ(image.pixelColor(x, 10), QColor(10, 20, 30));
}

TEST(FlatCmd, IsFlatUntilItHasTheFocusAndIsPressedLikeAnyButton)
{
    QWidget window;
    FlatCmd button(u"上移"_s, &window);
    button.setGeometry(200, 200, 90, 30); // away from the mouse pointer
    window.resize(400, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button.clearFocus();
    const QImage flat = button.grab().toImage();
    button.setFocus();
    EXPECT_NE(button.grab().toImage(), flat);
    EXPECT_FALSE(button.autoDefault());

    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 1);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 2);
}

// In a font of Chinese characters the average character is as wide as two digits.
TEST(Dialogs, AChineseFontDoesNotBlowThemUp)
{
    const QFont before = QApplication::font();
    const auto widthIn = [](const QFont &font) {
        QApplication::setFont(font);
        return frmSelSortFields().width();
    };
    QFont chinese = before;
    chinese.setFamilies({u"Noto Sans CJK SC"_s});
    const int width = widthIn(before);
    const int widthInChinese = widthIn(chinese);
    QApplication::setFont(before);
    EXPECT_LT(widthInChinese, width * 13 / 10);
}
