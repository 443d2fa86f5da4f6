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
    bool isSqliteFile;    // made anew for each journey
    char16_t quote;       // around a name in a statement that creates a table
    const char
        *unitPrice; // a field's name: with a blank where the database type's quotes mean something here
    const char *longText;
    const char *binary;
    const char *binaryLiteral; // %1 are hexadecimal digits
    const char *moment;
    const char *yes; // what a user types for a Boolean that is true

    bool isThere() const;
    QString quoted(const QString &field) const;
    QString bytes(const char *hex) const;
};

std::ostream &operator<<(std::ostream &out, const JourneyEngine &engine);

const std::vector<JourneyEngine> &journeyEngines();

} // namespace KovaTest
