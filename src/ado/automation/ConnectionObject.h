#pragma once

#include "../../KovaExport.h"

#include <QtCore/QObject>

#include <memory>

namespace ADODB {

class Connection;

// A connection with ADO's member names; see RecordsetObject. It shares the connection with its other owners.
class KOVA_EXPORT ConnectionObject : public QObject
{
    Q_OBJECT
    // Like the members of Connection with these names.
    Q_PROPERTY(QString ConnectionString READ connectionString WRITE setConnectionString)
    Q_PROPERTY(qint32 State READ state)

public:
    // `connection` is never null.
    explicit ConnectionObject(std::shared_ptr<Connection> connection, QObject *parent = nullptr);

    // Like the members of Connection with these names.
    Q_INVOKABLE void Open(const QString &connectionString = {}, const QString &user = {},
                          const QString &password = {}, qint32 options = -1);
    Q_INVOKABLE void Close();
    Q_INVOKABLE QString WrittenName(const QString &name);

    // Accessors of the properties.
    QString connectionString();
    void setConnectionString(const QString &text);
    qint32 state();
    // The connection itself, for C++ callers.
    const std::shared_ptr<Connection> &connection() const { return m_connection; }

Q_SIGNALS:
    // A call by name failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    std::shared_ptr<Connection> m_connection;
};

} // namespace ADODB
