#pragma once

#include "../KovaExport.h"
#include "FieldInfo.h"
#include "MiddleTier.h"

#include <memory>
#include <vector>

namespace ADODB {

class Session;

// A connection to one database. Hold it by std::shared_ptr. Use it from one thread at a time.
//
// After it is closed, the recordsets opened with it can still be read, because they are snapshots. They can
// no longer be written.
class KOVA_EXPORT Connection
{
public:
    // A closed one.
    Connection();
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    // `Keyword=value;…`, with case-insensitive keywords; see ConnectionString.h. Once the connection is open,
    // the password is removed from it, as in ADO. Writing throws 3705 while the connection is open.
    QString ConnectionString() const;
    void PutConnectionString(const QString &text);

    // Open will use this middle tier. ConnectionString keeps the database's own text.
    void PutMiddleTier(const MiddleTier &tier) { m_middleTier = tier; }

    // Opens the database. An argument that is not empty replaces the property or the keyword of that name.
    // `options` is a value of ConnectOptionEnum; opening is always synchronous. It never creates a file.
    // Throws 3705 if already open, 3706 for an unknown provider, 3002 for a missing or unusable file, and
    // 3730 for a locked one.
    void Open(const QString &connectionString = {}, const QString &user = {}, const QString &password = {},
              qint32 options = adConnectUnspecified);
    // Throws 3704 if already closed.
    void Close();
    // Whether it is open. It is also closed after the connection to a server was lost, and can be opened
    // again. A change to a record of one of its recordsets opens it as well.
    ObjectStateEnum State() const;

    // The name of the engine as its driver returns it ("SQLite", "PostgreSQL"), or empty. Throws 3704 if
    // closed.
    QString EngineName() const;

    // The columns of a statement. Prepares it, but fetches no rows. Throws 3704 if closed, and otherwise like
    // Recordset::Open. A column without a declared type is described as adVarWChar.
    std::vector<FieldInfo> Describe(const QString &sql) const;

    // For internal use. Throws 3704 if closed.
    const std::shared_ptr<Session> &session() const;

    // The name of a field, table or schema, as the database reports it, as a statement for this engine writes
    // it: without quotes if the engine then reads exactly this name, otherwise quoted. Quote each part of a
    // name such as `schema.table` separately. Standard SQL if the engine is not known. Throws 3704 if closed.
    QString WrittenName(const QString &name) const;

    // A table or view.
    struct Table
    {
        QString schema;      // empty if a statement doesn't need it
        QString name;        // as the database reports it; see WrittenName()
        bool isView = false; // else a table
    };
    // The tables and views that the user can see, without those of the system, ordered by schema and name.
    // Throws 3704 if closed, and otherwise like Recordset::Open.
    std::vector<Table> Tables() const;

private:
    QString m_text;
    MiddleTier m_middleTier;
    std::shared_ptr<Session> m_session;
};

} // namespace ADODB
