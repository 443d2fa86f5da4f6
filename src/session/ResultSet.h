#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

#include <functional>
#include <memory>

namespace ADODB {
class Adodc;
class Connection;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

// The open connection and recordset of one control, one each, replaced together. Whoever holds a recordset
// last closes it, with its files, at once: this object, unless a host holds it as well.
class ResultSet
{
public:
    // `adodc` passes the recordset's notifications on; it must outlive this object.
    explicit ResultSet(ADODB::Adodc &adodc);

    // A result that was opened beside the shown one, to take its place.
    struct Opened
    {
        QString connectionString;
        std::shared_ptr<ADODB::Connection> connection;
        std::shared_ptr<ADODB::Recordset> recordset;
    };
    // Opens `statement` through a new connection and touches nothing else; throws ADODB::Error. `dbType` is
    // AllDBType; `progress` as in ADODB::Recordset::SetProgress.
    static Opened open(const QString &connectionString, const QString &statement, qint32 dbType,
                       const std::function<bool(qint64 rowsRead)> &progress);
    // Closes the old result and shows the new one; whoever listens to the data control is told of both, and
    // may by then have deleted the control and this object with it.
    void replaceBy(Opened opened);
    // A closed connection for a database type: plain ones for Access, the others from the factory.
    static std::shared_ptr<ADODB::Connection> newConnection(qint32 dbType);

    // Closes the recordset and the connection, if open; that is told as well, as by release().
    void close();
    // Closes them and lets go of both, and of the connection string.
    void release();

    bool isOpen() const;
    // Whether the open connection was made from exactly this text.
    bool isConnectedTo(const QString &connectionString) const;
    // Null before the first result and after release().
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }
    const std::shared_ptr<ADODB::Connection> &connection() const { return m_connection; }
    // What the connection leads to; still known when the server has gone away.
    Engine engine() const { return m_engine; }

private:
    ADODB::Adodc &m_adodc;
    std::shared_ptr<ADODB::Connection> m_connection;
    Engine m_engine = Engine::Other;
    QString m_connectionString;
    std::shared_ptr<ADODB::Recordset> m_recordset;
};

} // namespace KOVAVSFDataGridLib
