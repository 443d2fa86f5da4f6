#include "session/records/ColumnOfField.h"

#include "ado/Field.h"
#include "session/Session.h"
#include "session/statement/ShownStatement.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

ADODB::TableColumn columnOf(const Session &session, const Dialect &dialect, const ADODB::Field &field)
{
    ADODB::TableColumn column{{}, field.BaseTableName(), field.BaseColumnName()};
    const SimpleSelect select = SimpleSelect::parse(SqlScanner(session.shown().text(), dialect));
    if (select.fault != SimpleSelect::Fault::None)
        return column;
    if (column.table.isEmpty()) {
        const bool hasAll = std::ranges::any_of(select.items, &SimpleSelect::Item::all);
        const auto index = static_cast<std::size_t>(field.Index());
        column.table = select.table;
        if (hasAll)
            column.column = select.items.size() == 1 ? field.Name() : QString();
        else
            column.column = index < select.items.size() ? select.items[index].column : QString();
    }
    if (column.table.compare(select.table, Qt::CaseInsensitive) == 0)
        column.schema = select.schema;
    return column;
}

} // namespace KOVAVSFDataGridLib
