#pragma once

#include <QtCore/qglobal.h>

namespace KOVAVSFDataGridLib {

// The database types that a host can declare. Any other number can be stored; it means an unknown database.
enum AllDBType : qint32 { dbAccess = 1, dbOracle = 2, dbSQLServer = 3 };

// What depends only on the declared type, whatever the engine turns out to be.

// Whether it is one of these.
constexpr bool isDeclared(AllDBType database)
{
    return database == dbAccess || database == dbOracle || database == dbSQLServer;
}

// Whether names in field lists and in the quick filter are written in brackets.
constexpr bool writesBrackets(AllDBType database)
{
    return database == dbAccess;
}

// Whether names in brackets are understood; otherwise they must be in quotes.
constexpr bool readsBrackets(AllDBType database)
{
    return database != dbOracle;
}

// Whether the quick filter searches only fields whose type is known to be a number, a text or a date.
constexpr bool searchesByType(AllDBType database)
{
    return database == dbAccess;
}

// Whether a table's name can begin with its owner's name.
constexpr bool namesOwners(AllDBType database)
{
    return database == dbOracle;
}

// Whether a load lists all fields instead of `*`.
constexpr bool spellsOutStar(AllDBType database)
{
    return database == dbOracle;
}

} // namespace KOVAVSFDataGridLib
