#pragma once

#include "sql/Engine.h"

#include <QtCore/QPointer>
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
    // `adodc` passes the recordset's notifications on; it may be null, and may go before this object does.
    explicit ResultSet(ADODB::Adodc *adodc);
    ~ResultSet();

    // A result that was opened beside the shown one, to take its place.
    struct Opened
    {
        QString connectionString;
        std::shared_ptr<ADODB::Connection> connection;
        std::shared_ptr<ADODB::Recordset> recordset;
    };
    // Opens `statement` through a new connection and touches nothing else; throws ADODB::Error. `dbType` is
    // AllDBType. `progress` is called as in ADODB::Recordset::SetProgress, with the recordset that is being
    // opened: what has come of it is in recordsSoFar().
    using Progress = std::function<bool(qint64 rowsRead, const ADODB::Recordset &opening)>;
    static Opened open(const QString &connectionString, const QString &statement, qint32 dbType,
                       const Progress &progress);
    // Closes the old result and takes the new one in its place. The data control reports both.
    void replaceBy(Opened opened);
    // Takes a result that belongs to somebody else, and leaves the old one open.
    void borrow(Opened opened);

    // Closes the recordset and the connection, if open; the data control reports it.
    void close();
    // Closes and forgets them, and the connection string.
    void release();

    bool isOpen() const;
    // Looks into the open result, since other controls write the shared values as well.
    bool hasRecords() const;
    // Whether the open connection was made from exactly this text.
    bool isConnectedTo(const QString &connectionString) const;
    // Null before the first result and after release().
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }
    const std::shared_ptr<ADODB::Connection> &connection() const { return m_connection; }
    // What the connection leads to; still known when the server has gone away.
    const EngineMode &engine() const { return m_engine; }

private:
    QPointer<ADODB::Adodc> m_adodc;
    std::shared_ptr<ADODB::Connection> m_connection;
    EngineMode m_engine;
    QString m_connectionString;
    std::shared_ptr<ADODB::Recordset> m_recordset;
};

} // namespace KOVAVSFDataGridLib
