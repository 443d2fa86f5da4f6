#pragma once

#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/layout/ColumnLayout.h"
#include "session/statement/FilterManagerRollback.h"

namespace KOVAVSFDataGridLib {

// Shows all or the part fields. As long as each field that is needed has a column only their layout changes;
// otherwise the statement that has them is opened.
void showFields(Session &session, const QString &statement, FieldView view, FilterManagerRollback &rollback);

} // namespace KOVAVSFDataGridLib
