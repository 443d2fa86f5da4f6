#include "ado/automation/ConnectionObject.h"

#include "ado/Connection.h"
#include "ado/automation/Guarded.h"

namespace ADODB {

ConnectionObject::ConnectionObject(std::shared_ptr<Connection> connection, QObject *parent)
    : QObject(parent), m_connection(std::move(connection))
{
}

void ConnectionObject::Open(const QString &connectionString, const QString &user, const QString &password,
                            qint32 options)
{
    guarded(this, [&] { m_connection->Open(connectionString, user, password, options); });
}

void ConnectionObject::Close()
{
    guarded(this, [&] { m_connection->Close(); });
}

QString ConnectionObject::WrittenName(const QString &name)
{
    return guarded(this, [&] { return m_connection->WrittenName(name); });
}

QString ConnectionObject::connectionString()
{
    return guarded(this, [&] { return m_connection->ConnectionString(); });
}

void ConnectionObject::setConnectionString(const QString &text)
{
    guarded(this, [&] { m_connection->PutConnectionString(text); });
}

qint32 ConnectionObject::state()
{
    return m_connection->State();
}

} // namespace ADODB
