// Results that are not what anybody expects, on every engine.
#include "EngineJourney.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class EngineResults : public EngineTest
{
protected:
    void SetUp() override
    {
        EngineTest::SetUp();
        if (!IsSkipped())
            database->run({drop, u"CREATE TABLE journey_results (id INTEGER, a VARCHAR(20))"_s,
                           u"INSERT INTO journey_results VALUES (9,'x'),(10,'y')"_s});
    }
    bool load(const QString &statement = u"SELECT * FROM journey_results"_s)
    {
        return hands->load(statement, {});
    }
    void sortById()
    {
        WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}); }});
        hands->click(u"Sort"_s);
    }
    void expectAsLoaded() const
    {
        EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"a"_s}));
        EXPECT_EQ(hands->texts(u"id"_s), QStringList({u"9"_s, u"10"_s}));
        EXPECT_EQ(hands->texts(u"a"_s), QStringList({u"x"_s, u"y"_s}));
    }

    const QString drop = u"DROP TABLE IF EXISTS journey_results"_s;
};

KOVA_ON_ALL_ENGINES(EngineResults);

} // namespace

TEST_P(EngineResults, ATableThatWasDroppedEndsTheCommandOnly)
{
    ASSERT_TRUE(load());
    database->run({drop});
    sortById();
    ASSERT_EQ(hands->messages.texts().size(), 1);
    EXPECT_TRUE(hands->messages.texts().first().contains(u"journey_results"))
        << qUtf8Printable(hands->messages.texts().first());
    expectAsLoaded();
}

// PostgreSQL's names can differ in case only.
TEST_P(EngineResults, FieldsWhoseNamesDifferInCaseAreFilteredEach)
{
    if (!QByteArray(engine.name).startsWith("PostgreSQL"))
        GTEST_SKIP() << "its names can't";
    database->run({u"DROP TABLE IF EXISTS \"Journey_Mixed\""_s,
                   u"CREATE TABLE \"Journey_Mixed\" (id INTEGER, \"Name\" VARCHAR(9), name VARCHAR(9))"_s,
                   u"INSERT INTO \"Journey_Mixed\" VALUES (1,'a','b'),(2,'b','a'),(3,'c','a')"_s});
    const std::pair<QString, QStringList> found[] = {{u"Name"_s, {u"1"_s}}, {u"name"_s, {u"2"_s, u"3"_s}}};
    for (const QString &statement :
         {u"SELECT * FROM \"Journey_Mixed\""_s, u"SELECT m.id, m.* FROM \"Journey_Mixed\" m"_s}) {
        for (const auto &[field, ids] : found) {
            ASSERT_TRUE(load(statement));
            WindowAnswers dialogs({[&](QDialog &dialog) { buildFilter(dialog, field, u"等于"_s, u"a"_s); }});
            hands->click(u"Filter"_s);
            EXPECT_EQ(hands->messages.texts(), QStringList()) << qPrintable(statement + field);
            EXPECT_EQ(hands->texts(u"id"_s), ids) << qPrintable(statement + field);
        }
    }
    database->run({u"DROP TABLE \"Journey_Mixed\""_s});
}

TEST_P(EngineResults, AFieldWhoseTypeWasChangedIsReadAsItIs)
{
    ASSERT_TRUE(load());
    database->run({drop, u"CREATE TABLE journey_results (id VARCHAR(20), a VARCHAR(20))"_s,
                   u"INSERT INTO journey_results VALUES ('9','x'),('10','y')"_s});
    sortById();
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(hands->texts(u"id"_s), QStringList({u"10"_s, u"9"_s})) << "sorted as the texts that they are";
}

TEST_P(EngineResults, FieldsOfTheSameNameStayApart)
{
    ASSERT_TRUE(load(u"SELECT id, a AS id, a AS id FROM journey_results ORDER BY 1"_s));
    EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"id"_s, u"id"_s}));
    EXPECT_EQ(hands->grid.CellText(1, 1), u"9"_s);
    EXPECT_EQ(hands->grid.CellText(1, 3), u"x"_s);
}

TEST_P(EngineResults, SixteenHundredColumnsAreShown)
{
    QStringList columns;
    for (int i = 1; i <= 1600; ++i)
        columns += u"id + %1 AS c%1"_s.arg(i);
    ASSERT_TRUE(load(u"SELECT "_s + columns.join(u',') + u" FROM journey_results ORDER BY id"_s))
        << qUtf8Printable(hands->messages.texts().join(u'|').left(500));
    EXPECT_EQ(hands->columns().size(), 1600);
    EXPECT_EQ(hands->grid.CellText(2, 1600), u"1610"_s);
}

TEST_P(EngineResults, AResultWithoutColumnsIsRefused)
{
    if (!QByteArray(engine.name).startsWith("PostgreSQL"))
        GTEST_SKIP() << engine.name << " has no such results";
    ASSERT_TRUE(load());
    database->run({drop, u"CREATE TABLE journey_results ()"_s});
    hands->grid.PutSQLShow(u"SELECT * FROM journey_results"_s);
    EXPECT_FALSE(hands->grid.IsLoadData());
    ASSERT_EQ(hands->messages.texts().size(), 2) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_TRUE(hands->messages.texts().first().contains(u"只能打开返回记录的查询语句"))
        << qUtf8Printable(hands->messages.texts().first());
    expectAsLoaded();
}

// Where texts are kept as they come; the servers refuse such bytes.
TEST_P(EngineResults, AValueThatDoesNotDecodeSpoilsNoOther)
{
    if (engine.store != JourneyEngine::SqliteFile)
        GTEST_SKIP() << engine.name << " keeps no such values in these tables";
    database->run({u"UPDATE journey_results SET a = CAST(x'636166e9' AS TEXT) WHERE id = 9"_s});
    ASSERT_TRUE(load());
    // Its ODBC driver guesses.
    const QString first = engine.variable ? u"café"_s : u"caf\uFFFD"_s;
    EXPECT_EQ(hands->texts(u"a"_s), QStringList({first, u"y"_s}));
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}
