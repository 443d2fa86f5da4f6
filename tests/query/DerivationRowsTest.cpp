// A statement derived from any SELECT returns the rows of a loop over the SELECT's own rows, in their order.
#include "query/derivation/Derivation.h"

#include "CaseFile.h"
#include "SampleDatabase.h"
#include "sql/Literals.h"
#include "sql/Names.h"
#include "sql/StatementLines.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class DerivationRows : public testing::Test
{
protected:
    static void SetUpTestSuite() { database = sampleDatabase(); }
    static void TearDownTestSuite() { database.reset(); }

    static Rows rowsOf(const QString &statement)
    {
        Rows rows = database->read(statement);
        EXPECT_EQ(rows.error, QString()) << qPrintable(statement);
        return rows;
    }
    static Derivation derivationOf(const QString &statement)
    {
        return KovaTest::derivationOf(*database, statement);
    }

    static std::unique_ptr<SqliteRows> database;
};

std::unique_ptr<SqliteRows> DerivationRows::database;

bool isOrdered(const QString &statement)
{
    const SqlScanner sql(statement);
    return !SelectParts::of(sql).order.isEmpty();
}

void expectRows(Rows actual, Rows expected, bool ordered, const QString &statement)
{
    if (!ordered) {
        std::sort(actual.rows.begin(), actual.rows.end());
        std::sort(expected.rows.begin(), expected.rows.end());
    }
    EXPECT_EQ(actual.names, expected.names) << qPrintable(statement);
    EXPECT_TRUE(actual.rows == expected.rows) << qPrintable(statement) << "\n"
                                              << qPrintable(actual.text()) << "instead of\n"
                                              << qPrintable(expected.text());
}

// `condition` of the field at `column` for the value of a row.
QString equals(const QString &written, const QString &literal)
{
    return literal == u"NULL" ? written + u" IS NULL"_s : written + u" = "_s + literal;
}

Rows filtered(Rows rows, int column, const QString &literal)
{
    std::erase_if(rows.rows, [&](const Row &row) { return row.at(column) != literal; });
    return rows;
}

Rows projected(const Rows &rows, const QList<int> &columns, bool distinct)
{
    Rows chosen;
    for (const int column : columns)
        chosen.names.append(rows.names.at(column));
    for (const Row &row : rows.rows) {
        Row part;
        for (const int column : columns)
            part.append(row.at(column));
        if (!distinct || std::find(chosen.rows.begin(), chosen.rows.end(), part) == chosen.rows.end())
            chosen.rows.push_back(part);
    }
    return chosen;
}

} // namespace

TEST_F(DerivationRows, AStatementsKindIsReported)
{
    int count = 0;
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const Derivation derivation = derivationOf(joinStatementLines(c[u"statement"_s]));
        EXPECT_EQ(derivation.isSimple(), c[u"kind"_s] == u"simple");
        for (const auto step : {DerivationStep::Condition, DerivationStep::Sort, DerivationStep::Fields})
            EXPECT_EQ(derivation.whyNot(step), QString());
        // A closed one is a table of what is derived from it.
        EXPECT_EQ(derivation.source().startsWith(u'(') && derivation.source().endsWith(u"AS Q"),
                  c[u"kind"_s] == u"closed");
        ++count;
    }
    EXPECT_GE(count, 85);
}

TEST_F(DerivationRows, AConditionKeepsTheRowsThatMeetIt)
{
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = joinStatementLines(c[u"statement"_s]);
        const Rows all = rowsOf(statement);
        const Derivation derivation = derivationOf(statement);
        ASSERT_EQ(derivation.written().size(), all.names.size());
        for (int column = 0; column < all.names.size(); ++column) {
            if (derivation.written().at(column).isEmpty())
                continue;
            for (const Row &row : all.rows) {
                const QString literal = row.at(column);
                const QString condition = equals(derivation.written().at(column), literal);
                const QString once = derivation.withCondition(condition);
                expectRows(rowsOf(once), filtered(all, column, literal), isOrdered(statement), once);
                // A second one narrows the first, whichever statement it is derived from.
                const Derivation again = derivationOf(once);
                const QString other = equals(again.written().at(0), row.at(0));
                const QString twice = again.withCondition(other + u" OR 1=0"_s);
                expectRows(rowsOf(twice), filtered(filtered(all, column, literal), 0, row.at(0)),
                           isOrdered(statement), twice);
            }
        }
    }
}

TEST_F(DerivationRows, ASortOrdersTheSameRows)
{
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = joinStatementLines(c[u"statement"_s]);
        const Rows all = rowsOf(statement);
        const Derivation derivation = derivationOf(statement);
        for (int column = 0; column < all.names.size(); ++column) {
            if (derivation.written().at(column).isEmpty())
                continue;
            const QString sorted = derivation.withSort(derivation.written().at(column) + u" DESC"_s);
            const Rows actual = rowsOf(sorted);
            expectRows(actual, all, false, sorted);
            for (std::size_t row = 1; row < actual.rows.size(); ++row)
                EXPECT_FALSE(database->isLess(actual.rows[row - 1].at(column), actual.rows[row].at(column)))
                    << qPrintable(sorted);
        }
        expectRows(rowsOf(derivation.withSort({})), all, false, derivation.withSort({}));
    }
}

TEST_F(DerivationRows, ChosenFieldsAreTheSameRowsWithFewerColumns)
{
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = joinStatementLines(c[u"statement"_s]);
        const Rows all = rowsOf(statement);
        const Derivation derivation = derivationOf(statement);
        const bool distinct = SelectParts::of(SqlScanner(statement)).isDistinct;
        const int last = static_cast<int>(all.names.size()) - 1;
        for (int column = 0; column <= last; ++column) {
            for (const QList<int> &columns : {QList<int>{column}, QList<int>{last, column}}) {
                QStringList entries;
                for (const int chosen : columns)
                    entries.append(derivation.listed().at(chosen));
                if (entries.contains(QString()) || (columns.size() == 2 && column == last))
                    continue;
                const QString chosen = derivation.withFields(entries);
                const bool ordered = isOrdered(statement) && !(distinct && columns.size() < all.names.size());
                const Rows expected = projected(all, columns, distinct);
                expectRows(rowsOf(chosen), expected, ordered, chosen);
                // All fields again, and a condition on what was chosen.
                const Derivation part = derivationOf(chosen);
                const QString whole = part.withFieldsOf(derivation);
                if (!distinct)
                    expectRows(rowsOf(whole), all, isOrdered(statement), whole);
                for (const Row &row : expected.rows) {
                    const QString narrowed = part.withCondition(equals(part.written().at(0), row.at(0)));
                    expectRows(rowsOf(narrowed), filtered(expected, 0, row.at(0)), ordered, narrowed);
                }
            }
        }
    }
}

TEST_F(DerivationRows, WithoutConditionsGroupingStays)
{
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = joinStatementLines(c[u"statement"_s]);
        const QString whole = derivationOf(statement).withoutConditions();
        const QString expected = c.Has(u"whole"_s) ? c[u"whole"_s] : QString();
        if (!expected.isEmpty()) {
            Rows rows = rowsOf(expected);
            rows.names = rowsOf(statement).names;
            expectRows(rowsOf(whole), rows, false, whole);
        }
    }
}
