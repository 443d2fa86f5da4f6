#pragma once

#include "FaultEngine.h"

#include "../control/commands/Hands.h"

#include "servers/OdbcSession.h"
#include "servers/Servers.h"

#include <gtest/gtest.h>

#include <optional>

namespace KovaTest {

// A user before a control on a server that is this test's to break.
//
// The table faults has the fields id and name and a thousand records. After each test the server runs, the
// user has seen the password nowhere, what he does next works, and nothing is left open.
class FaultFixture : public testing::TestWithParam<FaultEngine>
{
protected:
    void SetUp() override;
    void TearDown() override;

    bool load(const QString &statement = QStringLiteral("SELECT * FROM faults"));
    // Uses a separate connection, not the code under test.
    void run(const QString &statement) const;
    QString ask(const QString &statement) const;
    // The message about the failed opening, without its beginning; the load shows a second message after it.
    // Clears both.
    QString openError();
    QString loadError();
    // Expects that the load of all records is still shown.
    void expectAsLoaded() const;

    void stopServer() const { controlServer("stop", engine.server); }
    void startServer() const { controlServer("start", engine.server); }
    void endOthers() const;
    QString connection() const { return engine.connection(); }

    const FaultEngine &engine = GetParam();
    std::optional<Hands> hands;

private:
    const QString harmless = QStringLiteral("SELECT 1 AS one FROM ") + engine.numbersTo(3);
    QStringList filesBefore;
};

// Open files, sockets and pipes of this process; none if unknown.
QStringList openFiles();
// Waits until as many files are open as then, or fewer: an earlier test's thread may still be ending a
// connection.
bool becomesAsFew(const QStringList &before);
// Memory in use, in MiB; 0 if unknown.
qint64 memoryInUse();

} // namespace KovaTest
