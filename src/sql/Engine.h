#pragma once

#include "sql/AllDBType.h"
#include "sql/SqlQuoting.h"

#include <QtCore/QString>

// Which database engine a statement is for.
namespace KOVAVSFDataGridLib {

// Other: not known. Standard: known, but none of those that have ways of their own.
enum class Engine { Other, SQLite, Access, SqlServer, Oracle, PostgreSQL, MySQL, Standard };

// By the name that the engine's driver gives it, in any version or edition. MariaDB is MySQL here.
Engine engineNamed(const QString &name);

// Whether a field can hold values of other types than the one that it was declared with.
bool hasUntypedFields(Engine engine);

// Whether a name in double quotes that no field has is read as a text.
bool readsUnknownNamesAsTexts(Engine engine);

// Whether its ODBC driver takes the statements that the database itself takes.
bool readsItsOwnSqlOverOdbc(Engine engine);

// An engine and how a session's settings have it read statements; an engine alone reads as it usually does.
struct EngineMode
{
    Engine engine = Engine::Other;
    SqlQuoting quoting = {};

    EngineMode() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): an engine is one in its usual mode.
    EngineMode(Engine name, const SqlQuoting &reading = {}) : engine(name), quoting(reading) {}

    // A backslash in a text begins an escape, as MariaDB has it unless it is configured not to.
    bool escapesByBackslash() const { return engine == Engine::MySQL && quoting.backslashEscapes; }
    bool isKnown() const { return engine != Engine::Other; }
    // Whether the engine's name says what a backslash means to it.
    bool tellsOfBackslashes() const { return engine != Engine::Standard; }
};

// What decides how a statement is written and read.
struct Dialect
{
    AllDBType database = dbAccess; // as the host declares it
    bool isOdbc = false;
    bool escapesByBackslash = false; // see EngineMode
    Engine engine = Engine::Other;
    bool ansiQuotes = false; // "…" is a name to an engine that usually takes it for a text

    bool isKnown() const { return engine != Engine::Other; }
    // The engine, or where that is not known the one that the declared type names.
    Engine likelyEngine() const;

    bool operator==(const Dialect &) const = default;
};

// As far as the declared type and the engine decide it.
Dialect dialectOf(AllDBType database, const EngineMode &mode);

} // namespace KOVAVSFDataGridLib
