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
// Closing it leaves the recordsets that were opened through it readable: they are snapshots. They can no
// longer write, though.
class KOVA_EXPORT Connection
{
public:
    // A closed one.
    Connection();
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    // `Keyword=value;…`, keywords in any letter case; see ConnectionString.h. Reading it back gives it
    // without the password once the connection is open, as ADO does.
    // Writing throws 3705 while open.
    QString ConnectionString() const;
    void PutConnectionString(const QString &text);

    // Opens through a middle tier from now on; the property keeps the database's own text.
    void PutMiddleTier(const MiddleTier &tier) { m_middleTier = tier; }

    // Opens the database; an argument that is not empty replaces the property or the keyword of that name.
    // `options` is ConnectOptionEnum; opening is always synchronous. Never creates a file. Throws 3705 when
    // already open, 3706 for an unknown provider, 3002 for a missing or unusable file, 3730 for a locked one.
    void Open(const QString &connectionString = {}, const QString &user = {}, const QString &password = {},
              qint32 options = adConnectUnspecified);
    // Throws 3704 when already closed.
    void Close();
    // Whether it is open. Closed also once a server is found to have gone away; it can be opened again then.
    ObjectStateEnum State() const;

    // The name of the engine, as its driver gives it ("SQLite", "PostgreSQL"); empty when that gives none.
    // Throws 3704 when closed.
    QString EngineName() const;

    // The columns of a statement, found by preparing it; no row is fetched. Throws 3704 when closed, else as
    // Recordset::Open does. A column without a declared type is described as adVarWChar.
    std::vector<FieldInfo> Describe(const QString &sql) const;

    // For the recordsets of this room; throws 3704 when closed.
    const std::shared_ptr<Session> &session() const;

private:
    QString m_text;
    MiddleTier m_middleTier;
    std::shared_ptr<Session> m_session;
};

} // namespace ADODB
