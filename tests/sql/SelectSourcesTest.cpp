// What FROM names, by a table of statements.
#include "sql/select/SelectParts.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct SourcesCase
{
    const char *name;
    SqlDialect reading;
    QString from;
    QString sources; // table=written alias, blanks between; "?" for no table
    bool isPlain;    // whether * lists the fields of one source after another
};

class SelectSources : public testing::TestWithParam<SourcesCase>
{
};

} // namespace

TEST_P(SelectSources, AreFoundWithTheirAliases)
{
    const SqlScanner sql(u"SELECT * FROM "_s + GetParam().from + u" WHERE x = 1"_s, GetParam().reading,
                         {.brackets = true});
    const SelectParts parts = SelectParts::of(sql);
    QStringList found;
    for (const SelectParts::Source &source : parts.sources)
        found.append((source.table.isEmpty() ? u"?"_s : source.table) + u'=' + source.writtenAlias);
    EXPECT_EQ(found.join(u' ').toStdString(), GetParam().sources.toStdString());
    EXPECT_EQ(parts.hasPlainSources, GetParam().isPlain);
}

INSTANTIATE_TEST_SUITE_P(
    , SelectSources,
    testing::Values(
        SourcesCase{"One", SqlDialect::Standard, u"T"_s, u"T=T"_s, true},
        SourcesCase{"Aliases", SqlDialect::Standard, u"Ord o, dbo.[Cust x] AS c, Item"_s,
                    u"Ord=o Cust x=c Item=Item"_s, true},
        SourcesCase{"Joins", SqlDialect::Standard,
                    u"A LEFT OUTER JOIN B ON A.x = B.x INNER JOIN C c2 ON c2.y = B.y CROSS JOIN D"_s,
                    u"A=A B=B C=c2 D=D"_s, true},
        SourcesCase{"FunctionsInConditions", SqlDialect::Standard,
                    u"A JOIN B b ON coalesce(A.x, b.y, z) = 1 AND A.z IN (1, w) JOIN C ON f(a, b)"_s,
                    u"A=A B=b C=C"_s, true},
        SourcesCase{"AccessBrackets", SqlDialect::Standard,
                    u"(A INNER JOIN B ON A.x = B.x) INNER JOIN C ON 1"_s, u"A=A B=B C=C"_s, true},
        SourcesCase{"Select", SqlDialect::Standard, u"(SELECT a, b FROM U, V) AS q JOIN T ON q.a = T.a"_s,
                    u"?=q T=T"_s, true},
        SourcesCase{"SelectWithoutAlias", SqlDialect::Standard, u"(SELECT a FROM U), T"_s, u"?= T=T"_s,
                    false},
        SourcesCase{"LoneSelectWithoutAlias", SqlDialect::Standard, u"(SELECT a FROM U)"_s, u"?="_s, true},
        SourcesCase{"Using", SqlDialect::Standard, u"A JOIN B USING (x, y)"_s, u"A=A B=B"_s, false},
        SourcesCase{"Natural", SqlDialect::Standard, u"A NATURAL JOIN B"_s, u"A=A B=B"_s, false},
        SourcesCase{"AliasOfAJoin", SqlDialect::PostgreSql, u"(A JOIN B ON A.x = B.x) j, C"_s,
                    u"A=A B=B C=C"_s, false},
        SourcesCase{"Function", SqlDialect::PostgreSql,
                    u"generate_series(1, n, k) WITH ORDINALITY AS g(a, b), T"_s, u"?=g T=T"_s, true},
        SourcesCase{"Lateral", SqlDialect::PostgreSql, u"T, LATERAL (SELECT T.a) l"_s, u"T=T ?=l"_s, true},
        SourcesCase{"Values", SqlDialect::PostgreSql, u"(VALUES (1, 2)) AS v(a, b)"_s, u"?=v"_s, true},
        SourcesCase{"Hints", SqlDialect::MySql,
                    u"A USE INDEX (i, j), B PARTITION (p0) b STRAIGHT_JOIN C ON 1"_s, u"A=A B=b C=C"_s, true},
        SourcesCase{"LockHints", SqlDialect::SqlServer,
                    u"A WITH (NOLOCK), B b WITH (NOLOCK, x) CROSS APPLY f(b.y) g"_s, u"A=A B=b ?=g"_s, true},
        SourcesCase{"OdbcJoin", SqlDialect::Standard, u"{oj A a LEFT OUTER JOIN B b ON a.x = b.x}"_s,
                    u"A=a B=b"_s, true}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
