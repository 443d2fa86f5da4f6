#include "query/derivation/Derivation.h"
#include "query/derivation/SqlText.h"
#include "query/fields/FieldNames.h"
#include "sql/Names.h"
#include "sql/StatementLines.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// Statements glued from pieces that matter, well-formed or not.
class StatementMaker
{
public:
    QString operator()()
    {
        static const std::array<QString, 20> pieces{
            u"select "_s,    u" from "_s,     u" FROM "_s, u" where "_s, u" Where "_s,
            u" order by "_s, u" ORDER BY "_s, u"T"_s,      u"[A B]"_s,   u"\"x\""_s,
            u"'y'"_s,        u","_s,          u" "_s,      u"\n"_s,      u"ß"_s,
            u"İ"_s,          u"客户"_s,       u"."_s,      u"["_s,       u"where"_s};
        QString statement;
        for (auto count = m_random() % 12; count > 0; --count)
            statement += pieces.at(m_random() % pieces.size());
        return statement;
    }

private:
    std::mt19937 m_random{20240517};
};

} // namespace

TEST(SqlTextProperties, SplittingThenJoiningLosesNothing)
{
    StatementMaker make;
    for (int i = 0; i < 20000; ++i) {
        const QString statement = make();
        const auto sentence = SplitSQLSentence(statement);
        ASSERT_EQ(sentence.has_value(), !statement.isEmpty());
        if (!sentence)
            continue;
        ASSERT_EQ(sentence->fields + sentence->where + sentence->order, statement);
        ASSERT_EQ(joinSQLSentence(*sentence),
                  sentence->fields + u' ' + sentence->where + u' ' + sentence->order);
    }
}

TEST(SqlTextProperties, SplittingAWholeAgainGivesTheSameConditionAndSort)
{
    StatementMaker make;
    for (int i = 0; i < 20000; ++i) {
        // A keyword at the very end becomes one only through the blank that joining adds after it.
        const QString statement = make() + u' ';
        const auto sentence = SplitSQLSentence(statement);
        // A sort in front of the condition holds the word WHERE itself, so it can't be told apart again.
        if (!sentence || sentence->order.contains(u" where "_s, Qt::CaseInsensitive))
            continue;
        const auto again = SplitSQLSentence(joinSQLSentence(*sentence));
        ASSERT_TRUE(again);
        ASSERT_EQ(again->where.trimmed(), sentence->where.trimmed()) << statement.toStdString();
        ASSERT_EQ(again->order.trimmed(), sentence->order.trimmed()) << statement.toStdString();
    }
}

TEST(SqlTextProperties, AppendingASortTwiceIsAppendingItOnce)
{
    StatementMaker make;
    for (int i = 0; i < 20000; ++i) {
        const QString sorted = AppendOrderWord(make(), u"A"_s);
        ASSERT_EQ(AppendOrderWord(sorted, u"B"_s), sorted);
    }
}

TEST(SqlTextProperties, JoiningLinesTwiceIsJoiningThemOnce)
{
    StatementMaker make;
    for (int i = 0; i < 20000; ++i) {
        const QString joined = joinStatementLines(make());
        ASSERT_EQ(joinStatementLines(joined), joined);
    }
}

TEST(SqlTextProperties, NameRoutinesTakeAnyText)
{
    StatementMaker make;
    for (int i = 0; i < 20000; ++i) {
        const QString text = make();
        ASSERT_LE(shortFieldName(text).size(), text.size());
        ASSERT_LE(lastNamePart(text).size(), text.size());
        for (const AllDBType database : {dbAccess, dbOracle, dbSQLServer})
            ASSERT_GE(writtenName(dialectOf(database, Engine::Other), text).size(), text.size());
        for (const QString &written : writtenFields(text))
            ASSERT_FALSE(written.contains(u','));
    }
}

TEST(SqlTextProperties, DerivationsTakeAnyText)
{
    StatementMaker make;
    for (int i = 0; i < 5000; ++i) {
        const QString text = make();
        for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL, Engine::MySQL, Engine::SqlServer}) {
            const Derivation derivation(text, {{u"A"_s, 3}, {u"B"_s, 202}}, dialectOf(dbOracle, engine));
            ASSERT_EQ(derivation.written().size(), 2);
            ASSERT_EQ(derivation.listed().size(), 2);
            derivation.withSort(u"A"_s);
            derivation.withFields(derivation.listed());
            derivation.withoutConditions();
            const QString filtered = derivation.withCondition(u"A = 1"_s);
            ASSERT_TRUE(filtered.isEmpty() || filtered.contains(u"A = 1"_s));
            Derivation(filtered, {}, dialectOf(dbOracle, engine)).withFieldsOf(derivation);
        }
    }
}

TEST(SqlTextProperties, ListsAreCutWhereTheyAreJoined)
{
    EXPECT_EQ(splitList(u" a, f(b, c) ,[d,e] , 'f,g' desc,, "_s),
              (QStringList{u"a"_s, u"f(b, c)"_s, u"[d,e]"_s, u"'f,g' desc"_s}));
    EXPECT_TRUE(splitList({}).isEmpty());
}
