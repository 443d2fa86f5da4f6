// Layouts as texts: what is written, and what is refused.
#include "session/layout/SavedLayout.h"

#include "SessionFixture.h"

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Refused
{
    const char *name;
    QString text;
    QString named; // what the reason names
};

void PrintTo(const Refused &test, std::ostream *out)
{
    *out << test.name;
}

struct LayoutText : testing::TestWithParam<Refused>
{
};

QString withColumn(const QString &column)
{
    return u"{\"layout\":1,\"columns\":[{\"field\":\"a\"},"_s + column + u"]}"_s;
}

const Refused refused[] = {
    {"Empty", QString(), u"布局文本是空的"_s},
    {"NoJson", u"layout=1"_s, u"JSON"_s},
    {"CutOff", u"{\"layout\":1,\"columns\":[{\"field\":\"a\""_s, u"JSON"_s},
    {"Garbage", u"{\"layout\":1}}"_s, u"JSON"_s},
    {"Deep", QString(100000, u'['), u"JSON"_s},
    {"TooLong", QString(SavedLayout::longestText + 1, u'['), u"太长"_s},
    {"Array", u"[]"_s, u"layout"_s},
    {"Null", u"null"_s, u"JSON"_s},
    {"NoVersion", u"{\"columns\":[{\"field\":\"a\"}]}"_s, u"layout"_s},
    {"LaterVersion", u"{\"layout\":2,\"columns\":[{\"field\":\"a\"}]}"_s, u"layout"_s},
    {"NoColumns", u"{\"layout\":1}"_s, u"columns"_s},
    {"EmptyColumns", u"{\"layout\":1,\"columns\":[]}"_s, u"columns"_s},
    {"ColumnsNoArray", u"{\"layout\":1,\"columns\":{\"field\":\"a\"}}"_s, u"columns"_s},
    {"ColumnNoObject", withColumn(u"\"b\""_s), u"columns[1].field"_s},
    {"FieldNoText", withColumn(u"{\"field\":7}"_s), u"columns[1].field"_s},
    {"FieldEmpty", withColumn(u"{\"field\":\"\"}"_s), u"columns[1].field"_s},
    {"WidthZero", withColumn(u"{\"field\":\"b\",\"width\":0}"_s), u"columns[1].width"_s},
    {"WidthNegative", withColumn(u"{\"field\":\"b\",\"width\":-960}"_s), u"columns[1].width"_s},
    {"WidthHuge", withColumn(u"{\"field\":\"b\",\"width\":1e300}"_s), u"columns[1].width"_s},
    {"WidthBroken", withColumn(u"{\"field\":\"b\",\"width\":1.5}"_s), u"columns[1].width"_s},
    {"WidthText", withColumn(u"{\"field\":\"b\",\"width\":\"960\"}"_s), u"columns[1].width"_s},
    {"HiddenNumber", withColumn(u"{\"field\":\"b\",\"hidden\":1}"_s), u"columns[1].hidden"_s},
    {"FormatUnknown", withColumn(u"{\"field\":\"b\",\"format\":\"%n\"}"_s), u"columns[1].format"_s},
    {"FormatLong", withColumn(u"{\"field\":\"b\",\"format\":\"0."_s + QString(99, u'0') + u"\"}"_s),
     u"columns[1].format"_s},
    {"AllHidden", u"{\"layout\":1,\"columns\":[{\"field\":\"a\",\"hidden\":true}]}"_s, u"隐藏"_s},
    {"FrozenNegative", u"{\"layout\":1,\"columns\":[{\"field\":\"a\"}],\"frozen\":-1}"_s, u"frozen"_s},
    {"FrozenTooMany", u"{\"layout\":1,\"columns\":[{\"field\":\"a\"}],\"frozen\":2}"_s, u"frozen"_s},
    {"FrozenText", u"{\"layout\":1,\"columns\":[{\"field\":\"a\"}],\"frozen\":\"1\"}"_s, u"frozen"_s},
};

SavedLayout read(const QString &text)
{
    const auto layout = SavedLayout::fromText(text);
    EXPECT_TRUE(std::holds_alternative<SavedLayout>(layout)) << text.toStdString();
    return std::holds_alternative<SavedLayout>(layout) ? std::get<SavedLayout>(layout) : SavedLayout();
}

using Layout = SessionFixture;

} // namespace

TEST_P(LayoutText, IsRefusedWithTheReason)
{
    const auto layout = SavedLayout::fromText(GetParam().text);
    ASSERT_TRUE(std::holds_alternative<QString>(layout));
    EXPECT_TRUE(std::get<QString>(layout).contains(GetParam().named))
        << std::get<QString>(layout).toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, LayoutText, testing::ValuesIn(refused),
                         [](const auto &test) { return std::string(test.param.name); });

TEST(SavedLayoutText, ComesBackAsItWas)
{
    const SavedLayout layout{{{u"名称"_s, 1500}, {u"单价"_s, -1, true, u"#,##0.00"_s}, {u"\"',\n"_s, 100000}},
                             2};
    EXPECT_EQ(read(layout.toText()), layout);
    EXPECT_TRUE(layout.toText().contains(u"名称"_s)) << "a person can read it";
}

TEST(SavedLayoutText, MayHoldMoreThanIsKnown)
{
    const SavedLayout layout =
        read(u"{\"layout\":1,\"by\":\"x\",\"columns\":[{\"field\":\"a\",\"colour\":3}]}"_s);
    EXPECT_EQ(layout.columns, std::vector<SavedLayout::Column>{{u"a"_s}});
}

TEST_F(Layout, HidesAndShowsByAChoiceOfFields)
{
    ASSERT_TRUE(load());
    const QStringList all = window.shownFields();
    ASSERT_GE(all.size(), 2);
    SavedLayout layout = layoutOf(*session);
    ASSERT_EQ(layout.columns.size(), static_cast<std::size_t>(all.size()));
    layout.columns.front().isHidden = true;
    layout.columns.back().width = 2345;
    EXPECT_EQ(restoreLayout(*session, layout), QString());
    EXPECT_EQ(window.shownFields(), all.sliced(1));
    EXPECT_EQ(window.widths[static_cast<int>(all.size())], 2345);
    EXPECT_TRUE(window.pressed[u"Part"_s]);
    EXPECT_EQ(layoutOf(*session), layout);
    layout.columns.front().isHidden = false;
    EXPECT_EQ(restoreLayout(*session, layout), QString());
    EXPECT_EQ(window.shownFields(), all);
    EXPECT_EQ(window.widths[static_cast<int>(all.size())], 2345);
}

TEST_F(Layout, OfOtherFieldsChangesNothing)
{
    ASSERT_TRUE(load());
    const SavedLayout before = layoutOf(*session);
    EXPECT_EQ(restoreLayout(*session, read(u"{\"layout\":1,\"columns\":[{\"field\":\"nobody\",\"width\":77},"
                                           "{\"field\":\"noone\",\"hidden\":true}]}"_s)),
              QString());
    EXPECT_EQ(layoutOf(*session), before);
}

TEST_F(Layout, ThatHidesAllThatIsShownIsRefused)
{
    ASSERT_TRUE(load());
    SavedLayout layout = layoutOf(*session);
    for (SavedLayout::Column &column : layout.columns)
        column.isHidden = true;
    layout.columns.push_back({u"other"_s});
    const SavedLayout before = layoutOf(*session);
    EXPECT_FALSE(restoreLayout(*session, layout).isEmpty());
    EXPECT_EQ(layoutOf(*session), before);
}

TEST_F(Layout, NeedsAResult)
{
    EXPECT_FALSE(restoreLayout(*session, SavedLayout{{{u"a"_s}}}).isEmpty());
}
