#pragma once

#include "EngineJourney.h"

#include "query/support/CaseFile.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>

#include <functional>
#include <optional>
#include <vector>

namespace KovaTest {

// What a statement shows: the fields' names and the rows' texts.
struct StatementAnswer
{
    QStringList names;
    std::vector<QStringList> rows;
};

// A statement that the engine accepts.
struct TakenCase
{
    const Case &c;
    std::size_t number; // among all cases
    QString statement;
    StatementAnswer all;
};

// A user with the tables of statements.cases, on an engine that accepts some of the statements.
class EngineStatements : public EngineTest
{
protected:
    void SetUp() override;
    void createTables();
    // With their first records. After a change this is enough, and cheaper than to create the tables again.
    void fillTables();

    // Those of the files, and some for the engine's own quotes.
    std::vector<Case> cases() const;
    QStringList oddNames() const;
    // Calls `use` for the cases that the engine accepts, until a fatal failure; returns their number.
    int forEachTaken(const std::function<void(const TakenCase &)> &use);
    // Runs the commands whose turn it is after this statement. An engine that is tried in one way has all of
    // them. The modes of MariaDB share them, so that together they run each command after each statement: all
    // commands in all modes would take minutes. Through SQLite's ODBC driver half of them are run, because
    // SQLite itself has them all.
    void runShare(const TakenCase &taken, const std::vector<std::function<void()>> &commands) const;
    // The engine's own result; no value if it rejects the statement.
    std::optional<StatementAnswer> read(const QString &statement) const;
    // At most so many rows.
    static StatementAnswer shownBy(const QTableView &table, int mostRows);
    StatementAnswer shown() const { return shownBy(*hands->table, hands->rows()); }
    // The rows in any order, and that no message was shown; it is taken away.
    void expectShown(StatementAnswer expected, const char *after) const;
    void back(const StatementAnswer &all);

    // Keeps the rows with the text of this row in this column. SQLite's ODBC driver writes an expression's
    // equal numbers as 9 and as 9.0.
    StatementAnswer sameText(const StatementAnswer &all, qsizetype column, const QString &text) const;
    // Whether the engine's LIKE is case-sensitive for these tables.
    Qt::CaseSensitivity letters() const;
    // Whether a condition can name the column alone.
    static bool isOnlyOne(const StatementAnswer &all, qsizetype column);

    // Whether the command can be used; one that can't says why.
    bool canUse(const QString &key);
    // Whether this item of the popup menu can be chosen; one that can't says why.
    bool canChoose(int item);
    bool canAdd() { return canChoose(8); }
    // Whether records can be deleted; if not, no question is asked.
    bool canDelete() { return canChoose(9); }
    int recordsInTables();

    std::shared_ptr<ADODB::Connection> connection;
    QStringList leftOut; // the places of the cases that the engine rejects
};

const std::vector<JourneyEngine> &enginesOfStatements();

} // namespace KovaTest

#define KOVA_ON_ENGINES_OF_STATEMENTS(suite)                                                                 \
    INSTANTIATE_TEST_SUITE_P(Engines, suite, testing::ValuesIn(KovaTest::enginesOfStatements()),             \
                             [](const auto &engine) { return std::string(engine.param.name); })
