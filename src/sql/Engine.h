#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>

// Which database engine a statement is for.
namespace KOVAVSFDataGridLib {

// Other: not known. Standard: known, but none of those that have ways of their own.
enum class Engine { Other, SQLite, Access, SqlServer, Oracle, PostgreSQL, MySQL, Standard };

// By the name that the engine's driver gives it, in any version or edition. MariaDB is MySQL here.
Engine engineNamed(const QString &name);

// What decides how a statement is written and read.
struct Dialect
{
    AllDBType database = dbAccess; // as the host declares it
    bool isOdbc = false;
    // A backslash in a text begins an escape, as MariaDB has it unless it is configured not to.
    bool escapesByBackslash = false;
    Engine engine = Engine::Other;

    // The engine, or where that is not known the one that the declared type names.
    Engine likelyEngine() const;

    bool operator==(const Dialect &) const = default;
};

// As far as the declared type and the engine decide it.
Dialect dialectOf(AllDBType database, Engine engine);

} // namespace KOVAVSFDataGridLib
