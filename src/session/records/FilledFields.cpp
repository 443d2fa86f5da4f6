#include "session/records/FilledFields.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/rows/FilledColumns.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/records/ColumnOfField.h"

#include <map>

namespace KOVAVSFDataGridLib {

std::set<int> filledFields(Session &session)
{
    const auto connection = session.result().connection();
    const auto recordset = session.result().recordset();
    if (!connection || !recordset)
        return {};
    const Dialect dialect = dialectOf(session.filterManager().DBType(), session.result().engine());
    // The names first: after a wait, the result may be another one.
    std::map<std::pair<QString, QString>, std::map<QString, int>> tables;
    for (int i = 0; i < recordset->Fields().Count(); ++i) {
        const ADODB::TableColumn column = columnOf(session, dialect, recordset->Fields().Item(i));
        if (!column.table.isEmpty() && !column.column.isEmpty())
            tables[{column.schema, column.table}].emplace(column.column.toCaseFolded(), i);
    }
    std::set<int> filled;
    try {
        for (const auto &[table, columns] : tables) {
            for (const QString &name : ADODB::filledColumns(*connection, {table.first, table.second, {}})) {
                if (const auto found = columns.find(name.toCaseFolded()); found != columns.end())
                    filled.insert(found->second);
            }
        }
    } catch (const ADODB::Error &) {
        return {}; // a catalogue that the user may not read
    }
    return filled;
}

} // namespace KOVAVSFDataGridLib
