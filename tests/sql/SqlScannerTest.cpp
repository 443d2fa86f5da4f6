#include "sql/SqlScanner.h"

#include <QtCore/QStringList>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using KOVAVSFDataGridLib::SqlDialect;
using KOVAVSFDataGridLib::SqlQuoting;
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

QString tokensOf(const QString &sql, SqlDialect dialect, const SqlQuoting &quoting = {})
{
    const SqlScanner scanner(sql, dialect, quoting);
    QStringList tokens;
    for (qsizetype i = 0; i < scanner.count(); ++i)
        tokens += scanner.text(i).toString();
    return tokens.join(u'|');
}

TEST(SqlScanner, EndsCommentsWhereTheEngineDoes)
{
    using enum SqlDialect;
    EXPECT_EQ(tokensOf(u"a --x\rb"_s, PostgreSql), u"a|b"_s);
    EXPECT_EQ(tokensOf(u"a --x\rb"_s, SqlServer), u"a|b"_s);
    EXPECT_EQ(tokensOf(u"a --x\u2028b"_s, SqlServer), u"a|b"_s);
    EXPECT_EQ(tokensOf(u"a --x\u2028b"_s, PostgreSql), u"a"_s);
    EXPECT_EQ(tokensOf(u"a -- x\rb"_s, MySql), u"a"_s);
    EXPECT_EQ(tokensOf(u"a -- x\rb\nc"_s, MySql), u"a|c"_s);
    EXPECT_EQ(tokensOf(u"a #x\rb\nc"_s, MySql), u"a|c"_s);
    EXPECT_EQ(tokensOf(u"a --\u00a0b"_s, MySql), u"a|-|-|\u00a0b"_s) << "no blank to the server";
    EXPECT_EQ(tokensOf(u"a\u3000b"_s, SqlServer), u"a|b"_s);
    EXPECT_EQ(tokensOf(u"a\u3000b"_s, PostgreSql), u"a\u3000b"_s);
}

TEST(SqlScanner, ReadsQuotesAsTheServersModeDoes)
{
    const auto mySql = SqlDialect::MySql;
    EXPECT_EQ(tokensOf(u"'\\' ; 'a'"_s, mySql), u"'\\' ; '|a|'"_s);
    EXPECT_EQ(tokensOf(u"'\\' ; 'a'"_s, mySql, {.backslashEscapes = false}), u"'\\'|;|'a'"_s);
    EXPECT_EQ(tokensOf(u"\"\\\" ;"_s, mySql, {.ansiQuotes = true}), u"\"\\\"|;"_s);
    EXPECT_EQ(tokensOf(u"[a' ] ; b"_s, mySql), u"[|a|' ] ; b"_s);
    EXPECT_EQ(tokensOf(u"[a' ] ; b"_s, mySql, {.brackets = true}), u"[a' ]|;|b"_s);
}

TEST(SqlScanner, FindsWhatCanBeReadInTwoWays)
{
    using enum SqlDialect;
    struct Stray
    {
        QString sql;
        SqlDialect dialect;
        qsizetype place;
    };
    const std::vector<Stray> cases{
        {u"select 1 -- a\n, 2 /* b\r\n */ -- c\r\n"_s, MySql, -1},
        {u"select 'a\r\f\u2028' \"b\v\""_s, Standard, -1},
        {u"select 1 --\r; delete"_s, Standard, 11},
        {u"select 1 --\r; delete"_s, MySql, 11},
        {u"select 1 #\r; delete"_s, MySql, 10},
        {u"select 1 --\r; delete"_s, PostgreSql, -1}, // which it ends
        {u"select 1 -- a\r"_s, Standard, -1},
        {u"select 1 --\u2028; delete"_s, PostgreSql, 11},
        {u"select 1 --\u0085"_s, MySql, 11},
        {u"select 1 /*\f*/"_s, Standard, 11},
        {u"select\v1"_s, Standard, 6},
        {u"select \u007f"_s, Standard, 7},
        {u"select 'a"_s + QChar(u'\0') + u"'"_s, Standard, 9},
        {u"select /*!50000 1 */"_s, MySql, -1},
        {u"select /*!99999 ' */ ; delete from t -- '"_s, MySql, 16},
        {u"select /*M!99999 # */ 1"_s, MySql, 17},
        {u"select /*!99999 /* */ 1"_s, MySql, 16},
        {u"select 'a' 'b'"_s, PostgreSql, -1},
        {u"select e'a'\n'\\' y ', 1"_s, PostgreSql, 12},
        {u"select 'a'\n'\\' y"_s, MySql, -1},
    };
    for (const Stray &c : cases)
        EXPECT_EQ(SqlScanner(c.sql, c.dialect).strayCharacter(), c.place) << c.sql.toStdString();
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
