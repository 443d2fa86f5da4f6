#pragma once

#include <QtCore/QString>

#include <iosfwd>

namespace KovaTest {

class OdbcSession;

// A server that these tests may break, and how it writes what they need.
struct FaultEngine
{
    const char *name;           // also the tests' parameter
    const char *server;         // to server-control
    const char *driver;         // as the connection strings name it
    const char *variable;       // of the environment, with the connection string
    const char *oracleVariable; // the same for sessions in which names are in double quotes
    const char *numbers;        // after FROM: the numbers g from 1 to %1
    const char *idToText;       // after ALTER TABLE: changes the field id to text
    const char *sleep;          // a statement that runs for 20 seconds before it returns its row
    const char *endless;        // a statement that returns records for far longer than any test waits
    const char *countEndless;   // how many other sessions are at work on its records
    const char *others;         // the numbers of all other sessions with commas between, Null without any
    const char *end;            // the session %1

    bool isPostgreSql() const;
    QString connection() const;
    QString oracleConnection() const;
    QString numbersTo(int last) const;
    // Ends all sessions but this one, and waits until they are gone.
    void endOthers(OdbcSession &session) const;
};

std::ostream &operator<<(std::ostream &out, const FaultEngine &engine);

extern const FaultEngine faultEngines[2];

} // namespace KovaTest

// One ctest entry holds all engines; the names tell them apart.
#define KOVA_ON_FAULT_ENGINES(suite)                                                                         \
    INSTANTIATE_TEST_SUITE_P(Servers, suite, testing::ValuesIn(KovaTest::faultEngines),                      \
                             [](const auto &engine) { return std::string(engine.param.name); })
