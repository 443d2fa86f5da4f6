// Filters on the last field of statements as hosts write them, for engines that have no server here as well.
#include "DerivationTexts.h"

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct OpenCase
{
    const char *name;
    Engine engine;
    QString statement;
    QString fields;       // the result's, with | between
    const char *filtered; // under "F = 1", where F is what is written for the last field
};

class OpenText : public testing::TestWithParam<OpenCase>
{
};

} // namespace

TEST_P(OpenText, IsFilteredByTheValueOfAField)
{
    const OpenCase &c = GetParam();
    const Derivation derivation = derivationOf(c.engine, c.statement, c.fields.split(u'|'));
    expectText(derivation.withCondition(derivation.written().last() + u" = 1"_s), c.filtered);
}

INSTANTIATE_TEST_SUITE_P(
    , OpenText,
    testing::Values(
        // A last word is an alias only if the result names the field like this.
        OpenCase{"Interval", Engine::PostgreSQL, u"select D + interval '1' month from T"_s, u"?column?"_s,
                 "SELECT D + interval '1' month FROM T WHERE (D + interval '1' month) = 1"},
        OpenCase{"TypeOfTwoWords", Engine::PostgreSQL, u"select Q::double precision from T"_s, u"q"_s,
                 "SELECT Q::double precision FROM T WHERE (Q::double precision) = 1"},
        OpenCase{"TypeAndAlias", Engine::PostgreSQL, u"select Q::double precision d from T"_s, u"d"_s,
                 "SELECT Q::double precision d FROM T WHERE (Q::double precision) = 1"},
        OpenCase{"DistinctFrom", Engine::SQLite, u"select N is distinct from 'b' from T"_s,
                 u"N is distinct from 'b'"_s,
                 "SELECT N is distinct from 'b' FROM T WHERE (N is distinct from 'b') = 1"},
        OpenCase{"IntervalUnit", Engine::MySQL, u"select D + interval 1 day from T"_s,
                 u"D + interval 1 day"_s, "SELECT D + interval 1 day FROM T WHERE (D + interval 1 day) = 1"},
        OpenCase{"DateText", Engine::MySQL, u"select date '2024-05-01' from T"_s, u"DATE '2024-05-01'"_s,
                 "SELECT date '2024-05-01' FROM T WHERE (CASE WHEN 1=1 THEN date '2024-05-01' END) = 1"},
        OpenCase{"Binary", Engine::MySQL, u"select binary N from T"_s, u"binary N"_s,
                 "SELECT binary N FROM T WHERE (binary N) = 1"},
        OpenCase{"TextsInARow", Engine::MySQL, u"select 'an' 'n' from T"_s, u"an"_s,
                 "SELECT 'an' 'n' FROM T WHERE (CASE WHEN 1=1 THEN 'an' 'n' END) = 1"},
        OpenCase{"TextAsAlias", Engine::SQLite, u"select A 'n' from T"_s, u"n"_s,
                 "SELECT A 'n' FROM T WHERE A = 1"},
        OpenCase{"ListWord", Engine::MySQL, u"select straight_join T.A, U.B b from T, U"_s, u"A|b"_s,
                 "SELECT straight_join T.A, U.B b FROM T, U WHERE U.B = 1"},
        // A list of several entries in one field.
        OpenCase{"Array", Engine::PostgreSQL, u"select array[A, B] from T"_s, u"array"_s,
                 "SELECT array[A, B] FROM T WHERE (array[A, B]) = 1"},
        OpenCase{"Escape", Engine::PostgreSQL, uR"(select E'it\'s, from x' as e, A as b from T)"_s, u"e|b"_s,
                 R"(SELECT E'it\'s, from x' as e, A as b FROM T WHERE A = 1)"},
        OpenCase{"ArrayAndAlias", Engine::PostgreSQL, u"select array[A, B] a from T"_s, u"a"_s,
                 "SELECT array[A, B] a FROM T WHERE (array[A, B]) = 1"},
        OpenCase{"ConstantWithPrefix", Engine::PostgreSQL, uR"(select A, E'it\'s' as e from T)"_s, u"a|e"_s,
                 R"(SELECT A, E'it\'s' as e FROM T WHERE (CASE WHEN 1=1 THEN E'it\'s' END) = 1)"},
        // Fields that the list can't be matched with.
        OpenCase{"Row", Engine::PostgreSQL, u"select (r).* from T"_s, u"a|b"_s,
                 "SELECT * FROM ( select (r).* from T ) AS Q WHERE b = 1"},
        OpenCase{"Series", Engine::PostgreSQL, u"select generate_series(1, 3) as g from T"_s, u"g"_s,
                 "SELECT * FROM ( select generate_series(1, 3) as g from T ) AS Q WHERE g = 1"},
        OpenCase{"Regression", Engine::PostgreSQL, u"select regr_count(A, B) as r from T"_s, u"r"_s,
                 "SELECT * FROM ( select regr_count(A, B) as r from T ) AS Q WHERE r = 1"},
        OpenCase{"UnknownAggregate", Engine::PostgreSQL, u"select mine(A) filter (where B > 1) as r from T"_s,
                 u"r"_s,
                 "SELECT * FROM ( select mine(A) filter (where B > 1) as r from T ) AS Q WHERE r = 1"},
        OpenCase{"Deviation", Engine::MySQL, u"select std(A) as s from T"_s, u"s"_s,
                 "SELECT * FROM ( select std(A) as s from T ) AS Q WHERE s = 1"},
        OpenCase{"Brackets", Engine::MySQL, u"(select A from T) union (select B from U) order by 1"_s, u"A"_s,
                 "SELECT * FROM ( (select A from T) union (select B from U) ) AS Q WHERE A = 1 ORDER BY A"},
        OpenCase{"AliasFirst", Engine::SqlServer, u"select A, Twice = Q * 2 from T"_s, u"A|Twice"_s,
                 "SELECT A, Twice = Q * 2 FROM T WHERE (Q * 2) = 1"},
        OpenCase{
            "Ties", Engine::SqlServer, u"select top (5) with ties A, B from T order by C desc"_s, u"A|B"_s,
            "SELECT A,B FROM ( select top (5) with ties A, B, C AS SortKey1 from T order by C desc ) AS Q "
            "WHERE B = 1 ORDER BY SortKey1 desc"},
        OpenCase{"FirstRows", Engine::Oracle, u"select A, B from T order by A fetch first 3 rows with ties"_s,
                 u"A|B"_s,
                 "SELECT * FROM ( select A, B from T order by A fetch first 3 rows with ties ) Q WHERE B = 1 "
                 "ORDER BY A"},
        // The sort says which rows are left.
        OpenCase{"Distinct", Engine::PostgreSQL, u"select distinct C, A as b from T where D = 2 order by b"_s,
                 u"c|b"_s, "SELECT distinct C, A as b FROM T where D = 2 AND A = 1 ORDER BY A"},
        OpenCase{"DistinctOn", Engine::PostgreSQL, u"select distinct on (c) c, a from T order by c, b desc"_s,
                 u"c|a"_s,
                 "SELECT * FROM ( select distinct on (c) c, a from T order by c, b desc ) AS Q WHERE a = 1"},
        // What follows the last word must not swallow the condition.
        OpenCase{"NumberSign", Engine::MySQL, u"select A, B from T # all"_s, u"A|B"_s,
                 "SELECT A, B FROM T WHERE B = 1"},
        // Which MySQL compares without the quotes that it shows.
        OpenCase{"JsonExtract", Engine::MySQL, u"select A, json_extract(B, '$.t') as t from T"_s, u"A|t"_s,
                 "SELECT A, json_extract(B, '$.t') as t FROM T WHERE concat(json_extract(B, '$.t')) = 1"},
        OpenCase{"JsonExtractInside", Engine::MySQL,
                 u"select json_unquote(json_extract(B, '$.t')) t from T"_s, u"t"_s,
                 "SELECT json_unquote(json_extract(B, '$.t')) t FROM T WHERE "
                 "json_unquote(json_extract(B, '$.t')) = 1"},
        // Words that MySQL takes at the beginning of a statement only.
        OpenCase{
            "FirstListWord", Engine::MySQL,
            u"select sql_no_cache straight_join A, count(*) as N from T group by A"_s, u"A|N"_s,
            "SELECT * FROM ( select straight_join A, count(*) as N from T group by A ) AS Q WHERE N = 1"},
        OpenCase{
            "FirstListWordInBrackets", Engine::MySQL,
            u"(select /*! sql_cache */ distinct high_priority A from T) union (select A from U)"_s, u"A"_s,
            "SELECT * FROM ( (select /*! */ distinct A from T) union (select A from U) ) AS Q WHERE A = 1"},
        OpenCase{"NoListWord", Engine::PostgreSQL, u"select sql_no_cache, count(*) as n from T group by 1"_s,
                 u"sql_no_cache|n"_s,
                 "SELECT * FROM ( select sql_no_cache, count(*) as n from T group by 1 ) AS Q WHERE n = 1"},
        // Version comments of MySQL: words without effect, and a condition that some versions skip.
        OpenCase{
            "VersionComment", Engine::MySQL,
            u"select /*!40001 sql_no_cache */ /*M!100100 high_priority */ A, B from T where C = 2"_s,
            u"A|B"_s,
            "SELECT /*!40001 sql_no_cache */ /*M!100100 high_priority */ A, B FROM T where C = 2 AND B = 1"},
        OpenCase{"VersionedCondition", Engine::MySQL, u"select A, B from T where C = 2 /*! or D = 1 */"_s,
                 u"A|B"_s,
                 "SELECT * FROM ( select A, B from T where C = 2 /*! or D = 1 */ ) AS Q WHERE B = 1"},
        OpenCase{"VersionedTable", Engine::MySQL,
                 u"select A, B from (select A, B from T where C = 2 /*! or D = 1 */) as Q"_s, u"A|B"_s,
                 "SELECT A, B FROM (select A, B from T where C = 2 /*! or D = 1 */) as Q WHERE B = 1"},
        OpenCase{"VersionedList", Engine::MySQL, u"select /*! distinct */ A, B from T"_s, u"A|B"_s,
                 "SELECT * FROM ( select /*! distinct */ A, B from T ) AS Q WHERE B = 1"},
        OpenCase{"NumberSignInside", Engine::MySQL, u"select A, B from T # where\n where A = 2"_s, u"A|B"_s,
                 "select A, B from T # where where A = 2 AND B = 1"},
        OpenCase{"Dashes", Engine::SQLite, u"select A, B from T --all"_s, u"A|B"_s,
                 "SELECT A, B FROM T WHERE B = 1"},
        OpenCase{"Semicolon", Engine::MySQL, u"select A, B from T where A--1 > 2;"_s, u"A|B"_s,
                 "SELECT A, B FROM T where A--1 > 2 AND B = 1"},
        OpenCase{"OrInText", Engine::MySQL, uR"(select A, B from T where A = 'x\' or y')"_s, u"A|B"_s,
                 R"(select A, B from T where A = 'x\' or y' AND B = 1)"},
        OpenCase{"OrAfterText", Engine::MySQL, uR"(select A, B from T where A = 'x\'' or B = 2)"_s, u"A|B"_s,
                 R"(select A, B from T where (A = 'x\'' or B = 2) AND B = 1)"}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
