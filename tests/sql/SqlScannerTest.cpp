#include "sql/SqlScanner.h"

#include <QtCore/QStringList>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using KOVAVSFDataGridLib::SqlScanner;

namespace {

struct Case
{
    QString sql;
    QString tokens; // with | between
};

TEST(SqlScanner, CutsStatementsIntoTokens)
{
    const std::vector<Case> cases{
        {QString(), QString()},
        {u" \t\n"_s, QString()},
        {u"-- only a comment"_s, QString()},
        {u"/* and ; this"_s, QString()},
        {u"select a,b from t;"_s, u"select|a|,|b|from|t|;"_s},
        {u"a--x\nb"_s, u"a|b"_s},
        {u"a/* ; '*/b"_s, u"a|b"_s},
        {u"'it''s; -- no comment' x"_s, u"'it''s; -- no comment'|x"_s},
        {u"\"a \"\" b\".[c ' d].`e`"_s, u"\"a \"\" b\"|.|[c ' d]|.|`e`"_s},
        {u"'open ; "_s, u"'open ; "_s},
        {u"单价*1.5"_s, u"单价|*|1|.|5"_s},
    };
    for (const Case &c : cases) {
        const SqlScanner scanner(c.sql);
        QStringList tokens;
        for (qsizetype i = 0; i < scanner.count(); ++i)
            tokens += scanner.text(i).toString();
        EXPECT_EQ(tokens.join(u'|'), c.tokens) << c.sql.toStdString();
    }
}

TEST(SqlScanner, CountsOpenParentheses)
{
    const SqlScanner scanner(u"a (b (c) d) e ) f"_s);
    std::vector<int> depths;
    for (qsizetype i = 0; i < scanner.count(); ++i)
        depths.push_back(scanner.at(i).depth);
    EXPECT_EQ(depths, (std::vector<int>{0, 0, 1, 1, 2, 1, 1, 0, 0, 0, 0}));
}

TEST(SqlScanner, TakesQuotesOffNames)
{
    const SqlScanner scanner(u"plain \"a\"\"b\" [c d] `e``f` \"open"_s);
    QStringList names;
    for (qsizetype i = 0; i < scanner.count(); ++i)
        names += scanner.name(i);
    EXPECT_EQ(names.join(u'|'), u"plain|a\"b|c d|e`f|ope"_s);
}

TEST(SqlScanner, AnswersFalseOutsideTheStatement)
{
    const SqlScanner scanner(u"Select"_s);
    EXPECT_TRUE(scanner.isWord(0, u"SELECT"));
    EXPECT_FALSE(scanner.isWord(1, u"SELECT"));
    EXPECT_FALSE(scanner.isWord(-1, u"SELECT"));
    EXPECT_FALSE(scanner.isSymbol(1, u';'));
    EXPECT_FALSE(scanner.isName(1));
}

} // namespace
