#pragma once

#include "EngineJourney.h"

#include "query/support/CaseFile.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>

#include <optional>
#include <vector>

namespace KovaTest {

// What a statement shows: the fields' names and the rows' texts.
struct StatementAnswer
{
    QStringList names;
    std::vector<QStringList> rows;
};

// A user before the tables of statements.cases, on an engine that may take a statement or not.
class EngineStatements : public EngineTest
{
protected:
    void SetUp() override;
    void createTables();

    // Those of the files, and some for the engine's own quotes.
    std::vector<Case> cases() const;
    QStringList oddNames() const;
    // What the engine itself answers; nothing where it doesn't take the statement.
    std::optional<StatementAnswer> read(const QString &statement) const;
    // At most so many rows.
    static StatementAnswer shownBy(const QTableView &table, int mostRows);
    StatementAnswer shown() const { return shownBy(*hands->table, hands->rows()); }
    // The rows in any order, and that no message was shown; it is taken away.
    void expectShown(StatementAnswer expected, const char *after) const;
    void back(const StatementAnswer &all);

    // Keeps the rows with the text of this row in this column.
    static StatementAnswer sameText(const StatementAnswer &all, qsizetype column, const QString &text);
    // How the engine's LIKE takes letters of these tables.
    Qt::CaseSensitivity letters() const;
    // Whether a condition can name the column alone.
    static bool isOnlyOne(const StatementAnswer &all, qsizetype column);

    // Whether the command can be used; one that can't says why.
    bool canUse(const QString &key);
    // Whether records can be deleted; where they can't, nobody is asked.
    bool canDelete();
    int recordsInTables();

    std::shared_ptr<ADODB::Connection> connection;
};

const std::vector<JourneyEngine> &enginesOfStatements();

} // namespace KovaTest

#define KOVA_ON_ENGINES_OF_STATEMENTS(suite)                                                                 \
    INSTANTIATE_TEST_SUITE_P(Engines, suite, testing::ValuesIn(KovaTest::enginesOfStatements()),             \
                             [](const auto &engine) { return std::string(engine.param.name); })
