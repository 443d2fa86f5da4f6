#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace KovaTest {

// A connection of a test's own, past the code under test: it prepares tables and looks what became of them.
// Every failure fails the test.
class OdbcSession
{
public:
    explicit OdbcSession(const QString &connectionString);
    ~OdbcSession();
    Q_DISABLE_COPY_MOVE(OdbcSession)

    void run(const QString &statement);
    void run(const QStringList &statements);
    // The first column of the first row as text; empty if there is no row or no value.
    QString ask(const QString &statement);

private:
    struct Handles;
    std::unique_ptr<Handles> m_handles;
};

} // namespace KovaTest
