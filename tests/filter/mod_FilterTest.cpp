#include "filter/mod_Filter.h"

#include "ado/Connection.h"
#include "support/Dialogs.h"
#include "support/TestDatabase.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FilterModule : testing::Test
{
    FilterRequest request(const QString &sqlShow, AllDBType database = dbAccess) const
    {
        return {files.connectionString(), database, FromTable, sqlShow, nullptr};
    }
    // Shows the prepared dialog and does something with it.
    QString run(const std::function<void(QWidget &)> &act)
    {
        QTimer::singleShot(0, qApp, [act] {
            ASSERT_NE(QApplication::activeModalWidget(), nullptr);
            act(*QApplication::activeModalWidget());
        });
        return filter.ShowFilterDialog();
    }
    static QString table(const QWidget &dialog) { return part<QLabel>(dialog, "lblTable").text(); }

    TestDatabase files{u"CREATE TABLE [Order Details] (ID INTEGER, [Unit Price] NUMERIC)"_s};
    mod_Filter filter;
};

} // namespace

TEST_F(FilterModule, AnswersTheConditionForTheStatementsTable)
{
    filter.PrepareFilterDialog(request(u"select ID from [Order Details] where ID > 0 order by ID"_s));
    EXPECT_EQ(filter.strTableName(), u"Order Details"_s);
    EXPECT_TRUE(filter.IsTableKnown());
    const QString condition = run([](QWidget &dialog) {
        EXPECT_EQ(table(dialog), u"当前使用数据表：Order Details"_s);
        part<QComboBox>(dialog, "cmbField1").setCurrentIndex(1);
        QTest::keyClicks(&part<QLineEdit>(dialog, "txtValue1"), u"9.5"_s);
        press(dialog, "cmd_Filter");
    });
    EXPECT_EQ(condition, u"[Unit Price] = 9.5"_s);
    EXPECT_EQ(filter.strFilterCondition(), condition);
}

TEST_F(FilterModule, AFieldToBeginWithLeavesTheKeyboardAtItsOperator)
{
    FilterRequest asked = request(u"select * from [Order Details]"_s);
    asked.field = u"Unit Price"_s;
    filter.PrepareFilterDialog(asked);
    run([](QWidget &dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "cmbField1").currentText(), u"Unit Price"_s);
        EXPECT_EQ(dialog.focusWidget(), &part<QComboBox>(dialog, "cmbOperator1"));
        dialog.close(); // nothing was changed, so nothing is asked
    });
}

TEST_F(FilterModule, CancellingLeavesNoConditionAndPreparingForgetsTheLastOne)
{
    filter.PrepareFilterDialog(request(u"select * from [Order Details]"_s));
    run([](QWidget &dialog) {
        QTest::keyClicks(&part<QLineEdit>(dialog, "txtValue1"), u"1"_s);
        press(dialog, "cmd_Filter");
    });
    EXPECT_FALSE(filter.strFilterCondition().isEmpty());
    filter.PrepareFilterDialog(request(u"select * from [Order Details]"_s));
    EXPECT_TRUE(filter.strFilterCondition().isEmpty());
    EXPECT_TRUE(run([](QWidget &dialog) { press(dialog, "cmd_Cancel"); }).isEmpty());
}

TEST_F(FilterModule, UsesTheGivenConnectionForAStatementOfTheHost)
{
    FilterRequest own = request(u"select * from T"_s);
    own.tableType = FromOwnStatement;
    own.connectionString = u"Provider=SQLite;Data Source=/missing.db"_s;
    const TestDatabase other{u"CREATE TABLE T (Field INTEGER)"_s};
    own.connection = std::make_shared<ADODB::Connection>();
    own.connection->Open(other.connectionString());
    filter.PrepareFilterDialog(own);
    run([](QWidget &dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "cmbField1").currentText(), u"Field"_s);
        press(dialog, "cmd_Cancel");
    });
}

TEST_F(FilterModule, ANameInBracketsLosesOnlyItsFirstAndLastBracket)
{
    filter.PutStrTableName(u"[A].[B]"_s);
    filter.SetFilterTableName();
    EXPECT_EQ(filter.strTableName(), u"A].[B"_s);
    EXPECT_TRUE(filter.IsTableKnown());
}

TEST_F(FilterModule, AnOwnerIsSplitOffAtTheFirstDotWithoutItsQuotes)
{
    filter.PutStrTableName(u"\"scott\".\"emp.2\""_s);
    filter.SplitFilterTableName();
    EXPECT_EQ(filter.NameParts().owner, u"scott"_s);
    EXPECT_EQ(filter.NameParts().table, u"emp.2"_s);
    EXPECT_EQ(filter.strTableName(), u"emp.2"_s);
    filter.PutStrTableName(u"emp"_s);
    filter.SplitFilterTableName();
    EXPECT_EQ(filter.strTableName(), u"emp"_s);
}

TEST_F(FilterModule, SetFilterTableNameClearsOwnerAndTable)
{
    filter.PutStrTableName(u"scott.emp"_s);
    filter.SplitFilterTableName();
    filter.SetFilterTableName();
    EXPECT_TRUE(filter.NameParts().owner.isEmpty());
    EXPECT_TRUE(filter.NameParts().table.isEmpty());
}

TEST_F(FilterModule, AnOracleOwnerIsNotShown)
{
    filter.PrepareFilterDialog(request(u"select * from main.\"Order Details\""_s, dbOracle));
    EXPECT_EQ(filter.strTableName(), u"main.\"Order Details\""_s); // a blank: not taken apart
    filter.PrepareFilterDialog(request(u"select * from main.sqlite_schema"_s, dbOracle));
    EXPECT_EQ(filter.strTableName(), u"sqlite_schema"_s);
    EXPECT_EQ(filter.NameParts().owner, u"main"_s);
    run([](QWidget &dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "cmbField1").count(), 5);
        press(dialog, "cmd_Cancel");
    });
}

TEST_F(FilterModule, AStatementWithoutATableLeavesTheTableUnknown)
{
    filter.PrepareFilterDialog(request(u"select 1"_s));
    EXPECT_FALSE(filter.IsTableKnown());
    EXPECT_TRUE(run([](QWidget &dialog) { press(dialog, "cmd_Cancel"); }).isEmpty());
    EXPECT_TRUE(run([](QWidget &dialog) { press(dialog, "cmd_Cancel"); }).isEmpty()) << "it is kept";
    EXPECT_TRUE(mod_Filter().ShowFilterDialog().isEmpty()) << "nothing is prepared";
}
