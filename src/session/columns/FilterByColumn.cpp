#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/rows/FilterByDialog.h"

// The filter dialog with a column's field.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const ColumnCommand::Registration registration({
    .key = u"FilterByColumn"_s,
    .place = 200,
    .caption = ColumnCommand::tr("按此列筛选(&F)…"),
    .record = Record::IsLeft,
    .run = [](Session &session,
              int col) { filterByDialog(session, session.window().Headings().value(col - 1)); },
    .canRun = [](Session &session,
                 int) { return session.hasRecords() && session.whyNot(DerivationStep::Condition).isEmpty(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
