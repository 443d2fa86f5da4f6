#include "SampleDatabase.h"

#include "SampleTables.h"

namespace KovaTest {

std::unique_ptr<SqliteRows> sampleDatabase()
{
    auto database = std::make_unique<SqliteRows>();
    database->run(sampleTables);
    return database;
}

std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> SqliteReader::Read(const QString &,
                                                                               const QString &statement)
{
    auto fields = m_database.fields(statement);
    return fields.empty() ? std::nullopt : std::optional(std::move(fields));
}

} // namespace KovaTest
