#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace KovaTest {

// A test's own connection, independent of the code under test: prepares tables and checks their contents.
// Every error fails the test.
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
