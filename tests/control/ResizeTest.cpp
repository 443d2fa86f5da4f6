// The positions of the control's parts, in twips, at the resolution set in the environment.
#include <KOVAVSFDataGrid>

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolTip>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Resize : testing::Test
{
    Resize() { grid.show(); }

    int pixels(double twips) const
    {
        return static_cast<int>(std::lround(twips * grid.logicalDpiX() / 1440));
    }
    const QWidget &part(const QString &name) const { return *grid.findChild<QWidget *>(name); }
    QRect placeOf(const QString &name) const { return part(name).geometry(); }

    KOVAVSFDataGrid grid;
};

} // namespace

TEST_F(Resize, RunsAtTheResolutionItIsMeantFor)
{
    const int wanted = qEnvironmentVariableIntValue("QT_FONT_DPI");
    EXPECT_EQ(grid.logicalDpiX(), wanted ? wanted : 96);
}

TEST_F(Resize, TheControlIsNeverSmallerThan3000By1500Twips)
{
    grid.resize(pixels(2000), pixels(1000));
    EXPECT_EQ(grid.size(), QSize(pixels(3000), pixels(1500)));
    EXPECT_EQ(placeOf(u"picMainBack"_s), grid.rect());
    grid.resize(pixels(2000), pixels(6000));
    EXPECT_EQ(grid.size(), QSize(pixels(3000), pixels(6000)));
    grid.resize(pixels(9000), pixels(1000));
    EXPECT_EQ(grid.size(), QSize(pixels(9000), pixels(1500)));
}

TEST_F(Resize, TheGridFillsThePanelBetweenToolbarAndFoot)
{
    for (const QSize size : {QSize(9000, 6000), QSize(3000, 1500), QSize(20000, 9000)}) {
        grid.resize(pixels(size.width()), pixels(size.height()));
        const QRect panel = placeOf(u"picMainBack"_s);
        const QRect table = placeOf(u"vsfgDataGrid"_s);
        EXPECT_EQ(panel, grid.rect());
        EXPECT_EQ(table.left(), std::max(1, pixels(7)));
        EXPECT_EQ(table.width(), panel.width() - pixels(67));
        EXPECT_EQ(table.top(), placeOf(u"Toolbar1"_s).bottom() + 1);
        EXPECT_EQ(placeOf(u"MSFlexGrid1"_s), table);
        EXPECT_FALSE(part(u"txtEdit"_s).isVisible());
    }
}

TEST_F(Resize, ThePageControlsAreBelowTheGridSideBySide)
{
    grid.resize(pixels(12000), pixels(6000));
    const QRect table = placeOf(u"vsfgDataGrid"_s);
    const QRect box = placeOf(u"txtPage"_s);
    const QRect button = placeOf(u"cmdPgae"_s);
    const QRect label = placeOf(u"lblFieldCount"_s);
    const QRect check = placeOf(u"CheckSelAllRow"_s);
    for (const QRect &place : {box, button, label, check}) {
        EXPECT_GT(place.top(), table.bottom());
        EXPECT_LE(place.bottom(), grid.rect().bottom());
        EXPECT_GT(place.width(), 0);
    }
    EXPECT_GT(button.left(), box.right());
    EXPECT_GT(label.left(), button.right());
    EXPECT_GT(check.left(), label.right());
    EXPECT_LE(check.right(), grid.rect().right());
}

TEST_F(Resize, ThePageControlsNeverOverlap)
{
    const QList<QString> names{u"txtPage"_s, u"cmdPgae"_s, u"CheckSelAllRow"_s};
    for (int width = 3000; width < 9000; width += 300) {
        grid.resize(pixels(width), pixels(1500));
        int end = 0;
        for (const QString &name : names) {
            const QRect place = placeOf(name);
            EXPECT_GT(place.left(), end) << width << ' ' << name.toStdString();
            EXPECT_GT(place.width(), pixels(400)) << width << ' ' << name.toStdString();
            end = place.right();
        }
        EXPECT_LE(end, grid.rect().right()) << width;
    }
}

TEST_F(Resize, APageLabelWithoutRoomIsWholeInItsToolTip)
{
    auto *label = grid.findChild<QLabel *>(u"lblFieldCount"_s);
    const auto pointAt = [label] {
        QToolTip::hideText();
        const QPoint middle = label->rect().center();
        QHelpEvent rest(QEvent::ToolTip, middle, label->mapToGlobal(middle));
        QCoreApplication::sendEvent(label, &rest);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    grid.resize(pixels(12000), pixels(6000));
    EXPECT_EQ(pointAt(), QString());
    grid.resize(pixels(5000), pixels(6000));
    EXPECT_EQ(pointAt(), label->text());
}

TEST_F(Resize, TheTextOfAnEmptyGridStaysInsideIt)
{
    const auto *hint = grid.findChild<QLabel *>(u"lblEmpty"_s);
    const auto *table = grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
    for (const int width : {12000, 5000}) {
        grid.resize(pixels(width), pixels(6000));
        QCoreApplication::processEvents();
        EXPECT_TRUE(hint->isVisible());
        EXPECT_EQ(hint->geometry(), table->viewport()->geometry());
    }
    grid.resize(pixels(3000), pixels(1500));
    QCoreApplication::processEvents();
    EXPECT_TRUE(!hint->isVisible() || hint->height() >= hint->fontMetrics().height()) << "half a line";
}

TEST_F(Resize, MovingTheEdgeHidesTheCellEditor)
{
    auto *edit = grid.findChild<QLineEdit *>(u"txtEdit"_s);
    edit->show();
    grid.resize(grid.width() + 10, grid.height());
    EXPECT_FALSE(edit->isVisible());
}
