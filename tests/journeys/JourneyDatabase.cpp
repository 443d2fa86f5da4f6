#include "JourneyDatabase.h"

#include "servers/Servers.h"

using namespace Qt::StringLiterals;

namespace KovaTest {

JourneyDatabase::JourneyDatabase(const JourneyEngine &engine)
{
    if (engine.variable)
        m_connectionString = serverConnection(engine.variable);
    if (!engine.isSqliteFile) {
        m_server.emplace(m_connectionString);
        return;
    }
    m_file.emplace(u""_s);
    if (engine.variable)
        m_connectionString += u";Database=%1;FKSupport=1"_s.arg(m_file->path());
    else
        m_connectionString = m_file->connectionString();
}

void JourneyDatabase::run(const QStringList &statements)
{
    if (m_file)
        m_file->run(statements.join(u';'));
    else
        m_server->run(statements);
}

QString JourneyDatabase::ask(const QString &statement)
{
    return m_file ? m_file->ask(statement) : m_server->ask(statement);
}

} // namespace KovaTest
