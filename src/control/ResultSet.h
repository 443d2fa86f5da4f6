#pragma once

#include <QtCore/QString>

#include <memory>

namespace ADODB {
class Adodc;
class Connection;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

// The open connection and recordset of one control, one each, replaced together.
class ResultSet
{
public:
    // `adodc` passes the recordset's notifications on; it must outlive this object.
    explicit ResultSet(ADODB::Adodc &adodc);
    ~ResultSet();
    Q_DISABLE_COPY_MOVE(ResultSet)

    // Opens `statement` through a new connection and only then lets go of the old result, so that a failure
    // (thrown as ADODB::Error) leaves everything as it was. `dbType` is AllDBType.
    void open(const QString &connectionString, const QString &statement, qint32 dbType);
    // A closed connection for a database type: plain ones for Access, the others from the factory.
    static std::shared_ptr<ADODB::Connection> newConnection(qint32 dbType);

    // Closes the recordset and the connection, if open.
    void close();

    bool isOpen() const;
    // Whether the open connection was made from exactly this text.
    bool isConnectedTo(const QString &connectionString) const;
    // Null before the first open.
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }
    const std::shared_ptr<ADODB::Connection> &connection() const { return m_connection; }

private:
    ADODB::Adodc &m_adodc;
    std::shared_ptr<ADODB::Connection> m_connection;
    QString m_connectionString;
    std::shared_ptr<ADODB::Recordset> m_recordset;
};

} // namespace KOVAVSFDataGridLib
