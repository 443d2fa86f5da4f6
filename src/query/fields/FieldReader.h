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
    qint32 adoType = 0;        // ADO type number; 0 if unknown
    QString table = {};        // the table it comes from, by the table's own name; empty if unknown
    bool hasKnownOrder = true; // if false, only the database knows whether it can be sorted by

    bool operator==(const SourceField &) const = default;
};

// The query model's access to a database. The implementation decides whether to keep connections open and
// cache what it has read. Neither function throws; errors are returned and never shown.
class FieldReader
{
public:
    FieldReader() = default;
    virtual ~FieldReader() = default;
    Q_DISABLE_COPY_MOVE(FieldReader)

    // Whether a connection with this connection string is open or could be opened now.
    virtual bool Open(const QString &connectionString) = 0;

    // The fields of the statement's result in order, without fetching rows; no
    // value if they can't be read. The cheap way is to use the statement's no-row
    // form (GetNoRowSQL). If the database rejects that form (with grouping, a
    // union or a condition in a sub-select), the statement itself is described.
    virtual std::optional<std::vector<SourceField>> Read(const QString &connectionString,
                                                         const QString &statement) = 0;

    // Whether the database accepts the statement's no-row form.
    virtual bool Accepts(const QString &connectionString, const QString &statement)
    {
        return Read(connectionString, statement).has_value();
    }

    // The engine of that connection in its present mode; Other if it is unknown.
    virtual EngineMode engineOf(const QString &) { return {}; }
};

} // namespace KOVAVSFDataGridLib
