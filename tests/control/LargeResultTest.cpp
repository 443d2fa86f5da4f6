// One and a half million records: more than are counted, and more than a page holds.
#include "GridFixture.h"
#include "query/SharedValues.h"

#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct LargeResult : GridFixture
{
    LargeResult() : GridFixture(u"CREATE TABLE T (A)"_s)
    {
        EXPECT_TRUE(load(u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 1500000) "
                         "select n as ID, '第' || n || '条' as 名称 from N"_s));
    }
    void goTo(int page)
    {
        auto *box = part<QLineEdit>("txtPage");
        box->selectAll();
        QTest::keyClicks(box, QString::number(page));
        QTest::mouseClick(part<QPushButton>("cmdPgae"), Qt::LeftButton);
    }
    QString label() const { return part<QLabel>("lblFieldCount")->text(); }
};

} // namespace

TEST_F(LargeResult, IsCountedUpToTheCapAndPagedByIt)
{
    EXPECT_EQ(KOVAVSFDataGridLib::SharedValues::instance().recordCount, 999999);
    EXPECT_EQ(KOVAVSFDataGridLib::SharedValues::instance().hasRecords, 1);
    EXPECT_EQ(grid.RecordSet()->property("RecordCount").toInt(), 1500000);
    EXPECT_EQ(table->model()->rowCount(), 999999);
    EXPECT_EQ(label(), u"第1页共2页  只显示999999条以内的记录"_s);

    goTo(2);
    EXPECT_EQ(label(), u"第2页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(table->model()->rowCount(), 500001);
    EXPECT_EQ(grid.CurrPosition(), 1000000);
    EXPECT_EQ(grid.GetGridRowL(), 1);

    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    click(5, 2);
    EXPECT_EQ(grid.CurrPosition(), 1000004);
    ASSERT_EQ(moves.count(), 1);
    EXPECT_EQ(moves.at(0).at(1).toInt(), 1000004);
    EXPECT_EQ(field(u"名称"_s)->property("Value").toString(), u"第1000004条"_s);
    EXPECT_EQ(grid.CellTextL(5, 2), u"第1000004条"_s);
    EXPECT_EQ(grid.CellTextL(5, 0), u"5"_s);
    EXPECT_EQ(grid.CellTextL(500001, 1), u"1500000"_s);

    table->horizontalHeader()->resizeSection(1, 333);
    goTo(1);
    EXPECT_EQ(label(), u"第1页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(grid.CellTextL(5, 2), u"第5条"_s);
    EXPECT_EQ(grid.CellTextL(999999, 1), u"999999"_s);
    EXPECT_EQ(table->columnWidth(1), 333) << "a page turn keeps the widths";
    click(5, 1);
    EXPECT_EQ(grid.CurrPosition(), 5);
}

TEST_F(LargeResult, PagesAreTurnedAfterTheHostHasWalkedToTheEnd)
{
    const auto walkToEnd = [this] {
        QMetaObject::invokeMethod(grid.RecordSet(), "MoveLast");
        QMetaObject::invokeMethod(grid.RecordSet(), "MoveNext");
        ASSERT_TRUE(grid.RecordSet()->property("EOF").toBool());
    };
    const auto press = [this](const QString &key) { part<QAction>(qPrintable(key))->trigger(); };
    const auto expectPage = [this](int page, int position) {
        EXPECT_TRUE(label().startsWith(u"第%1页"_s.arg(page))) << qUtf8Printable(label());
        EXPECT_EQ(grid.CurrPosition(), position);
        EXPECT_FALSE(grid.RecordSet()->property("EOF").toBool());
    };
    click(5, 1);
    walkToEnd();
    press(u"Next"_s);
    expectPage(2, 1000000);
    walkToEnd();
    press(u"Previous"_s);
    expectPage(1, 1);
    walkToEnd();
    press(u"Last"_s);
    expectPage(2, 1000000);
    walkToEnd();
    goTo(1);
    expectPage(1, 1);
    walkToEnd();
    press(u"Previous"_s); // there is none
    EXPECT_TRUE(label().startsWith(u"第1页"_s)) << qUtf8Printable(label());
    EXPECT_EQ(table->model()->rowCount(), 999999);
}

TEST_F(LargeResult, SecondControlKeepsItsOwnCountOfRecordsApart)
{
    KOVAVSFDataGrid second;
    second.PutConnectionString(database.connectionString());
    second.PutSQLShow(u"select A from T"_s);
    ASSERT_TRUE(second.IsLoadData());
    EXPECT_EQ(KOVAVSFDataGridLib::SharedValues::instance().recordCount, 0);
    goTo(2);
    click(5, 1);
    EXPECT_EQ(grid.CurrPosition(), 1000004);
}
