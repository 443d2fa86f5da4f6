#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <iosfwd>
#include <vector>

namespace KovaTest {

// One way to reach one engine, and how that engine writes what a journey needs.
struct JourneyEngine
{
    const char *name;     // also the tests' parameter
    const char *variable; // of the environment, with the connection string; null: a file of SQLite's own
    qint32 dbType;        // AllDBType
    enum Store {
        Server,
        SqliteFile, // created again for each journey
        AccessFile  // the same, as a copy of a SQLite file; it can only be read
    } store;
    char16_t quote; // around a name in a statement that creates a table
    const char
        *unitPrice; // a field's name: with a blank where the database type's quotes mean something here
    const char *longText;
    const char *binary;
    const char *binaryLiteral; // %1 are hexadecimal digits
    const char *moment;
    const char *digits; // the longest decimal
    const char *yes;    // what a user types for a Boolean that is true
    // Over which other databases its tables are spread, by their key id.
    enum Spread { Nowhere, ForeignTables, Spider } spread = Nowhere;
    // The connection string of a SqliteFile, with %1 for the path. Null: the variable's, or Provider=SQLite.
    const char *fileConnection = nullptr;

    bool isThere() const;
    bool isWritable() const { return store != AccessFile; }
    bool isSpread() const { return spread != Nowhere; }
    // Whether SQLite runs the statements that fill the tables.
    bool isFilledBySqlite() const { return store != Server; }
    // Whose names are read in back quotes in every mode.
    bool isMariaDb() const { return QLatin1StringView(name).startsWith(QLatin1StringView("MariaDB")); }
    QString quoted(const QString &field) const;
    QString bytes(const char *hex) const;
};

std::ostream &operator<<(std::ostream &out, const JourneyEngine &engine);

const std::vector<JourneyEngine> &journeyEngines();
// Those that spread a table over several databases.
const std::vector<JourneyEngine> &spreadEngines();

} // namespace KovaTest
