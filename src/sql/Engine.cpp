#include "sql/Engine.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

Engine engineNamed(const QString &name)
{
    struct Known
    {
        QLatin1StringView part;
        Engine engine;
    };
    static constexpr Known known[] = {
        {"SQLite"_L1, Engine::SQLite}, {"PostgreSQL"_L1, Engine::PostgreSQL}, {"MySQL"_L1, Engine::MySQL},
        {"MariaDB"_L1, Engine::MySQL}, {"SQL Server"_L1, Engine::SqlServer},  {"Oracle"_L1, Engine::Oracle},
        {"Access"_L1, Engine::Access},
    };
    for (const Known &candidate : known) {
        if (name.contains(candidate.part, Qt::CaseInsensitive))
            return candidate.engine;
    }
    return name.isEmpty() ? Engine::Other : Engine::Standard;
}

bool hasUntypedFields(Engine engine)
{
    return engine == Engine::SQLite;
}

bool readsUnknownNamesAsTexts(Engine engine)
{
    return engine == Engine::SQLite;
}

bool readsItsOwnSqlOverOdbc(Engine engine)
{
    return engine == Engine::SQLite;
}

Engine Dialect::likelyEngine() const
{
    if (engine != Engine::Other)
        return engine;
    switch (database) {
    case dbAccess:
        return Engine::Access;
    case dbOracle:
        return Engine::Oracle;
    case dbSQLServer:
        return Engine::SqlServer;
    }
    return Engine::Standard;
}

Dialect dialectOf(AllDBType database, const EngineMode &mode)
{
    return {.database = database,
            .isOdbc = mode.isKnown() && mode.engine != Engine::SQLite,
            .escapesByBackslash = mode.escapesByBackslash(),
            .engine = mode.engine,
            .ansiQuotes = mode.quoting.ansiQuotes};
}

} // namespace KOVAVSFDataGridLib
