#pragma once

#include "JourneyEngine.h"

#include "servers/OdbcSession.h"
#include "support/TestDatabase.h"

#include <optional>

namespace KovaTest {

// An engine's database with the tables of one journey: a file of its own, or tables of a running server, made
// by other means than the code under test.
class JourneyDatabase
{
public:
    explicit JourneyDatabase(const JourneyEngine &engine);

    void run(const QStringList &statements);
    // The first column of the first row, as text.
    QString ask(const QString &statement);
    const QString &connectionString() const { return m_connectionString; }

private:
    std::optional<TestDatabase> m_file;
    std::optional<OdbcSession> m_server;
    QString m_connectionString;
};

} // namespace KovaTest
