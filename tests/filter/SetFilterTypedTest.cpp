// Conditions that the user types by hand into the filter builder.
#include "BuilderFixture.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace KOVAVSFDataGridLib;

namespace {

using TypedCondition = BuilderFixture;

} // namespace

TEST_F(TypedCondition, AConditionTypedByHandAppliesUntilTheRowsAreRestored)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    type("txtCondition", u"编号 = 1 or 金额 > 5"_s);
    EXPECT_EQ(answer(), "(编号 = 1 or 金额 > 5)");
    EXPECT_FALSE(text("txtValue1").isEnabled());
    EXPECT_FALSE(part(dialog, "cmdAddRow").isEnabled());
    press(dialog, "cmdBackToRows");
    EXPECT_TRUE(text("txtValue1").isEnabled());
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbField1"));
    EXPECT_EQ(answer(), "编号 = 1");
}

TEST_F(TypedCondition, AWrongConditionTypedByHandIsExplainedByTheDatabase)
{
    type("txtCondition", u"没有 = 1"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_NE(fault("lblNotice").find("没有"), std::string::npos);
    EXPECT_EQ(shown(), "没有 = 1");
    type("txtCondition", u" "_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblNotice"), "请输入条件。");
}

TEST_F(TypedCondition, StaysWhereWhatIsPutInPlaceOfItIsWrong)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    type("txtCondition", u"编号 < 7"_s);
    const BuiltFilter before = builder->State();
    const FilterState rows{{.field = u"金额"_s, .value = u"5"_s}};
    const QString noFields = u"这里没有该筛选用到的字段“没有”，或者不能这样比较它。"_s;
    const QString brackets = u"括号不配对。"_s;
    FilterState open = rows;
    open.first().opens = 1;
    const std::vector<std::pair<BuiltFilter, QString>> wrong{
        {{.rows = {{.field = u"没有"_s, .value = u"5"_s}}}, noFields},
        {{.rows = rows + FilterState{{.field = u"没有"_s}}, .kept = {u"编号 < 9"_s}}, noFields},
        {{.kept = {u"编号 < 5) OR (1=1"_s}}, brackets},
        {{.rows = rows, .kept = {u"编号 < 9"_s, u"编号 < 5) OR (1=1"_s}}, brackets},
        {{.condition = u"编号 > 3"_s, .kept = {u"(编号 < 5"_s}}, brackets},
        {{.rows = open}, brackets}};
    const auto expectUnchanged = [&](const BuiltFilter &expected) {
        for (const auto &[filter, reason] : wrong) {
            builder->PutState(filter);
            EXPECT_EQ(fault("lblNotice"), reason.toStdString());
            EXPECT_EQ(builder->State(), expected);
            EXPECT_FALSE(exists("chkKept1"));
            EXPECT_EQ(text("txtValue1").text(), u"1"_s);
        }
    };
    expectUnchanged(before);
    EXPECT_FALSE(text("txtValue1").isEnabled());
    EXPECT_EQ(answer(), "编号 < 7");
    press(dialog, "cmdBackToRows");
    expectUnchanged(builder->State());
    EXPECT_EQ(answer(), "编号 = 1");
    // One that is right takes the place of all.
    type("txtCondition", u"编号 < 7"_s);
    builder->PutState({.rows = rows, .kept = {u"编号 < 9"_s}});
    EXPECT_TRUE(text("txtValue1").isEnabled());
    EXPECT_EQ(answer(), "编号 < 9 AND 金额 = 5");
    EXPECT_EQ(fault("lblNotice"), "");
}

TEST_F(TypedCondition, AConditionTypedByHandStaysOneConditionWhateverIsJoinedToIt)
{
    const struct
    {
        QString typed;
        const char *answer;
    } cases[] = {
        {u"编号 = 1 -- 说明"_s, "编号 = 1"},
        {u"编号 =\n1"_s, "编号 = 1"},
        {u"城市 = '--' or 编号 = 1"_s, "(城市 = '--' or 编号 = 1)"},
        {u"编号 = 1) or (编号 = 2"_s, ""},
        {u"编号 = 1 /* 说明"_s, ""},
        {u"编号 = 1 limit 1"_s, ""},
        {u"编号 = 1; select 1"_s, ""},
    };
    for (const auto &c : cases) {
        type("txtCondition", {});
        text("txtCondition").insert(c.typed);
        EXPECT_EQ(answer(), c.answer) << qUtf8Printable(c.typed);
        EXPECT_NE(fault("lblNotice"), "");
    }
    // The words by which the statement's sort is found, even inside a value.
    type("txtCondition", u"城市 = '1 Order by 2'"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblNotice"), "条件语句中不能出现“ORDER BY”。");
}

TEST(BuilderWithoutTable, TakesAConditionAsItIsTyped)
{
    QDialog dialog;
    SetFilter builder(&dialog);
    present(dialog);
    QTest::keyClicks(&part<QLineEdit>(dialog, "txtCondition"), u"a = 1"_s);
    EXPECT_EQ(builder.ConditionText(), u"a = 1"_s);
}
