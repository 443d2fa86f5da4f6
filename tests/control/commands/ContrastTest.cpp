// Texts and pictures can be told from what they are drawn on, in light and in dark colours.
#include "Shop.h"

#include "support/DarkPalette.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolButton>

#include <cmath>
#include <map>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr double leastTextContrast = 4.5;
constexpr double leastPictureContrast = 3;

// The contrast ratio of WCAG 2.
double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &colour) {
        double sum = 0;
        for (const auto &[part, weight] :
             {std::pair(colour.redF(), 0.2126), {colour.greenF(), 0.7152}, {colour.blueF(), 0.0722}})
            sum += weight * (part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
        return sum + 0.05;
    };
    return std::max(luminance(a) / luminance(b), luminance(b) / luminance(a));
}

QColor onPaper(const QColor &ink, const QColor &paper)
{
    const double share = ink.alphaF();
    const auto mixed = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {mixed(ink.red(), paper.red()), mixed(ink.green(), paper.green()),
            mixed(ink.blue(), paper.blue())};
}

// What most of a picture is.
QColor paperOf(const QImage &picture)
{
    std::map<QRgb, int> counts;
    QRgb most = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (++counts[picture.pixel(x, y)] > counts[most])
                most = picture.pixel(x, y);
        }
    }
    return most;
}

void expectReadable(const QColor &ink, const QColor &paper, double least, const QString &what)
{
    const QColor seen = onPaper(ink, paper);
    EXPECT_GE(contrast(seen, paper), least) << qUtf8Printable(what) << ' ' << qUtf8Printable(seen.name())
                                            << " on " << qUtf8Printable(paper.name());
}

// The colours that the labels and hints in a window really have.
int expectTextsReadable(const QWidget &window)
{
    int texts = 0;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QString what = widget->window()->objectName() + u'/' + widget->objectName();
        const QPalette palette = widget->palette();
        if (!widget->isEnabled() || !widget->isVisible())
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && !label->text().isEmpty()) {
            expectReadable(palette.color(label->foregroundRole()), palette.color(label->backgroundRole()),
                           leastTextContrast, what);
            ++texts;
        } else if (qobject_cast<const QLineEdit *>(widget)) {
            for (const QPalette::ColorRole role : {QPalette::Text, QPalette::PlaceholderText})
                expectReadable(palette.color(role),
                               onPaper(palette.color(QPalette::Base), palette.color(QPalette::Window)),
                               leastTextContrast, what);
            ++texts;
        } else if (qobject_cast<const QAbstractButton *>(widget)) {
            expectReadable(palette.color(QPalette::ButtonText), palette.color(QPalette::Button),
                           leastTextContrast, what);
            ++texts;
        }
    }
    return texts;
}

// The line around a box for a tick, and how many boxes there are.
int expectBoxesSeen(const QWidget &window)
{
    int boxes = 0;
    for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        const bool isRadio = qobject_cast<QRadioButton *>(button);
        if ((!isRadio && !qobject_cast<QCheckBox *>(button)) || !button->isVisible() || !button->isEnabled())
            continue;
        QStyleOptionButton option;
        option.initFrom(button);
        const QRect box = button->style()->subElementRect(
            isRadio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button);
        const QImage picture = button->grab(box).toImage();
        double seen = 1;
        // Only its left edge: what is in it is no line.
        for (int x = 0; x < 3; ++x)
            seen = std::max(seen, contrast(picture.pixelColor(x, picture.height() / 2),
                                           button->palette().color(QPalette::Window)));
        EXPECT_GE(seen, leastPictureContrast)
            << qUtf8Printable(window.objectName() + u'/' + button->objectName());
        ++boxes;
    }
    return boxes;
}

class Contrast : public Shop, public testing::WithParamInterface<bool>
{
protected:
    Contrast()
    {
        if (GetParam())
            setColours(darkPalette());
    }
    ~Contrast() override { setColours(m_before); }

private:
    // Windows are notified by an event.
    static void setColours(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }
    const QPalette m_before = QApplication::palette();
};

INSTANTIATE_TEST_SUITE_P(Colours, Contrast, testing::Bool(),
                         [](const auto &colours) { return std::string(colours.param ? "Dark" : "Light"); });

} // namespace

TEST_P(Contrast, TextsOfTheControlAreReadable)
{
    EXPECT_GT(expectTextsReadable(grid), 2) << "before a load, with the hint";
    ASSERT_TRUE(load());
    EXPECT_GT(expectTextsReadable(grid), 4);
}

TEST_P(Contrast, DialogsAreReadableAndFitASmallScreen)
{
    ASSERT_TRUE(load());
    int boxes = 0;
    const auto look = [&boxes](QDialog &dialog) {
        EXPECT_GT(expectTextsReadable(dialog), 2) << qPrintable(dialog.objectName());
        boxes += expectBoxesSeen(dialog);
        EXPECT_LE(dialog.width(), 800) << qPrintable(dialog.objectName());
        EXPECT_LE(dialog.height(), 560) << qPrintable(dialog.objectName());
        cancel(dialog);
    };
    WindowAnswers dialogs({look, look, look, look, look, look});
    for (const QString &key : {u"Filter"_s, u"QuickFilter"_s, u"SelField"_s, u"Sort"_s})
        click(key);
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_P}) {
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, key, Qt::ControlModifier);
    }
    EXPECT_GT(boxes, 5);
}

TEST_P(Contrast, BoxesWithoutATickAreSeen)
{
    ASSERT_TRUE(load());
    table->setFocus();
    QTest::keyClick(table, Qt::Key_G, Qt::ControlModifier);
    EXPECT_GE(expectBoxesSeen(grid), 2);

    // The style doesn't say where the box of an entry is: it is before the text.
    auto *menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
    menu->popup({});
    const QImage picture = menu->grab().toImage();
    int entries = 0;
    for (QAction *entry : menu->actions()) {
        if (!entry->isCheckable() || entry->isChecked() || !entry->isEnabled() || !entry->isVisible())
            continue;
        const QRect place = menu->actionGeometry(entry);
        const int y = place.center().y();
        const QColor paper = picture.pixelColor(place.right() - 2, y);
        double seen = 1;
        for (int x = place.left(); x < place.left() + place.height(); ++x)
            seen = std::max(seen, contrast(picture.pixelColor(x, y), paper));
        EXPECT_GE(seen, leastPictureContrast) << qUtf8Printable(entry->text());
        ++entries;
    }
    menu->close();
    EXPECT_GE(entries, 1);
}

TEST_P(Contrast, PicturesOfTheToolbarStandOut)
{
    ASSERT_TRUE(load());
    int pictures = 0;
    for (const QAction *action : toolbar->actions()) {
        auto *shown = qobject_cast<QToolButton *>(toolbar->widgetForAction(const_cast<QAction *>(action)));
        if (!shown || !shown->isVisible() || !shown->isEnabled())
            continue;
        const QColor paper = paperOf(shown->grab().toImage());
        const QImage picture =
            action->icon()
                .pixmap(QSize(64, 64), 1.0, QIcon::Normal, action->isChecked() ? QIcon::On : QIcon::Off)
                .toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qAlpha(picture.pixel(x, y)) == 255)
                    expectReadable(picture.pixel(x, y), paper, leastPictureContrast, action->objectName());
            }
        }
        ++pictures;
    }
    EXPECT_GT(pictures, 12);
}
