#include "ado/Recordset.h"
#include "query/QueryTexts.h"
#include "query/clsFilterManagement.h"
#include "query/conditions/Conditions.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/SharedHistory.h"
#include "session/pages/Pages.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownStatement.h"

// Shows the records whose field equals the current cell.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

using CellCondition = KOVAVSFDataGridLib::CellFilter;

CellCondition conditionOfCell(Session &session, int row, int col)
{
    const ADODB::Recordset &recordset = *session.result().recordset();
    const qint64 record = session.pages().recordOfRow(row);
    std::optional<QString> text;
    if (!recordset.IsNull(record, col - 1))
        text = recordset.CellText(record, col - 1);
    const ADODB::Field &field = recordset.Fields().Item(col - 1);
    // Uses the opened statement, not the shown one: "All" and "Part" only hide columns.
    const QStringList headings = session.window().Headings();
    const QString name = session.history().GetColumnRealName(recordset.Source(), headings, col - 1);
    const QString heading = headings.value(col - 1);
    if (name.isEmpty() && session.history().DataFields().Find(heading)) {
        const bool isOneOfSeveral = headings.count(heading) > 1;
        return {{}, (isOneOfSeveral ? QueryTexts::EqualNames : QueryTexts::UnknownTable).arg(heading)};
    }
    // SQLite can store bytes in a column of any type.
    if (recordset.CellValue(record, col - 1).typeId() == QMetaType::QByteArray)
        return {{}, QueryTexts::TypeNotFiltered};
    return buildCellFilter(name, field.Type(), text, session.result().engine(),
                           field.BaseColumnName().isEmpty());
}

void filterBySelectedCell(Session &session)
{
    const int row = session.window().Row();
    const int col = session.window().currentCol();
    if (row == 0 || col == 0)
        return;
    const CellCondition filter = conditionOfCell(session, row, col);
    if (!filter.message.isEmpty())
        return session.questions().show(filter.message);
    FilterManagerRollback rollback(session);
    QString statement;
    if (!filter.condition.isEmpty() && session.shown().addCondition(filter.condition, statement) &&
        session.shown().reloadFiltered(statement, false))
        rollback.keepChanges();
}

const Command::Registration cellFilterCommand({
    .key = CommandKeys::CellFilter,
    .shortcut = u"Ctrl+Shift+L"_s,
    .menu = {14, Command::tr("按选定内容筛选(&C)")},
    .isInViewer = true,
    .viewerMenu = {.index = 4,
                   .caption = Command::tr("按选定内容筛选(&F)"),
                   .enabledAs = CommandKeys::Filter,
                   .needsText = true},
    .needs = Needs::Records,
    .run = filterBySelectedCell,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNot(DerivationStep::Condition); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
