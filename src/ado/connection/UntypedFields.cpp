#include "ado/connection/UntypedFields.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/EngineOf.h"
#include "sql/Literals.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

bool isUntyped(const std::shared_ptr<Connection> &connection, const FieldInfo &field)
{
    using namespace KOVAVSFDataGridLib;
    const EngineMode mode = engineOf(connection);
    if (mode.engine != Engine::SQLite || field.baseColumn.isEmpty())
        return mode.engine == Engine::SQLite;
    const Dialect dialect = dialectOf({}, mode);
    try {
        Recordset columns;
        columns.Open(u"SELECT 1 FROM pragma_table_xinfo(%1) WHERE name = %2 AND type = ''"_s.arg(
                         textLiteral(dialect, field.baseTable), textLiteral(dialect, field.baseColumn)),
                     connection);
        return columns.RecordCount() > 0;
    } catch (const Error &) {
        return false; // a table in an attached database
    }
}

} // namespace ADODB
