#pragma once

#include "JourneyEngine.h"

#include "servers/OdbcSession.h"
#include "support/TestDatabase.h"

#include <QtCore/QByteArray>

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
    // The bytes of the file that the control reads; empty for a server.
    QByteArray fileBytes() const;
    const QString &connectionString() const { return m_connectionString; }

private:
    std::optional<TestDatabase> m_file;
    QString m_accessPath; // of the copy
    std::optional<OdbcSession> m_server;
    QString m_connectionString;
};

} // namespace KovaTest
