#pragma once

#include "SqliteRows.h"
#include "query/derivation/Derivation.h"

#include <memory>

namespace KovaTest {

// The tables that the statements of statements.cases select from.
std::unique_ptr<SqliteRows> sampleDatabase();

// What the control would derive from the statement.
KOVAVSFDataGridLib::Derivation derivationOf(const SqliteRows &database, const QString &statement);

// Reads fields as the control's own reader does.
class SqliteReader final : public KOVAVSFDataGridLib::FieldReader
{
public:
    explicit SqliteReader(const SqliteRows &database) : m_database(database) {}

    bool Open(const QString &connectionString) override { return !connectionString.isEmpty(); }
    std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> Read(const QString &connectionString,
                                                                     const QString &statement) override;
    KOVAVSFDataGridLib::EngineMode engineOf(const QString &) override
    {
        return KOVAVSFDataGridLib::Engine::SQLite;
    }

private:
    const SqliteRows &m_database;
};

} // namespace KovaTest
