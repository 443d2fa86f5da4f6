#pragma once

#include <QtCore/qglobal.h>

namespace KOVAVSFDataGridLib {

// The databases whose SQL differs. Any other number can be stored; it means an unknown database.
enum AllDBType : qint32 { dbAccess = 1, dbOracle = 2, dbSQLServer = 3 };

// What the type that a host declares decides on its own, whatever the engine turns out to be.

// Whether it is one of these.
constexpr bool isDeclared(AllDBType database)
{
    return database == dbAccess || database == dbOracle || database == dbSQLServer;
}

// Field lists put each name in brackets, and the quick filter's names have them too.
constexpr bool writesBrackets(AllDBType database)
{
    return database == dbAccess;
}

// A name in brackets is read; else it is to be written in quotes.
constexpr bool readsBrackets(AllDBType database)
{
    return database != dbOracle;
}

// The quick filter searches the fields whose type is known to be a number, a text or a date.
constexpr bool searchesByType(AllDBType database)
{
    return database == dbAccess;
}

// A table's name can begin with its owner's.
constexpr bool namesOwners(AllDBType database)
{
    return database == dbOracle;
}

// A load names all fields instead of `*`.
constexpr bool spellsOutStar(AllDBType database)
{
    return database == dbOracle;
}

} // namespace KOVAVSFDataGridLib
