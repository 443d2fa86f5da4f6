#include "filter/saved/SavedFilters.h"

#include "filter/FilterTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

BuiltFilter byHand(const QString &condition)
{
    return {.condition = condition};
}

BuiltFilter thisMonth()
{
    return {.rows = {{.field = u"日期"_s, .value = u"本月"_s}}};
}

QStringList names(const SavedFilters &filters)
{
    QStringList names;
    for (const SavedFilters::Named &named : filters.named())
        names.append(named.name);
    return names;
}

std::string fault(const char *text)
{
    const auto read = SavedFilters::fromText(QString::fromUtf8(text));
    const auto *reason = std::get_if<QString>(&read);
    return reason ? reason->toStdString() : "none";
}

} // namespace

TEST(SavedFilters, HaveTheConditionsThatAreKept)
{
    for (BuiltFilter filter : {byHand(u"a > 1"_s), thisMonth(), BuiltFilter()}) {
        filter.kept = {u"b = 'x  y' OR c = 2"_s, u"d LIKE '%\n%'"_s};
        EXPECT_EQ(builtFilterOf(toJson(filter)), filter);
    }
    EXPECT_EQ(fault(R"({"filters":1,"named":[{"name":"a","kept":["b = 1"]}]})"), "none");
    for (const char *kept : {"[]", "[\"\"]", "[1]", "\"b\""}) {
        const QByteArray text = QByteArray(R"({"filters":1,"named":[{"name":"a","kept":)") + kept + "}]}";
        EXPECT_NE(fault(text.constData()), "none") << kept;
    }
}

TEST(SavedFilters, SurviveTheWayIntoATextWithTheirRelativeDays)
{
    SavedFilters filters;
    EXPECT_TRUE(filters.keep(u"本月的"_s, thisMonth()));
    EXPECT_TRUE(filters.keep(u"大的"_s, byHand(u"金额 > 5"_s)));
    filters.noteUsed(thisMonth());
    const QString text = filters.toText();
    EXPECT_TRUE(text.contains(u"本月"_s));
    const auto read = SavedFilters::fromText(text);
    ASSERT_TRUE(std::holds_alternative<SavedFilters>(read));
    EXPECT_EQ(std::get<SavedFilters>(read), filters);
}

TEST(SavedFilters, AreReplacedRenamedAndRemovedByTheirNames)
{
    SavedFilters filters;
    filters.keep(u"b"_s, byHand(u"1"_s));
    filters.keep(u"a"_s, byHand(u"2"_s));
    EXPECT_EQ(names(filters), QStringList({u"a"_s, u"b"_s}));
    filters.keep(u"b"_s, byHand(u"3"_s));
    ASSERT_TRUE(filters.find(u"b"_s));
    EXPECT_EQ(filters.find(u"b"_s)->condition, u"3"_s);
    filters.rename(u"b"_s, u"a"_s);
    EXPECT_EQ(names(filters), QStringList({u"a"_s}));
    EXPECT_EQ(filters.find(u"a"_s)->condition, u"3"_s);
    filters.rename(u"没有"_s, u"c"_s);
    filters.rename(u"a"_s, u"a"_s);
    EXPECT_EQ(names(filters), QStringList({u"a"_s}));
    filters.remove(u"a"_s);
    EXPECT_TRUE(filters.named().isEmpty());
    EXPECT_EQ(SavedFilters::nameOf(u"  本 月\n的 "_s), u"本 月 的"_s);
    EXPECT_EQ(SavedFilters::nameOf(QString(500, u'长')).size(), SavedFilters::longestName);
}

TEST(SavedFilters, RememberTheLastTenOnceEach)
{
    SavedFilters filters;
    for (int i = 1; i <= 12; ++i)
        filters.noteUsed(byHand(u"A = %1"_s.arg(i)));
    filters.noteUsed(byHand(u"A = 5"_s));
    ASSERT_EQ(filters.recent().size(), SavedFilters::mostRecent);
    EXPECT_EQ(filters.recent().at(0), byHand(u"A = 5"_s));
    EXPECT_EQ(filters.recent().at(1), byHand(u"A = 12"_s));
    EXPECT_EQ(filters.recent().count(byHand(u"A = 5"_s)), 1);
    EXPECT_EQ(filters.recent().at(9), byHand(u"A = 3"_s));
}

TEST(SavedFilters, ATextThatIsNoneIsRefusedWithItsPlace)
{
    EXPECT_NE(fault("{\"filters\":1,").find("JSON"), std::string::npos);
    EXPECT_EQ(fault(""), FilterTexts::NoFiltersText().toStdString());
    const auto wrong = [](const QString &what) { return FilterTexts::NotFilters.arg(what).toStdString(); };
    EXPECT_EQ(fault("[]"), wrong(u"filters"_s));
    EXPECT_EQ(fault(R"({"filters":2})"), wrong(u"filters"_s));
    EXPECT_EQ(fault(R"({"filters":1,"named":5})"), wrong(u"named"_s));
    EXPECT_EQ(fault(R"({"filters":1,"named":[{"condition":"A"}]})"), wrong(u"named[0].name"_s));
    EXPECT_EQ(fault(R"({"filters":1,"named":[{"name":" a","condition":"A"}]})"), wrong(u"named[0].name"_s));
    EXPECT_EQ(fault(R"({"filters":1,"named":[{"name":"a","condition":"A"},{"name":"a","condition":"B"}]})"),
              wrong(u"named[1].name"_s));
    EXPECT_EQ(fault(R"({"filters":1,"named":[{"name":"a","rows":[]}]})"), wrong(u"named[0]"_s));
    EXPECT_EQ(fault(R"({"filters":1,"recent":[{"condition":"A"},7]})"), wrong(u"recent[1]"_s));
    EXPECT_EQ(fault(R"({"filters":1,"recent":[1,2,3,4,5,6,7,8,9,10,11]})"), wrong(u"recent"_s));
    EXPECT_EQ(fault(R"({"filters":1})"), "none");
    EXPECT_EQ(fault(std::string(SavedFilters::longestText + 1, '[').c_str()),
              FilterTexts::FiltersTooLong().toStdString());
}
