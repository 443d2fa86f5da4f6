#include "grid/cells/RecordWindow.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "ado/RecordsetObserver.h"
#include "grid/FlexGrid.h"
#include "grid/cells/FlexGridModel.h"
#include "support/TestDatabase.h"

#include <QtTest/QAbstractItemModelTester>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Window : testing::Test
{
    Window()
    {
        connection->Open(database.connectionString());
        recordset->Open(u"select * from T order by ID"_s, connection);
    }

    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name TEXT, 价格 NUMERIC(8,2));"
                          "WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 20)"
                          "INSERT INTO T SELECT n, iif(n = 3, NULL, '名' || n), n / 4.0 FROM N"_s};
    std::shared_ptr<ADODB::Connection> connection = std::make_shared<ADODB::Connection>();
    std::shared_ptr<ADODB::Recordset> recordset = std::make_shared<ADODB::Recordset>();
};

struct MoveCounter final : ADODB::RecordsetObserver
{
    void moveComplete(ADODB::EventReasonEnum) override { ++moves; }
    void recordChangeComplete(ADODB::EventReasonEnum) override {}
    void recordsetChangeComplete(ADODB::EventReasonEnum) override {}
    int moves = 0;
};

} // namespace

TEST_F(Window, ShowsAStretchOfRecordsUnderTheFieldNames)
{
    const RecordWindow window(recordset, 6, 5);
    EXPECT_EQ(window.rows(), 6);
    EXPECT_EQ(window.cols(), 4);
    EXPECT_EQ(window.text(0, 0), QString());
    EXPECT_EQ(window.text(0, 3), u"价格"_s);
    EXPECT_EQ(window.text(1, 0), u"1"_s);
    EXPECT_EQ(window.text(1, 1), u"6"_s);
    EXPECT_EQ(window.text(5, 2), u"名10"_s);
    EXPECT_EQ(window.text(5, 3), u"2.5"_s);
}

TEST_F(Window, ANullIsEmptyAndNumbersAreRightAligned)
{
    const RecordWindow window(recordset, 1, 20);
    EXPECT_EQ(window.text(3, 2), QString());
    EXPECT_TRUE(window.isNumeric(1));
    EXPECT_FALSE(window.isNumeric(2));
    EXPECT_TRUE(window.isNumeric(3));
    EXPECT_FALSE(window.isNumeric(0));
}

TEST_F(Window, TheBeginningOfALongTextIsReadWithoutItsEnd)
{
    recordset->Close();
    recordset->Open(
        u"select 'x' || printf('%.*c', 5000, '-') as A, replace(printf('%.*c', 5000, '-'), '-', '茶') "
        "as B, 'short' as C, zeroblob(5000) as D, 12345 as E"_s,
        connection);
    const RecordWindow window(recordset, 1, 1);
    constexpr qsizetype length = 100;
    for (const int col : {1, 2}) {
        const QString beginning = window.beginning(1, col, length);
        EXPECT_GE(beginning.size(), length);
        EXPECT_LE(beginning.size(), 3 * length);
        EXPECT_TRUE(window.text(1, col).startsWith(beginning)) << "no character is cut in two";
    }
    for (const int col : {3, 4, 5})
        EXPECT_EQ(window.beginning(1, col, length), window.text(1, col));
    EXPECT_EQ(window.beginning(0, 1, length), u"A"_s);
    recordset->Close();
    EXPECT_EQ(window.beginning(1, 1, length), QString());
}

TEST_F(Window, ReadingMovesNothing)
{
    MoveCounter counter;
    recordset->PutAbsolutePosition(7);
    recordset->AddObserver(&counter);
    FlexGridModel model(1);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Warning);
    model.setSource(std::make_unique<RecordWindow>(recordset, 1, 20));
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_EQ(model.index(row, 0).data().toString(), QString::number(row + 1));
    EXPECT_EQ(recordset->AbsolutePosition(), 7);
    EXPECT_EQ(counter.moves, 0);
    recordset->RemoveObserver(&counter);
}

TEST_F(Window, CantBeWritten)
{
    VSFlexGrid grid;
    grid.Show(std::make_unique<RecordWindow>(recordset, 1, 20));
    grid.PutTextMatrix(1, 1, u"x"_s);
    EXPECT_EQ(grid.TextMatrix(1, 1), u"1"_s);
}

TEST_F(Window, OfAClosedRecordsetIsEmpty)
{
    RecordWindow window(recordset, 1, 20);
    recordset->Close();
    EXPECT_EQ(window.rows(), 21);
    EXPECT_EQ(window.text(1, 1), QString());
    EXPECT_EQ(window.text(0, 1), QString());
    EXPECT_FALSE(window.isNumeric(1));
}
