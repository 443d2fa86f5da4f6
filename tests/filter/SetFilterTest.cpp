// The filter builder by mouse and keys: its rows, their operators and faults.
#include "BuilderFixture.h"

#include "ado/Connection.h"
#include "filter/rows/FilterRows.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QCompleter>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Builder = BuilderFixture;

} // namespace

TEST_F(Builder, OffersTheTablesFieldsAndTheOperatorsOfTheirClass)
{
    EXPECT_EQ(fault("lblTable"), "当前使用数据表：订单");
    EXPECT_EQ(combo("cmbField1").count(), 7);
    EXPECT_EQ(combo("cmbField1").currentText(), u"编号"_s);
    EXPECT_EQ(combo("cmbOperator1").findText(u"包含"_s), -1);
    choose("cmbField1", u"城市"_s);
    EXPECT_GE(combo("cmbOperator1").findText(u"包含"_s), 0);
    choose("cmbField1", u"图"_s);
    EXPECT_EQ(combo("cmbOperator1").count(), 2);
    EXPECT_FALSE(text("txtValue1").isVisible());
}

TEST_F(Builder, ShowsTheConditionAsItGrows)
{
    EXPECT_EQ(shown(), "");
    fillRow(1, u"城市"_s, u"等于"_s, u"北京"_s);
    EXPECT_EQ(shown(), "城市 = '北京'");
    press(dialog, "cmdAddRow");
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbField2"));
    EXPECT_EQ(shown(), "城市 = '北京'");
    fillRow(2, u"金额"_s, u"大于"_s, u"-5"_s);
    EXPECT_EQ(shown(), "城市 = '北京' AND (金额 > -5 AND 金额 < '')");
    choose("cmbJoin1", u"或者"_s);
    EXPECT_EQ(answer(), "(城市 = '北京' OR (金额 > -5 AND 金额 < ''))");
}

TEST_F(Builder, SaysTheConditionInWordsUntilItIsTypedAsSql)
{
    const auto words = [this] { return part<QLabel>(dialog, "lblSentence").text().toStdString(); };
    EXPECT_EQ(words(), "");
    fillRow(1, u"城市"_s, u"不包含"_s, u"京"_s);
    EXPECT_EQ(words(), "【城市】不包含“京”（也包括空值）。");
    part<QAbstractButton>(dialog, "chkWithNull1").click();
    EXPECT_EQ(words(), "【城市】不包含“京”。");
    EXPECT_EQ(shown(), "NOT (城市 LIKE '%京%')");
    part<QAbstractButton>(dialog, "chkNot1").click();
    EXPECT_EQ(shown(), "城市 LIKE '%京%'");
    EXPECT_FALSE(part(dialog, "chkWithNull1").isVisible());
    press(dialog, "cmdAddRow");
    fillRow(2, u"金额"_s, u"前 N 个"_s, u"2"_s);
    EXPECT_EQ(words(), "并非（【城市】不包含“京”），并且【金额】是最大的 2 个之一。");
    type("txtCondition", u"编号 = 1"_s);
    EXPECT_EQ(words(), "");
    press(dialog, "cmdBackToRows");
    EXPECT_NE(words(), "");
}

TEST_F(Builder, AConditionIsPutInAgainAsItWasTyped)
{
    fillRow(1, u"金额"_s, u"不等于"_s, u"５"_s);
    press(dialog, "cmdAddRow");
    fillRow(2, u"下单日期"_s, u"等于"_s, u"本月"_s);
    choose("cmbJoin1", u"或者"_s);
    const BuiltFilter state = builder->State();
    const std::string before = shown();
    press(dialog, "cmdDeleteRow2");
    type("txtValue1", u"7"_s);
    EXPECT_TRUE(builder->IsChanged());
    builder->PutState(state);
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(builder->State(), state);
    EXPECT_FALSE(builder->IsChanged());
    EXPECT_EQ(text("txtValue2").text(), u"本月"_s) << "it stays relative";

    builder->PutState({.rows = {{.field = u"没有"_s}}});
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(fault("lblNotice"), "这里没有该筛选用到的字段“没有”，或者不能这样比较它。");
}

// The condition is written once for all rows; for each of hundreds of rows, the dialog would take half a
// minute.
TEST_F(Builder, ManyConditionsArePutInAsOneChange)
{
    BuiltFilter many;
    for (int i = 0; i < 60; ++i)
        many.rows.append({.field = u"金额"_s, .op = FilterOperator::NotEquals, .value = QString::number(i)});
    const QSignalSpy changes(dialog.findChild<FilterRows *>(), &FilterRows::changed);
    builder->PutState(many);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(builder->State(), many);
    EXPECT_EQ(text("txtValue60").text(), u"59"_s);
}

TEST_F(Builder, SaysHowManyRecordsMeetTheConditionAMomentAfterIt)
{
    const auto counted = [this] { return part<QLabel>(dialog, "lblCount").text(); };
    fillRow(1, u"城市"_s, u"等于"_s, u"北京"_s);
    EXPECT_EQ(counted(), QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return counted() == u"约 2 条"_s; })) << qUtf8Printable(counted());
    type("txtValue1", u"广州"_s);
    EXPECT_EQ(counted(), QString()) << "what was counted is no longer true";
    EXPECT_TRUE(QTest::qWaitFor([&] { return counted() == u"约 0 条"_s; }));
    type("txtCondition", u"编号 > 1"_s);
    EXPECT_EQ(counted(), QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return counted() == u"约 2 条"_s; })) << qUtf8Printable(counted());
    type("txtCondition", u"编号 >"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return counted() == u"无法计数"_s; }));
    press(dialog, "cmdBackToRows");
    EXPECT_TRUE(QTest::qWaitFor([&] { return counted() == u"约 0 条"_s; })) << "of the row again";
}

TEST_F(Builder, CountsThroughASharedConnectionForAMomentOnly)
{
    database.run(u"CREATE VIEW 无尽 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                 " SELECT CAST(i AS TEXT) AS 值 FROM n"_s);
    auto shared = std::make_shared<ADODB::Connection>();
    shared->Open(database.connectionString());
    builder->SetConnection(shared);
    builder->SetTableName(u"订单"_s);
    fillRow(1, u"城市"_s, u"等于"_s, u"北京"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fault("lblCount") == "约 2 条"; }));
    builder->SetTableName(u"无尽"_s);
    fillRow(1, u"值"_s, u"不等于"_s, u"-1"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fault("lblCount") == "无法计数"; }));
    EXPECT_EQ(part<QLabel>(dialog, "lblCount").toolTip(), u"记录太多，短时间内数不完。"_s);
}

TEST_F(Builder, ShowsTheStatementOnRequest)
{
    QLineEdit &sql = text("txtCondition");
    auto &show = part<QCheckBox>(dialog, "chkSql");
    fillRow(1, u"编号"_s, u"大于"_s, u"1"_s);
    EXPECT_FALSE(sql.isVisible());
    show.setFocus();
    QTest::keyClick(&show, Qt::Key_Space);
    EXPECT_TRUE(sql.isVisible());
    EXPECT_TRUE(sql.hasFocus());
    EXPECT_EQ(sql.text(), u"(编号 > 1 AND 编号 < '')"_s);
    type("txtCondition", u"编号 > 2"_s);
    EXPECT_FALSE(show.isEnabled()) << "it is all that there is now";
    press(dialog, "cmdBackToRows");
    QTest::mouseClick(&show, Qt::LeftButton);
    EXPECT_FALSE(sql.isVisible());
    EXPECT_EQ(sql.text(), u"(编号 > 1 AND 编号 < '')"_s);

    builder->PutState({.condition = u"编号 > 3"_s});
    EXPECT_TRUE(sql.isVisible()) << "no row says it";
}

TEST_F(Builder, ACountThatTakesLongSaysSoAndCanBeStopped)
{
    database.run(u"CREATE VIEW 无尽 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                 " SELECT CAST(i AS TEXT) AS 值 FROM n"_s);
    builder->SetTableName(u"无尽"_s);
    fillRow(1, u"值"_s, u"不等于"_s, u"-1"_s);
    auto &stop = part<QAbstractButton>(dialog, "cmdStopCount");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stop.isVisible(); }));
    EXPECT_EQ(fault("lblCount"), "正在计数…");
    QTest::mouseClick(&stop, Qt::LeftButton);
    EXPECT_EQ(fault("lblCount"), "");
    EXPECT_FALSE(stop.isVisible());
    EXPECT_NE(answer(), "");
}

TEST_F(Builder, ACountThatTheDatabaseRefusesIsReportedWithItsReason)
{
    fillRow(1, u"编号"_s, u"大于"_s, u"1"_s);
    database.run(u"DROP TABLE 订单"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return fault("lblCount") == "无法计数"; }));
    EXPECT_TRUE(part<QLabel>(dialog, "lblCount").toolTip().contains(u"订单"_s));
}

TEST_F(Builder, ABuilderThatGoesWhileItCountsLeavesNothingBehind)
{
    database.run(u"CREATE VIEW 无尽 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                 " SELECT CAST(i AS TEXT) AS 值 FROM n"_s);
    builder->SetTableName(u"无尽"_s);
    fillRow(1, u"值"_s, u"不等于"_s, u"-1"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return fault("lblCount") == "正在计数…"; }));
    delete builder;
    QCoreApplication::processEvents();
    EXPECT_FALSE(exists("lblCount"));
}

TEST_F(Builder, TheKeyboardAloneBuildsACondition)
{
    combo("cmbField1").setFocus();
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down); // 金额
    key(dialog, Qt::Key_Tab);
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down); // 大于
    key(dialog, Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), u"100"_s);
    EXPECT_EQ(answer(), "(金额 > 100 AND 金额 < '')");
}

TEST_F(Builder, AFieldIsFoundByTheBeginningOfItsNameInChineseToo)
{
    compose(combo("cmbField1"), u"下单"_s);
    EXPECT_EQ(combo("cmbField1").currentText(), u"下单日期"_s);
    EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").placeholderText(), u"例如 2024-01-31、2024-03 或“本月”"_s);
}

TEST_F(Builder, AHintWithoutRoomIsShorter)
{
    choose("cmbField1", u"下单日期"_s);
    choose("cmbOperator1", u"介于"_s);
    for (const char *name : {"txtValue1", "txtValue1b"}) {
        dialog.resize(dialog.minimumSizeHint());
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(name).placeholderText() == u"2024-01-31"_s; }));
        dialog.resize(3 * dialog.width(), dialog.height());
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(name).placeholderText().contains(u"本月"); }));
    }
}

TEST_F(Builder, BetweenTakesTwoValues)
{
    choose("cmbOperator1", u"介于"_s);
    EXPECT_TRUE(text("txtValue1b").isVisible());
    type("txtValue1", u"1"_s);
    EXPECT_EQ(shown(), "");
    type("txtValue1b", u"2"_s);
    EXPECT_EQ(shown(), "(编号 >= 1 AND 编号 <= 2)");
    choose("cmbOperator1", u"等于"_s);
    EXPECT_FALSE(text("txtValue1b").isVisible());
    EXPECT_EQ(shown(), "编号 = 1");
}

TEST_F(Builder, BracketsGroupConditions)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdAddRow");
    fillRow(1, u"编号"_s, u"大于"_s, u"1"_s);
    fillRow(2, u"城市"_s, u"等于"_s, u"北京"_s);
    fillRow(3, u"城市"_s, u"等于"_s, u"上海"_s);
    choose("cmbJoin2", u"或者"_s);
    choose("cmbOpen2", u"("_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault2"), "括号不配对。");
    choose("cmbClose3", u")"_s);
    EXPECT_EQ(fault("lblFault2"), "");
    EXPECT_EQ(answer(), "(编号 > 1 AND 编号 < '') AND (城市 = '北京' OR 城市 = '上海')");
}

TEST_F(Builder, DeletingARowRenumbersTheOthersAndKeepsTheirBrackets)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdAddRow");
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    fillRow(2, u"编号"_s, u"等于"_s, u"2"_s);
    fillRow(3, u"编号"_s, u"等于"_s, u"3"_s);
    choose("cmbOpen1", u"("_s);
    choose("cmbClose3", u")"_s);
    press(dialog, "cmdDeleteRow1");
    EXPECT_FALSE(exists("cmbField3"));
    EXPECT_EQ(text("txtValue1").text(), u"2"_s);
    EXPECT_EQ(answer(), "(编号 = 2 AND 编号 = 3)");
    press(dialog, "cmdDeleteRow2");
    EXPECT_EQ(answer(), "(编号 = 2)");
}

TEST_F(Builder, TheOnlyRowCanNotBeDeleted)
{
    EXPECT_FALSE(part(dialog, "cmdDeleteRow1").isEnabled());
    EXPECT_FALSE(combo("cmbJoin1").isVisible());
    press(dialog, "cmdAddRow");
    EXPECT_TRUE(part(dialog, "cmdDeleteRow1").isEnabled());
    EXPECT_TRUE(combo("cmbJoin1").isVisible());
}

TEST_F(Builder, TheNewestRowAndTheFirstFaultAreScrolledIntoView)
{
    for (int further = 0; further < 30; ++further)
        press(dialog, "cmdAddRow");
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo("cmbField1").visibleRegion().isEmpty(); }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !combo("cmbField31").visibleRegion().isEmpty(); }));
    EXPECT_EQ(answer(), ""); // no row has a value
    EXPECT_TRUE(QTest::qWaitFor([this] { return !text("txtValue1").visibleRegion().isEmpty(); }));
}

TEST_F(Builder, ARowAddedAndDeletedAtOnceLeavesNothingBehind)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdDeleteRow2");
    delete builder;
    QCoreApplication::processEvents();
    EXPECT_FALSE(exists("cmbField1"));
}

TEST_F(Builder, AMissingValueIsReportedOnlyOnceTheConditionIsNeeded)
{
    text("txtValue1").setFocus();
    key(dialog, Qt::Key_Tab);
    EXPECT_EQ(fault("lblFault1"), "");
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault1"), "请输入值。");
    EXPECT_EQ(fault("lblNotice"), "请先改正标出的条件。");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1"));
    QTest::keyClicks(dialog.focusWidget(), u"5"_s);
    EXPECT_EQ(fault("lblFault1"), "");
    EXPECT_EQ(answer(), "编号 = 5");
}

TEST_F(Builder, ATextInANumberFieldIsMarkedWhenItIsLeftAndNothingIsLost)
{
    type("txtValue1", u"五"_s);
    EXPECT_EQ(fault("lblFault1"), "");
    key(dialog, Qt::Key_Tab);
    EXPECT_EQ(fault("lblFault1"), "“五”不是数字。");
    EXPECT_TRUE(part(dialog, "lblFault1").isVisible());
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(text("txtValue1").text(), u"五"_s);
}

TEST_F(Builder, AnEndBeforeItsStartIsMarked)
{
    choose("cmbField1", u"下单日期"_s);
    choose("cmbOperator1", u"介于"_s);
    type("txtValue1", u"2024-02-01"_s);
    type("txtValue1b", u"2024-01-01"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault1"), "结束值小于开始值。");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1b"));
    text("txtValue1").clear();
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1"));
}

TEST_F(Builder, AnotherFieldKeepsOperatorAndValueWhereItCan)
{
    fillRow(1, u"编号"_s, u"小于"_s, u"5"_s);
    choose("cmbField1", u"金额"_s);
    EXPECT_EQ(shown(), "金额 < 5");
    choose("cmbField1", u"已付款"_s);
    EXPECT_EQ(combo("cmbOperator1").currentText(), u"等于"_s);
    EXPECT_EQ(text("txtValue1").text(), u"5"_s);
}

TEST_F(Builder, TheKeyboardWalksThroughItFromLeftToRight)
{
    press(dialog, "cmdAddRow");
    choose("cmbOperator1", u"介于"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo("cmbField2").isVisible(); }));
    part(dialog, "cmbOpen1").setFocus();
    EXPECT_EQ(walkedByTab(dialog, 19),
              "cmbOpen1 chkNot1 cmbField1 cmbOperator1 txtValue1 txtValue1b cmbClose1 cmbJoin1 cmdDeleteRow1 "
              "cmbOpen2 chkNot2 cmbField2 cmbOperator2 txtValue2 cmbClose2 cmdDeleteRow2 cmdAddRow chkGroups "
              "chkSql");
    for (const char *name : {"cmbOpen1", "cmbField1", "cmbOperator1", "txtValue1", "txtValue1b", "cmbClose1",
                             "cmbJoin1", "cmdDeleteRow1", "txtCondition"})
        EXPECT_FALSE(part(dialog, name).accessibleName().isEmpty()) << name;
}

TEST(BuilderWithoutDatabase, SaysWhyThereAreNoFieldsAndStillTakesACondition)
{
    QDialog dialog;
    SetFilter builder(&dialog);
    builder.Initialize(u"表"_s, dbAccess);
    builder.SetConnectionString(u"Provider=SQLite;Data Source=/missing.db;Password=secret"_s);
    builder.SetTableName(u"T"_s);
    const QString notice = part<QLabel>(dialog, "lblNotice").text();
    EXPECT_TRUE(notice.startsWith(u"无法读取字段："_s));
    EXPECT_FALSE(notice.contains(u"secret"_s));
    EXPECT_TRUE(builder.ConditionText().isEmpty());
    EXPECT_EQ(part<QLabel>(dialog, "lblFault1").text(), u"没有可以筛选的字段。"_s);
    EXPECT_FALSE(part(dialog, "cmdAddRow").isEnabled());
    EXPECT_FALSE(part(dialog, "cmbField1").isEnabled());
    EXPECT_TRUE(part(dialog, "txtCondition").isEnabled());
}
