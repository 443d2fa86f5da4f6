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

// The open connection and recordset of a control, replaced together. The last owner of the recordset closes
// it, with its files, immediately: this object, unless a host also owns it.
class ResultSet
{
public:
    // `adodc` forwards the recordset's notifications. It may be null or be destroyed before this object.
    explicit ResultSet(ADODB::Adodc *adodc);
    ~ResultSet();

    // A result that was opened to replace the shown one.
    struct Opened
    {
        QString connectionString;
        std::shared_ptr<ADODB::Connection> connection;
        std::shared_ptr<ADODB::Recordset> recordset;
    };
    // Opens `statement` through a new connection and changes nothing else; throws ADODB::Error. `dbType` is
    // AllDBType. `progress` is called as in ADODB::Recordset::SetProgress, with the recordset being opened;
    // see recordsSoFar() for its records.
    using Progress = std::function<bool(qint64 rowsRead, const ADODB::Recordset &opening)>;
    static Opened open(const QString &connectionString, const QString &statement, qint32 dbType,
                       const Progress &progress);
    // Closes the old result and replaces it. The data control reports both.
    void replaceBy(Opened opened);
    // Uses a result that belongs to somebody else, and does not close the old one.
    void borrow(Opened opened);

    // Closes the recordset and the connection, if open; the data control reports it.
    void close();
    // Closes and releases them, and clears the connection string.
    void release();

    bool isOpen() const;
    // Checks the open result itself, because other controls write the shared values too.
    bool hasRecords() const;
    // Whether the open connection was made from exactly this text.
    bool isConnectedTo(const QString &connectionString) const;
    // Null before the first result and after release().
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }
    const std::shared_ptr<ADODB::Connection> &connection() const { return m_connection; }
    // The engine of the connection; still known after the server has gone away.
    const EngineMode &engine() const { return m_engine; }

private:
    QPointer<ADODB::Adodc> m_adodc;
    std::shared_ptr<ADODB::Connection> m_connection;
    EngineMode m_engine;
    QString m_connectionString;
    std::shared_ptr<ADODB::Recordset> m_recordset;
};

} // namespace KOVAVSFDataGridLib
