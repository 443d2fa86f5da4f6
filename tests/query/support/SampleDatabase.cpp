#include "SampleDatabase.h"

#include "SampleTables.h"

namespace KovaTest {

std::unique_ptr<SqliteRows> sampleDatabase()
{
    auto database = std::make_unique<SqliteRows>();
    database->run(sampleTables);
    return database;
}

KOVAVSFDataGridLib::Derivation derivationOf(const SqliteRows &database, const QString &statement)
{
    using namespace KOVAVSFDataGridLib;
    const Dialect dialect = dialectOf(dbAccess, Engine::SQLite);
    const Derivation derivation(statement, database.fields(statement), dialect);
    StarSizes sizes;
    for (const QString &star : derivation.starsToMeasure())
        sizes.insert(star, std::ssize(database.fields(derivation.statementOfStar(star))));
    for (const QString &alias : derivation.aliasesToTell()) {
        if (database.fields(derivation.statementOfStar(alias)).empty())
            sizes.insert(alias, 0);
    }
    return sizes.isEmpty() ? derivation : Derivation(statement, database.fields(statement), dialect, sizes);
}

std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> SqliteReader::Read(const QString &,
                                                                               const QString &statement)
{
    auto fields = m_database.fields(statement);
    return fields.empty() ? std::nullopt : std::optional(std::move(fields));
}

} // namespace KovaTest
