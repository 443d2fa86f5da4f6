#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

// One field of a result, as the database reports it.
struct SourceField
{
    QString name;
    qint32 adoType = 0; // ADO type number; 0 when it isn't known
    QString table = {}; // the table it comes from, under the table's own name; empty when that isn't known

    bool operator==(const SourceField &) const = default;
};

// What the query model needs of a database. The implementation decides whether it keeps connections open and
// remembers what it has read. Neither function throws; failures are answered, never shown.
class FieldReader
{
public:
    FieldReader() = default;
    virtual ~FieldReader() = default;
    Q_DISABLE_COPY_MOVE(FieldReader)

    // Whether a connection with this connection string is open or could be opened now.
    virtual bool Open(const QString &connectionString) = 0;

    // The fields of the statement's result in its order, without fetching a row; nothing when they can't be
    // read. The cheap way is the statement's no-row form (GetNoRowSQL). A database that refuses that form
    // (the statement groups, unites or holds a sub-select with a condition) is asked about the statement
    // itself.
    virtual std::optional<std::vector<SourceField>> Read(const QString &connectionString,
                                                         const QString &statement) = 0;

    // The engine to which that connection leads, as it reads there; Other when it is not known.
    virtual EngineMode engineOf(const QString &) { return {}; }
};

} // namespace KOVAVSFDataGridLib
