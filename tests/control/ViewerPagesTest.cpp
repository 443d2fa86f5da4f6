// The pages of the full-screen viewer: its keys, its page box, and what a page shows.
#include "ViewerFixture.h"

#include "grid/FlexGrid.h"
#include "session/pages/TypedPage.h"
#include "support/MessageAnswers.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

const QString Numbers =
    u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 1500000) select n as ID from N"_s;

} // namespace

TEST_F(Viewer, OnAOnePageResultNextAndLastDoNothing)
{
    load(u"select * from T"_s);
    show();
    for (const QString &key : {u"Next"_s, u"Last"_s, u"Previous"_s, u"First"_s}) {
        user.grid().PutRow(3);
        user.press(key);
        EXPECT_EQ(user.label(), u"第1页共1页"_s) << qPrintable(key);
        EXPECT_EQ(user.grid().Row(), 3) << "nothing is filled anew";
    }
}

TEST_F(PagedViewer, APageShowsAllRecordsFromItsFirstOn)
{
    show(2);
    EXPECT_EQ(user.label(), u"第2页共3页"_s);
    EXPECT_EQ(user.rows(), 3);
    EXPECT_EQ(user.row(1), u"3 O'Neil 30 2003-03-03"_s);
    EXPECT_EQ(user.row(3), u"5  50 2005-05-05"_s);
}

TEST_F(PagedViewer, EveryPageHasAMillionRowsAndAnEmptyFirstColumn)
{
    show(3);
    const VSFlexGrid &grid = user.grid();
    for (const int page : {3, 1}) {
        user.goTo(QString::number(page));
        EXPECT_EQ(grid.Rows(), 1000000);
        EXPECT_EQ(grid.Cols(), 5);
        for (const int row : {0, 1, 2, 999999})
            EXPECT_EQ(grid.TextMatrix(row, 0), QString()) << row;
    }
    for (int col = 1; col < 5; ++col) {
        EXPECT_EQ(grid.TextMatrix(6, col), QString());
        EXPECT_EQ(grid.TextMatrix(999999, col), QString());
    }
}

TEST_F(PagedViewer, KeysAndTheScrollBarStayWithTheRecords)
{
    show();
    VSFlexGrid &grid = user.grid();
    EXPECT_EQ(grid.verticalScrollBar()->maximum(), 0);
    for (const QKeySequence &keys : {QKeySequence(Qt::CTRL | Qt::Key_End), QKeySequence(Qt::Key_Down),
                                     QKeySequence(Qt::Key_PageDown), QKeySequence(Qt::CTRL | Qt::Key_Down)}) {
        QTest::keySequence(&grid, keys);
        EXPECT_EQ(grid.Row(), 5) << qPrintable(keys.toString());
    }
}

TEST_F(PagedViewer, ThePageKeysTurnPages)
{
    show();
    const std::pair<QString, int> steps[] = {{u"Next"_s, 2},  {u"Next"_s, 3},     {u"Next"_s, 3},
                                             {u"Last"_s, 3},  {u"Previous"_s, 2}, {u"First"_s, 1},
                                             {u"First"_s, 1}, {u"Previous"_s, 1}, {u"Last"_s, 3}};
    for (const auto &[key, page] : steps) {
        user.press(key);
        EXPECT_EQ(viewer.GetPageIndex(), page) << qPrintable(key);
        EXPECT_EQ(user.label(), u"第%1页共3页"_s.arg(page));
        EXPECT_EQ(user.grid().TextMatrix(1, 1), QString::number(page * 2 - 1));
    }
    EXPECT_EQ(position(), 1);
    EXPECT_FALSE(viewer.IsRequeried());
}

TEST_F(PagedViewer, APageBeyondTheEndShowsTheLastAndTheBoxKeepsWhatWasTyped)
{
    show();
    user.goTo(u"77"_s);
    EXPECT_EQ(user.label(), u"第3页共3页"_s);
    EXPECT_EQ(user.box(), u"77"_s);
    EXPECT_EQ(user.row(1), u"5  50 2005-05-05"_s);
}

TEST_F(PagedViewer, ANumberTooLargeIsShortenedUntilItFits)
{
    show();
    user.goTo(u"999999999999"_s);
    EXPECT_EQ(user.box(), u"999999999"_s);
    EXPECT_EQ(user.label(), u"第3页共3页"_s);
}

TEST_F(PagedViewer, EnterInThePageBoxGoesThere)
{
    show();
    auto *box = viewer.findChild<QLineEdit *>(u"txtPage"_s);
    box->setText(u"2"_s);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(user.label(), u"第2页共3页"_s);
    EXPECT_TRUE(viewer.isVisible()) << "Enter presses no other button";
}

TEST_F(PagedViewer, ANumberBelowOneIsReportedAndMovesNothing)
{
    show(2);
    for (const QString &typed : {u"0"_s, u"-1"_s, u"-99999999999999"_s}) {
        MessageAnswers messages;
        user.goTo(typed);
        EXPECT_EQ(messages.texts(), QStringList(u"请在页数输入正整数."_s));
        EXPECT_EQ(user.label(), u"第2页共3页"_s);
    }
}

TEST_F(PagedViewer, ATextThatIsNoNumberDoesNothing)
{
    show(2);
    for (const QString &typed : {u""_s, u"abc"_s, u"1x"_s, u"--1"_s, u"."_s}) {
        MessageAnswers messages;
        user.goTo(typed);
        EXPECT_EQ(messages.texts(), QStringList()) << qPrintable(typed);
        EXPECT_EQ(user.label(), u"第2页共3页"_s);
        EXPECT_EQ(user.box(), typed);
    }
}

TEST(TypedPageNumber, IsShortenedFromItsEndUntilItFits32Bits)
{
    const std::pair<QString, QString> cases[] = {{u"2147483647"_s, u"2147483647"_s},
                                                 {u"2147483648"_s, u"214748364"_s},
                                                 {u"007"_s, u"007"_s},
                                                 {QString(400, u'9'), QString(9, u'9')},
                                                 {u"99999999999.5"_s, u"999999999"_s}};
    for (const auto &[typed, kept] : cases) {
        const auto page = TypedPage::read(typed, true);
        ASSERT_TRUE(page) << qPrintable(typed);
        EXPECT_EQ(page->text, kept);
        EXPECT_EQ(page->number, kept.toInt());
    }
    EXPECT_EQ(TypedPage::read(u"12.6"_s, true)->number, 13);
    EXPECT_EQ(TypedPage::read(u"2.5"_s, true)->number, 2) << "to the even one";
    EXPECT_FALSE(TypedPage::read(u"inf"_s, true));
    EXPECT_FALSE(TypedPage::read(u"1e3"_s, true));
    EXPECT_EQ(TypedPage::read(u"１２"_s, true)->number, 12) << "digits of full width";
    EXPECT_EQ(TypedPage::read(u"１２"_s, false)->number, 12);
    EXPECT_EQ(TypedPage::read(u"3a"_s, false)->number, 3);
    EXPECT_EQ(TypedPage::read(u"abc"_s, false)->number, 0);
}

TEST_F(Viewer, PagesThroughOneAndAHalfMillionRecords)
{
    load(Numbers);
    show();
    EXPECT_EQ(user.label(), u"第1页共2页"_s);
    EXPECT_EQ(user.rows(), 999999);
    EXPECT_EQ(user.grid().TextMatrix(999999, 1), u"999999"_s);
    user.press(u"Last"_s);
    EXPECT_EQ(user.label(), u"第2页共2页"_s);
    EXPECT_EQ(user.rows(), 500001);
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"1000000"_s);
    EXPECT_EQ(user.grid().TextMatrix(500001, 1), u"1500000"_s);
    user.goTo(u"1"_s);
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"1"_s);
    EXPECT_EQ(openings, 0);
}
