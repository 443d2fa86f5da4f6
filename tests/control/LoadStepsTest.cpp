// The effects of a load: buttons, views, column widths, Oracle's form of statement, and the state after
// failed or repeated loads.
#include "GridFixture.h"
#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "support/MessageAnswers.h"

#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct LoadSteps : GridFixture
{
    LoadSteps()
        : GridFixture(
              u"CREATE TABLE T (ID INTEGER PRIMARY KEY, P BLOB, A TEXT, B INTEGER);"
              "INSERT INTO T VALUES (1,x'00','a',10),(2,NULL,'b',20),(3,NULL,'c',30);"
              "CREATE VIEW Wide AS SELECT ID AS A1,ID AS A2,ID AS A3,ID AS A4,ID AS A5,ID AS A6,ID AS A7,"
              "ID AS A8,ID AS A9,ID AS A10,ID AS A11,ID AS A12,ID AS A13,ID AS A14,ID AS A15,ID AS A16 FROM T"_s)
    {
    }

    QAction *button(const QString &key) const
    {
        return part<QToolBar>("Toolbar1")->findChild<QAction *>(key);
    }
    VSFlexGrid &flexGrid() const { return *static_cast<VSFlexGrid *>(table); }
    QList<int> widths() const
    {
        QList<int> twips;
        for (int col = 1; col < flexGrid().Cols(); ++col)
            twips.append(flexGrid().ColWidthInUse(col));
        return twips;
    }
    // The width of each of `count` columns when they are fitted into the grid.
    int share(int count) const { return (Twips::fromPixels(table->width(), *table) - 260 - 600) / count; }
    // As the user drags a column's edge.
    void drag(int col, int pixels) { table->horizontalHeader()->resizeSection(col - 1, pixels); }
};

} // namespace

TEST_F(LoadSteps, EnableEveryButton)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    const auto buttons = part<QToolBar>("Toolbar1")->actions();
    for (const QAction *action : buttons)
        EXPECT_TRUE(action->isSeparator() || !action->isVisible() || action->isEnabled())
            << action->objectName().toStdString();
    EXPECT_TRUE(button(u"ToFullTable"_s)->isEnabled());
    EXPECT_TRUE(button(u"SingleRecord"_s)->isVisible());
    EXPECT_FALSE(button(u"AllRecord"_s)->isVisible());
}

TEST_F(LoadSteps, OfAnOwnStatementLeaveToFullTableDisabled)
{
    grid.PutTableType(KOVAVSFDataGrid::DefSQL);
    ASSERT_TRUE(load(u"select * from T"_s));
    const auto buttons = part<QToolBar>("Toolbar1")->actions();
    for (const QAction *action : buttons) {
        if (!action->isSeparator() && action->isVisible()) {
            EXPECT_EQ(action->isEnabled(), action->objectName() != u"ToFullTable")
                << action->objectName().toStdString();
        }
    }
    grid.PutTableType(KOVAVSFDataGrid::DataTable);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_TRUE(button(u"ToFullTable"_s)->isEnabled());
}

TEST_F(LoadSteps, FitFewColumnsIntoTheGrid)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(widths(), QList<int>(4, share(4)));
    EXPECT_TRUE(button(u"All"_s)->isChecked());
}

TEST_F(LoadSteps, LeaveColumnsThatAreTooManyAtTheirDefault)
{
    ASSERT_TRUE(load(u"select * from Wide"_s));
    EXPECT_EQ(widths(), QList<int>(16, 960));
    grid.SeeCompressView();
    EXPECT_EQ(widths(), QList<int>(16, share(16))) << "asked for, they are fitted all the same";
}

TEST_F(LoadSteps, ShowThePartFieldsAloneInThePartView)
{
    grid.PutShowModel(KOVAVSFDataGrid::ModelPart);
    ASSERT_TRUE(load(u"select ID, A, B from T"_s, u"select ID, B from T"_s));
    EXPECT_TRUE(button(u"Part"_s)->isChecked());
    EXPECT_EQ(widths(), QList<int>({share(2), 0, share(2)}))
        << "a hidden column stays hidden when the others are fitted";
    EXPECT_TRUE(table->isColumnHidden(1));
}

TEST_F(LoadSteps, ShowAllFieldsInTheAllViewWhateverTheStatementLists)
{
    ASSERT_TRUE(load(u"select ID, A, B from T"_s, u"select ID from T"_s));
    EXPECT_TRUE(button(u"All"_s)->isChecked());
    for (int section = 0; section < 3; ++section)
        EXPECT_FALSE(table->isColumnHidden(section)) << section;
}

TEST_F(LoadSteps, KeepTheWidthsOfTheSameFields)
{
    ASSERT_TRUE(load(u"select * from Wide"_s));
    drag(2, 321);
    drag(3, 0);
    ASSERT_TRUE(load(u"select * from Wide where A1 > 1"_s));
    EXPECT_EQ(table->columnWidth(1), 321);
    EXPECT_EQ(flexGrid().ColWidth(3), 960) << "what was dragged away is back";
    ASSERT_TRUE(load(u"select A from T"_s));
    ASSERT_TRUE(load(u"select A1 as X,A2,A3,A4,A5,A6,A7,A8,A9,A10,A11,A12,A13,A14,A15,A16 from Wide"_s));
    EXPECT_EQ(widths(), QList<int>(16, 960)) << "other fields begin anew";
}

TEST_F(LoadSteps, FitByTheSizeOfAControlThatIsYetToBeShown)
{
    KOVAVSFDataGrid hidden;
    hidden.resize(1200, 400);
    hidden.PutConnectionString(database.connectionString());
    hidden.PutSQLShow(u"select * from T"_s);
    ASSERT_TRUE(hidden.IsLoadData());
    const auto *view = hidden.findChild<VSFlexGrid *>(u"vsfgDataGrid"_s);
    EXPECT_GT(view->width(), 1150);
    EXPECT_EQ(view->ColWidth(1), (Twips::fromPixels(view->width(), *view) - 860) / 4);
}

TEST_F(LoadSteps, ShowFieldsWithEqualOrEmptyNames)
{
    MessageAnswers messages;
    ASSERT_TRUE(load(u"select A, ID as A, B as \"\" from T"_s));
    EXPECT_EQ(grid.CellTextL(0, 1), u"A"_s);
    EXPECT_EQ(grid.CellTextL(0, 2), u"A"_s);
    EXPECT_EQ(grid.CellTextL(0, 3), QString());
    EXPECT_EQ(grid.CellTextL(2, 1), u"b"_s);
    EXPECT_EQ(grid.CellTextL(2, 2), u"2"_s);
    EXPECT_EQ(grid.CellTextL(2, 3), u"20"_s);
    for (int section = 0; section < 3; ++section)
        EXPECT_FALSE(table->isColumnHidden(section)) << section;
    EXPECT_EQ(messages.texts(), QStringList());
}

TEST_F(LoadSteps, SpellOutTheFieldsForOracleWithLongBinaryOnesLast)
{
    grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    ASSERT_TRUE(load(u"select * from T where B > 10"_s));
    EXPECT_EQ(grid.RecordSource(), u"select \"ID\",\"A\",\"B\",\"P\" from T  where B > 10 "_s);
    EXPECT_EQ(grid.CellTextL(0, 4), u"P"_s);
    EXPECT_EQ(table->model()->rowCount(), 2);
    ASSERT_TRUE(load(u"select A from T"_s));
    EXPECT_EQ(grid.RecordSource(), u"select A from T"_s) << "nothing to spell out";
}

TEST_F(LoadSteps, ReportWhyOraclesFieldsCantBeRead)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    MessageAnswers messages;
    EXPECT_FALSE(load(u"select * from Nowhere"_s));
    ASSERT_EQ(messages.texts().size(), 2);
    EXPECT_TRUE(messages.texts().front().startsWith(u"错误描述为：找不到表或视图"_s))
        << messages.texts().front().toStdString();
    EXPECT_EQ(messages.texts().back(), u"数据库打开失败。"_s);
    EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
    EXPECT_EQ(table->model()->rowCount(), 3);
}

TEST_F(LoadSteps, ReportWhyOraclesDatabaseCantBeReached)
{
    for (const QString &nowhere : {u"Provider=SQLite;Data Source=/nowhere/none.db"_s, QString()}) {
        grid.PutConnectionString(nowhere);
        grid.PutDBType(KOVAVSFDataGrid::dbOracle);
        grid.PutSQLShow(u"select * from T"_s);
        MessageAnswers messages;
        EXPECT_FALSE(grid.IsLoadData());
        ASSERT_EQ(messages.texts().size(), 2);
        EXPECT_GT(messages.texts().front().size(), u"错误描述为："_s.size());
        EXPECT_TRUE(messages.texts().front().startsWith(u"错误描述为："_s));
        EXPECT_EQ(messages.texts().back(), u"数据库打开失败。"_s);
    }
}

TEST_F(LoadSteps, FailOverAShownResultWithoutTouchingIt)
{
    grid.PutPicField(u"P"_s);
    ASSERT_TRUE(load(u"select * from T"_s));
    drag(2, 150);
    grid.SetGridRow(3);
    grid.SetGridCol(2);
    auto *recordset = grid.RecordSet();
    QSignalSpy replaced(&grid, &KOVAVSFDataGrid::RecordsetChanged);
    QSignalSpy moved(&grid, &KOVAVSFDataGrid::RecordChanged);
    {
        MessageAnswers messages;
        EXPECT_FALSE(load(u"select Nothing from T"_s));
        ASSERT_EQ(messages.texts().size(), 2);
        EXPECT_TRUE(messages.texts().front().startsWith(u"错误描述为："_s));
        EXPECT_EQ(messages.texts().back(), u"数据库打开失败。"_s);
    }
    EXPECT_EQ(replaced.count(), 0);
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(grid.RecordSet(), recordset);
    EXPECT_EQ(grid.GetGridRow(), 3);
    EXPECT_EQ(grid.GetGridCol(), 2);
    EXPECT_EQ(grid.CurrPosition(), 3);
    EXPECT_EQ(table->columnWidth(1), 150);
    EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
    // What acts on the result still does.
    click(2, 1);
    EXPECT_EQ(grid.CurrPosition(), 2);
    EXPECT_TRUE(grid.LocateSelRecord(3));
    grid.SeeCompressView();
    EXPECT_EQ(widths(), QList<int>(4, share(4)));
    QTest::mouseClick(part<QPushButton>("cmdPgae"), Qt::LeftButton);
    EXPECT_EQ(grid.CurrPosition(), 1);
}

TEST_F(LoadSteps, KeepThePageWhileAnEditCantBeSaved)
{
    ASSERT_TRUE(load(u"select * from T order by ID"_s));
    grid.SetGridRow(2);
    field(u"ID"_s)->setProperty("Value", 3); // taken already
    {
        MessageAnswers messages;
        QTest::mouseClick(part<QPushButton>("cmdPgae"), Qt::LeftButton);
        ASSERT_EQ(messages.texts().size(), 1);
        EXPECT_TRUE(messages.texts().front().contains(u"UNIQUE"_s)) << messages.texts().front().toStdString();
    }
    EXPECT_EQ(grid.GetGridRow(), 2);
    EXPECT_EQ(part<QLineEdit>("txtPage")->text(), u"1"_s);
    QMetaObject::invokeMethod(grid.RecordSet(), "CancelUpdate");
}

TEST_F(LoadSteps, LocateARecordFromAfterTheLastOneOnALaterPage)
{
    ASSERT_TRUE(load(u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 1000000) "
                     "select n from N"_s));
    part<QLineEdit>("txtPage")->setText(u"２"_s); // of full width, as a Chinese input method types it
    QTest::mouseClick(part<QPushButton>("cmdPgae"), Qt::LeftButton);
    ASSERT_EQ(table->model()->rowCount(), 1);
    QMetaObject::invokeMethod(grid.RecordSet(), "MoveLast");
    QMetaObject::invokeMethod(grid.RecordSet(), "MoveNext");
    EXPECT_TRUE(grid.LocateSelRecord(7));
    EXPECT_EQ(grid.GetGridRowL(), 7);
    EXPECT_EQ(grid.CurrPosition(), 7);
}

TEST_F(LoadSteps, ReportAStatementWithoutFromWhenItIsSet)
{
    MessageAnswers messages;
    grid.PutSQLShow(u"select A"_s);
    ASSERT_EQ(messages.shown().size(), 2u);
    const ShownMessage &first = messages.shown().front();
    EXPECT_EQ(first.text, u"Get selected fields failed!"_s);
    EXPECT_EQ(first.title, u"KOVADataGrid"_s);
    EXPECT_EQ(first.icon, QMessageBox::Critical);
    EXPECT_EQ(first.buttons, QMessageBox::Ok);
    const ShownMessage &second = messages.shown().back();
    EXPECT_EQ(second.text, u"KOVAVSFDataGridLibInvalid procedure call or argument"_s);
    EXPECT_EQ(second.icon, QMessageBox::NoIcon);
    EXPECT_EQ(second.buttons, QMessageBox::Ok);
    EXPECT_EQ(grid.SQLShow(), u"select A"_s) << "it is set all the same";
}

TEST_F(LoadSteps, BeginAgainAfterClearObject)
{
    part<QCheckBox>("CheckSelAllRow")->setChecked(false);
    ASSERT_TRUE(load(u"select * from T"_s));
    grid.ClearObject();
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_FALSE(KOVAVSFDataGrid().findChild<QCheckBox *>(u"CheckSelAllRow"_s)->isChecked())
        << "remembered for the user";
    part<QCheckBox>("CheckSelAllRow")->setChecked(true);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(widths(), QList<int>(4, share(4)));
    grid.ClearObject();
    EXPECT_TRUE(KOVAVSFDataGrid().findChild<QCheckBox *>(u"CheckSelAllRow"_s)->isChecked());
    grid.ClearObject();
}

namespace {

// Counts what the control asks of it.
class CountingFactory final : public ADODB::ConnectionFactory
{
public:
    struct Counts
    {
        QList<int> connections;
        QList<int> recordsets;
    };
    explicit CountingFactory(Counts &counts) : m_counts(counts) {}

    void SetThreeTier(bool on) override { m_threeTier = on; }
    bool ThreeTier() const override { return m_threeTier; }
    std::shared_ptr<ADODB::Connection> newConnection(qint32 dbType) override
    {
        m_counts.connections.append(dbType);
        return std::make_shared<ADODB::Connection>();
    }
    std::shared_ptr<ADODB::Recordset> newRecordset(qint32 dbType) override
    {
        m_counts.recordsets.append(dbType);
        return std::make_shared<ADODB::Recordset>();
    }

private:
    Counts &m_counts;
    bool m_threeTier = false;
};

} // namespace

TEST_F(LoadSteps, TakeConnectionsOfServersFromTheFactoryAndNoOthers)
{
    CountingFactory::Counts counts;
    ADODB::ConnectionFactory::setInstance(std::make_unique<CountingFactory>(counts));
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(counts.connections, QList<int>());
    EXPECT_EQ(counts.recordsets, QList<int>());
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(counts.connections, QList<int>({3})) << "the field names come over the same connection";
    EXPECT_EQ(counts.recordsets, QList<int>({3}));
    ADODB::ConnectionFactory::setInstance(nullptr);
}
