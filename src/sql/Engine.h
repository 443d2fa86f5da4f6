#pragma once

#include "sql/AllDBType.h"
#include "sql/SqlQuoting.h"

#include <QtCore/QString>

// The database engine that a statement is written for.
namespace KOVAVSFDataGridLib {

// Other: unknown. Standard: known, but without special handling.
enum class Engine { Other, SQLite, Access, SqlServer, Oracle, PostgreSQL, MySQL, Standard };

// By the name that the driver reports, for any version or edition. MariaDB is MySQL here.
Engine engineNamed(const QString &name);

// Whether a field can contain values of other types than its declared one.
bool hasUntypedFields(Engine engine);

// Whether a name in double quotes is read as a string if there is no such field.
bool readsUnknownNamesAsTexts(Engine engine);

// Whether its ODBC driver accepts the statements that the database itself accepts.
bool readsItsOwnSqlOverOdbc(Engine engine);

// An engine, and how the session's settings affect the way it reads statements; by default its usual way.
struct EngineMode
{
    Engine engine = Engine::Other;
    SqlQuoting quoting = {};

    EngineMode() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): an engine alone is one in its usual mode.
    EngineMode(Engine name, const SqlQuoting &reading = {}) : engine(name), quoting(reading) {}

    // Whether a backslash in a string begins an escape, as in MariaDB unless configured otherwise.
    bool escapesByBackslash() const { return engine == Engine::MySQL && quoting.backslashEscapes; }
    bool isKnown() const { return engine != Engine::Other; }
    // Whether the engine's name determines the meaning of a backslash.
    bool tellsOfBackslashes() const { return engine != Engine::Standard; }
};

// Everything that determines how statements are written and read.
struct Dialect
{
    AllDBType database = dbAccess; // as declared by the host
    bool isOdbc = false;
    bool escapesByBackslash = false; // see EngineMode
    Engine engine = Engine::Other;
    bool ansiQuotes = false; // "…" is a name, for an engine that usually reads it as a string

    bool isKnown() const { return engine != Engine::Other; }
    // The engine or, if unknown, the one that the declared type suggests.
    Engine likelyEngine() const;

    bool operator==(const Dialect &) const = default;
};

// What follows from the declared type and the engine.
Dialect dialectOf(AllDBType database, const EngineMode &mode);

} // namespace KOVAVSFDataGridLib
