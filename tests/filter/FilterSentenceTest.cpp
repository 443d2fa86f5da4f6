#include "filter/conditions/FilterSentence.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;
using enum FilterOperator;

namespace {

FilterField field(const QString &caption, FieldClass fieldClass)
{
    return {caption, caption, fieldClass};
}

SentenceTerm term(const QString &caption, FieldClass fieldClass, FilterOperator op, const QString &value = {},
                  const QString &last = {})
{
    return {{field(caption, fieldClass), op, value, last}};
}

std::string sentence(const QList<SentenceTerm> &terms)
{
    return sentenceOf(terms, QDate(2024, 2, 29)).toStdString();
}

// Terms that are just A = 1, B = 1 …, with brackets and joins as written: "(A|B)&C".
std::string structure(const QString &form)
{
    QList<SentenceTerm> terms;
    int opens = 0;
    for (const QChar c : form) {
        if (c == u'(') {
            ++opens;
        } else if (c == u')') {
            ++terms.last().closes;
        } else if (c == u'|' || c == u'&') {
            terms.last().orNext = c == u'|';
        } else {
            terms.append(term(c, FieldClass::Number, IsEmpty));
            terms.last().opens = std::exchange(opens, 0);
        }
    }
    QString text = sentenceOf(terms, {});
    text.remove(u"为空"_s).remove(u'【').remove(u'】').remove(u'。');
    text.replace(u"，并且"_s, u"&"_s).replace(u"，或者"_s, u"|"_s);
    return text.toStdString();
}

} // namespace

TEST(FilterSentence, SaysEachOperator)
{
    const auto number = FieldClass::Number;
    const auto text = FieldClass::Text;
    EXPECT_EQ(sentence({}), "");
    EXPECT_EQ(sentence({term(u"金额"_s, number, Greater, u" 100 "_s)}), "【金额】大于 100。");
    EXPECT_EQ(sentence({term(u"城市"_s, text, Equals, u"北京"_s)}), "【城市】等于“北京”。");
    EXPECT_EQ(sentence({term(u"城市"_s, text, NotContains, u"京"_s)}), "【城市】不包含“京”（也包括空值）。");
    EXPECT_EQ(sentence({term(u"城市"_s, text, IsNotEmpty)}), "【城市】不为空。");
    EXPECT_EQ(sentence({term(u"城市"_s, text, InList, u"甲，乙"_s)}), "【城市】是“甲”、“乙”之一。");
    EXPECT_EQ(sentence({term(u"金额"_s, number, NotInList, u"1 2,3"_s)}),
              "【金额】不是 1 2、3 之一（也包括空值）。");
    EXPECT_EQ(sentence({term(u"金额"_s, number, Between, u"1"_s, u"2"_s)}), "【金额】介于 1 和 2 之间。");
    EXPECT_EQ(sentence({term(u"金额"_s, number, Top, u"10"_s)}), "【金额】是最大的 10 个之一。");
    EXPECT_EQ(sentence({term(u"金额"_s, number, Bottom, u"3"_s)}), "【金额】是最小的 3 个之一。");
    EXPECT_EQ(sentence({term(u"品名"_s, text, Top, u"10"_s)}), "【品名】是按顺序排在最前的 10 个之一。");
    EXPECT_EQ(sentence({term(u"品名"_s, text, Bottom, u"3"_s)}), "【品名】是按顺序排在最后的 3 个之一。");
    EXPECT_EQ(sentence({term(u"城市"_s, text, Duplicated)}), "【城市】的值有重复。");
}

TEST(FilterSentence, SaysWhetherARowIsNegatedAndTakesRecordsWithoutValues)
{
    SentenceTerm negated = term(u"金额"_s, FieldClass::Number, Less, u"5"_s);
    negated.choice.isNegated = true;
    EXPECT_EQ(sentence({negated}), "并非（【金额】小于 5）（也包括空值）。");
    negated.choice.includesNull = false;
    EXPECT_EQ(sentence({negated}), "并非（【金额】小于 5）。");
    negated.choice.op = NotEquals;
    negated.choice.includesNull = true;
    EXPECT_EQ(sentence({negated}), "并非（【金额】不等于 5）。");
}

TEST(FilterSentence, SaysWhichDaysAreMeant)
{
    const auto date = FieldClass::Date;
    EXPECT_EQ(sentence({term(u"日期"_s, date, Equals, u"2024-01-31"_s)}), "【日期】等于 2024-01-31。");
    EXPECT_EQ(sentence({term(u"日期"_s, date, Equals, u"今天"_s)}), "【日期】等于 今天（2024-02-29）。");
    EXPECT_EQ(sentence({term(u"日期"_s, date, Equals, u"本月"_s)}),
              "【日期】等于 本月（2024-02-01 至 2024-02-29）。");
    EXPECT_EQ(sentence({term(u"时间"_s, FieldClass::Moment, Greater, u"2024-01-31 08:00"_s)}),
              "【时间】大于 2024-01-31 08:00。");
}

TEST(FilterSentence, JoinsTermsAsDatabasesReadThem)
{
    EXPECT_EQ(structure(u"A&B&C"_s), "A&B&C");
    EXPECT_EQ(structure(u"A|B|C"_s), "A|B|C");
    EXPECT_EQ(structure(u"A|B&C"_s), "A|（B&C）");
    EXPECT_EQ(structure(u"A&B|C&D"_s), "（A&B）|（C&D）");
    EXPECT_EQ(structure(u"(A|B)&C"_s), "（A|B）&C");
    EXPECT_EQ(structure(u"A&(B|C)"_s), "A&（B|C）");
    EXPECT_EQ(structure(u"((A|B)&C)|D"_s), "（（A|B）&C）|D");
    EXPECT_EQ(structure(u"A|(B|C&D)"_s), "A|（B|（C&D））");
    EXPECT_EQ(structure(u"((A))&B"_s), "（（A））&B");
    EXPECT_EQ(structure(u"(A&(B|C))"_s), "（A&（B|C））");
}
