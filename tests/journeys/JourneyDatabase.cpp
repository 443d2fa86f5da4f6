#include "JourneyDatabase.h"

#include "AccessCopy.h"
#include "servers/Servers.h"

#include <QtCore/QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace KovaTest {

JourneyDatabase::JourneyDatabase(const JourneyEngine &engine)
{
    if (engine.variable)
        m_connectionString = serverConnection(engine.variable);
    if (engine.store == JourneyEngine::Server) {
        m_server.emplace(m_connectionString);
        return;
    }
    m_file.emplace(u""_s);
    if (engine.store == JourneyEngine::AccessFile) {
        m_accessPath = m_file->path() + u".mdb"_s;
        m_connectionString = u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + m_accessPath;
    } else if (engine.fileConnection) {
        m_connectionString = QString::fromLatin1(engine.fileConnection).arg(m_file->path());
    } else if (engine.variable) {
        m_connectionString += u";Database=%1;FKSupport=1"_s.arg(m_file->path());
    } else {
        m_connectionString = m_file->connectionString();
    }
}

void JourneyDatabase::run(const QStringList &statements)
{
    if (m_file)
        m_file->run(statements.join(u';'));
    else
        m_server->run(statements);
    if (!m_accessPath.isEmpty())
        copyToAccess(m_file->path(), m_accessPath);
}

QByteArray JourneyDatabase::fileBytes() const
{
    if (!m_file)
        return {};
    QFile file(m_accessPath.isEmpty() ? m_file->path() : m_accessPath);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QString JourneyDatabase::ask(const QString &statement)
{
    return m_file ? m_file->ask(statement) : m_server->ask(statement);
}

} // namespace KovaTest
