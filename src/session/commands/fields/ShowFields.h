#pragma once

#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/layout/ColumnLayout.h"
#include "session/statement/FilterManagerRollback.h"

namespace KOVAVSFDataGridLib {

// Shows all fields or the part fields. If each required field has a column, only the layout changes;
// otherwise the statement with these fields is opened.
void showFields(Session &session, const QString &statement, FieldView view, FilterManagerRollback &rollback);

} // namespace KOVAVSFDataGridLib
