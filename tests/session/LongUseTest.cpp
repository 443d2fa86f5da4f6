// What a session keeps while it is used for a long time without a load.
#include "SessionFixture.h"

#include "query/clsFilterManagement.h"
#include "session/LoadResult.h"
#include "session/columns/ColumnCommand.h"
#include "session/history/HistorySteps.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/ShownConditions.h"
#include "session/statement/ShownStatement.h"

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

class LongUse : public SessionFixture
{
protected:
    // What each condition in force was built from.
    QStringList builtInForce() const
    {
        QStringList built;
        for (const ConditionInForce &condition : conditionsInForce(*session))
            built.append(condition.built);
        return built;
    }
    void build(const QString &condition, const QString &built)
    {
        user.condition = condition;
        user.built = built;
        session->run(u"Filter"_s);
    }
    void type(const QString &condition) { build(condition, {}); }
    // Different conditions that all records meet; after each one a command runs.
    void buildMany(std::size_t count, const QString &command)
    {
        for (std::size_t i = 0; i < count; ++i) {
            build(u"ID < %1"_s.arg(100 + i), u"ID, less, %1"_s.arg(100 + i));
            session->run(command);
        }
    }
    void choose(const QString &name)
    {
        user.values = ValuesAnswer{.condition = u"Name IN ('%1')"_s.arg(name), .built = name};
        session->runOnColumn(*ColumnCommand::find(u"FilterByColumn"_s), 2);
    }
};

TEST_F(LongUse, AConditionThatIsBuiltAgainIsKeptOnce)
{
    ASSERT_TRUE(load());
    user.condition = u"Price < 3"_s;
    for (const QString &built : {u"Price, less, 3"_s, u"Price, below, 3"_s}) {
        user.built = built;
        session->run(u"Filter"_s);
        ASSERT_EQ(window.rows.size(), 2);
        ASSERT_EQ(conditionsInForce(*session).size(), 1U);
        EXPECT_EQ(conditionsInForce(*session).front().built, built);
        session->run(u"ToOrigin"_s);
    }
    EXPECT_EQ(session->shown().builtConditions().size(), 1U);
}

TEST_F(LongUse, ValuesThatAreChosenAgainAreKeptOnce)
{
    ASSERT_TRUE(load());
    const ColumnCommand &byValues = *ColumnCommand::find(u"FilterByColumn"_s);
    for (const QString &name : {u"Rice"_s, u"Salt"_s, u"Rice"_s, u"Salt"_s}) {
        user.values = ValuesAnswer{.condition = u"Name IN ('%1')"_s.arg(name), .built = name};
        session->runOnColumn(byValues, 2);
        ASSERT_EQ(window.rows.size(), 1);
        ASSERT_EQ(conditionsInForce(*session).size(), 1U);
        EXPECT_EQ(conditionsInForce(*session).front().built, name);
    }
    EXPECT_EQ(session->shown().chosenValues().size(), 2U);
}

TEST_F(LongUse, AConditionThatIsTypedAfterALoadIsTheOneBuiltBeforeIt)
{
    ASSERT_TRUE(load());
    build(u"Price < 3"_s, u"Price, less, 3"_s);
    choose(u"Rice"_s);
    EXPECT_FALSE(load(u"select * from Nowhere"_s));
    EXPECT_EQ(builtInForce(), QStringList({u"Price, less, 3"_s, u"Rice"_s})); // still shown
    ASSERT_TRUE(load());
    EXPECT_TRUE(builtInForce().isEmpty());
    type(u"Price < 3"_s);
    EXPECT_EQ(builtInForce(), QStringList(u"Price, less, 3"_s));
}

TEST_F(LongUse, TheLastConditionsAreKeptAndThoseThatTheUserCanGoBackTo)
{
    ASSERT_TRUE(load());
    session->run(u"FromResult"_s);
    build(u"Price < 3"_s, u"Price, less, 3"_s);
    choose(u"Rice"_s);
    removeCondition(*session, 0); // no more in the latest statement
    ASSERT_EQ(session->history().Count(), 4);
    buildMany(ShownStatement::conditionsKept + 5, u"ToPreview"_s);
    EXPECT_EQ(session->shown().builtConditions().size(), ShownStatement::conditionsKept);
    EXPECT_EQ(builtInForce(), QStringList(u"Rice"_s));
    session->run(u"ToPreview"_s);
    EXPECT_EQ(builtInForce(), QStringList({u"Price, less, 3"_s, u"Rice"_s}));
    // What is ahead can be gone to, too.
    session->run(u"ToOrigin"_s);
    const QString oldest = session->shown().builtConditions().at(1).condition;
    session->shown().noteBuilt({u"ID < 1"_s, u"another"_s});
    EXPECT_EQ(session->shown().builtConditions().front().condition, u"Price < 3"_s);
    EXPECT_NE(session->shown().builtConditions().at(1).condition, oldest);
    session->run(u"FromResult"_s);
    type(u"ID > 1"_s); // from the first statement: nothing is ahead any more
    session->shown().noteBuilt({u"ID < 2"_s, u"another"_s});
    EXPECT_NE(session->shown().builtConditions().front().condition, u"Price < 3"_s);
    EXPECT_EQ(session->shown().builtConditions().size(), ShownStatement::conditionsKept);
}

TEST_F(LongUse, TheFieldsOfTheLastStatementsAreKept)
{
    ASSERT_TRUE(load());
    buildMany(ConnectionFieldReader::statementsKept + 5, u"ToOrigin"_s);
    EXPECT_EQ(session->fieldReader().countKnown(), ConnectionFieldReader::statementsKept);
}

TEST_F(LongUse, TheHistoryKeepsItsFirstStatementAndTheLastOnes)
{
    ASSERT_TRUE(load());
    for (qsizetype i = 0; i < ShownStatement::statementsKept + 5; ++i) {
        user.sort = i % 2 == 0 ? u"Name"_s : u"Price"_s;
        session->run(u"Sort"_s);
    }
    ASSERT_EQ(session->history().Count(), ShownStatement::statementsKept);
    EXPECT_EQ(session->history().Item(1)->ShowSQL, u"select * from T"_s);
    const QString shown = statement();
    session->run(u"ToPreview"_s);
    session->run(u"ToPreview"_s);
    EXPECT_EQ(statement(), shown);
    goForward(*session, 2);
    EXPECT_EQ(session->history().Count(), ShownStatement::statementsKept);
    session->run(u"ToOrigin"_s);
    EXPECT_EQ(window.rows.front(), u"1 Tea 3.5"_s);
    EXPECT_TRUE(user.messages.isEmpty());
}
