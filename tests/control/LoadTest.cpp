// IsLoadData over real SQLite files: what a load shows, and what a failed one leaves as it was.
#include <KOVAVSFDataGrid>

#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QFile>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString Script =
    u"CREATE TABLE T (ID INTEGER PRIMARY KEY, \"Full Name\" VARCHAR(20), 价格 NUMERIC(8,2), 日期 DATE);"
    "INSERT INTO T VALUES (1,'王芳',12.5,'2024-02-29'),(2,NULL,NULL,NULL),(3,'O''Neil',-3,'1999-12-31');"_s;

struct Load : testing::Test
{
    Load()
    {
        grid.PutConnectionString(database.connectionString());
        grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    }

    bool load(const QString &statement)
    {
        grid.PutSQLShow(statement);
        return grid.IsLoadData();
    }

    template<typename Part>
    Part *part(const char *name) const
    {
        return grid.findChild<Part *>(QLatin1StringView(name));
    }

    TestDatabase database{Script};
    KOVAVSFDataGrid grid;
    QTableView *table = grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
    QAbstractItemModelTester tester{table->model(), QAbstractItemModelTester::FailureReportingMode::Warning};
};

} // namespace

TEST_F(Load, ShowsFieldNamesAndValues)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_EQ(table->model()->columnCount(), 4);
    EXPECT_EQ(grid.CellTextL(0, 2), u"Full Name"_s);
    EXPECT_EQ(grid.CellTextL(1, 0), u"1"_s);
    EXPECT_EQ(grid.CellTextL(1, 2), u"王芳"_s);
    EXPECT_EQ(grid.CellTextL(1, 3), u"12.5"_s);
    EXPECT_EQ(grid.CellTextL(1, 4), u"2024-02-29"_s);
    EXPECT_EQ(grid.CellTextL(3, 2), u"O'Neil"_s);
    EXPECT_EQ(grid.CellText(3, 3), u"-3"_s);
}

TEST_F(Load, ANullIsTheEmptyText)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(grid.CellTextL(2, 2), QString());
    EXPECT_EQ(grid.CellTextL(2, 3), QString());
    EXPECT_EQ(grid.CellTextL(2, 4), QString());
}

TEST_F(Load, MakesTheFirstRowAndItsRecordCurrent)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(grid.GetGridRow(), 1);
    EXPECT_EQ(grid.GetGridRowL(), 1);
    EXPECT_EQ(grid.GetGridCol(), 1);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
}

TEST_F(Load, ShowsThePage)
{
    EXPECT_EQ(part<QLabel>("lblFieldCount")->text(), u"第页共页  只显示999999条以内的记录"_s);
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(part<QLabel>("lblFieldCount")->text(), u"第1页共1页  只显示999999条以内的记录"_s);
    EXPECT_EQ(part<QLineEdit>("txtPage")->text(), u"1"_s);
}

TEST_F(Load, EnablesWhatActsOnData)
{
    EXPECT_FALSE(grid.DisplayEable());
    EXPECT_FALSE(table->isEnabled());
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_TRUE(grid.DisplayEable());
    EXPECT_TRUE(grid.FilterEnable());
    EXPECT_TRUE(table->isEnabled());
    EXPECT_TRUE(part<QPushButton>("cmdPgae")->isEnabled());
}

TEST_F(Load, AnEmptyResultShowsTheHeadingsAlone)
{
    ASSERT_TRUE(load(u"select * from T where ID > 100"_s));
    EXPECT_EQ(table->model()->rowCount(), 0);
    EXPECT_EQ(table->model()->columnCount(), 4);
    EXPECT_EQ(grid.CellTextL(0, 2), u"Full Name"_s);
    EXPECT_EQ(grid.GetGridRow(), 0);
    EXPECT_EQ(part<QLineEdit>("txtPage")->text(), u"0"_s);
    EXPECT_EQ(part<QLabel>("lblFieldCount")->text(), u"第0页共0页  只显示999999条以内的记录"_s);
}

TEST_F(Load, AGridWithNothingToShowSaysWhy)
{
    grid.show();
    const auto *hint = part<QLabel>("lblEmpty");
    EXPECT_EQ(hint->text(), u"尚未加载数据"_s);
    EXPECT_TRUE(hint->isVisible());
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_FALSE(hint->isVisible());
    ASSERT_TRUE(load(u"select * from T where ID > 100"_s));
    EXPECT_EQ(hint->text(), u"没有记录。按 Ctrl++ 增加第一条记录。"_s);
    EXPECT_TRUE(hint->isVisible());
    ASSERT_TRUE(load(u"select upper(ID) as a from T where ID > 100"_s));
    EXPECT_EQ(hint->text(), u"没有记录"_s) << "nothing can be written there";
    grid.Clear();
    EXPECT_EQ(hint->text(), u"尚未加载数据"_s);
    EXPECT_EQ(part<QLabel>("lblStatement")->text(), QString()) << "nothing is said of a result that is gone";
}

TEST_F(Load, TheHostGivesTheKeyboardToTheData)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    part<QLineEdit>("txtPage")->setFocus();
    grid.setFocus();
    EXPECT_EQ(grid.window()->focusWidget(), table);
}

TEST_F(Load, NotifiesTheHostThatTheRecordsetWasReplaced)
{
    QSignalSpy replaced(&grid, &KOVAVSFDataGrid::RecordsetChanged);
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(replaced.count(), 1);
}

TEST_F(Load, BracketsRunOnSqlite)
{
    ASSERT_TRUE(load(u"select T.[Full Name] from [T] order by [ID] desc"_s));
    EXPECT_EQ(grid.CellTextL(1, 1), u"O'Neil"_s);
}

// Each is told with the reason first and then that the load failed; what was shown stays.
struct FailedLoad : Load, testing::WithParamInterface<const char *>
{
};

INSTANTIATE_TEST_SUITE_P(Statements, FailedLoad,
                         testing::Values("", "selec", "select * from Nowhere", "delete from T",
                                         "select 1; drop table T", "select * from T; select 1",
                                         "drop table T", "update T set ID = 9", "attach 'x.db' as y",
                                         "pragma user_version = 7",
                                         "insert into T values (9,'x',1,'2000-01-01') returning ID"));

TEST_P(FailedLoad, IsReportedAndChangesNothing)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    grid.SetGridRow(2);
    QFile file(database.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();

    MessageAnswers messages;
    EXPECT_FALSE(load(QString::fromUtf8(GetParam())));

    // A text without FROM was reported when it was set; the load itself shows two more messages.
    ASSERT_GE(messages.shown().size(), 2u);
    const ShownMessage &reason = *(messages.shown().end() - 2);
    EXPECT_TRUE(reason.text.startsWith(u"错误描述为："_s)) << reason.text.toStdString();
    EXPECT_GT(reason.text.size(), u"错误描述为："_s.size());
    EXPECT_EQ(reason.format, Qt::PlainText);
    EXPECT_FALSE(reason.title.isEmpty());
    EXPECT_EQ(messages.shown().back().text, u"数据库打开失败。"_s);
    EXPECT_EQ(messages.shown().back().buttons, QMessageBox::Ok);

    EXPECT_EQ(grid.CellTextL(1, 2), u"王芳"_s);
    EXPECT_EQ(grid.GetGridRow(), 2);
    EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
    EXPECT_TRUE(grid.DisplayEable());
    file.seek(0);
    EXPECT_EQ(file.readAll(), before) << "the database file changed";
}

TEST_F(Load, AMissingFileIsReportedByNameAndNotCreated)
{
    const QString missing = database.path() + u".missing"_s;
    grid.PutConnectionString(u"Provider=SQLite;Data Source="_s + missing);
    MessageAnswers messages;
    EXPECT_FALSE(load(u"select 1 from T"_s));
    ASSERT_FALSE(messages.shown().empty());
    EXPECT_TRUE(messages.shown().front().text.contains(missing)) << messages.texts().join(u'|').toStdString();
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_F(Load, NoMessageContainsAPassword)
{
    grid.PutConnectionString(u"Provider=NoSuchProvider;Data Source=x;Password=geheim42;PWD=geheim42"_s);
    MessageAnswers messages;
    EXPECT_FALSE(load(u"select 1 from T"_s));
    ASSERT_FALSE(messages.shown().empty());
    EXPECT_FALSE(messages.texts().join(u'|').contains(u"geheim42"_s));
}

TEST_F(Load, ClearClosesAndEmptiesAndAllowsAnotherLoad)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    grid.Clear();
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(table->model()->columnCount(), 1);
    EXPECT_FALSE(table->isEnabled());
    EXPECT_FALSE(grid.DisplayEable());
    EXPECT_FALSE(grid.FilterEnable());
    ASSERT_TRUE(load(u"select ID from T"_s));
    EXPECT_EQ(table->model()->rowCount(), 3);
    grid.ClearAll();
    EXPECT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(grid.RecordSet(), nullptr);
}

TEST_F(Load, ClearObjectReleasesTheFileAndAllowsAnotherLoad)
{
    ASSERT_TRUE(load(u"select * from T"_s));
    grid.ClearObject();
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_EQ(grid.CurrPosition(), 0);
    ASSERT_TRUE(load(u"select * from T"_s));
    EXPECT_EQ(grid.CurrPosition(), 1);
}

TEST_F(Load, TwoControlsShowTwoResults)
{
    TestDatabase other(u"CREATE TABLE U (X TEXT); INSERT INTO U VALUES ('other')"_s);
    KOVAVSFDataGrid second;
    second.PutConnectionString(other.connectionString());
    second.PutSQLShow(u"select X from U"_s);
    ASSERT_TRUE(load(u"select * from T"_s));
    ASSERT_TRUE(second.IsLoadData());
    EXPECT_EQ(grid.CellTextL(1, 2), u"王芳"_s);
    EXPECT_EQ(second.CellTextL(1, 1), u"other"_s);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(grid.CellTextL(1, 2), u"王芳"_s);
    EXPECT_TRUE(grid.LocateSelRecord(3));
    EXPECT_EQ(grid.CurrPosition(), 3);
    EXPECT_EQ(second.CurrPosition(), 1);
}
