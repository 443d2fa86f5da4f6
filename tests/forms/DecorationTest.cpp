#include "forms/frmSelSortFields.h"
#include "forms/widgets/FlatCmd.h"
#include "forms/widgets/GradualControl.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

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
