#include "session/LoadResult.h"

#include "ado/ConnectionFactory.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "ado/connection/OneCommand.h"
#include "query/SharedValues.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/editing/EditedRecord.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"
#include "sql/AllDBType.h"
#include "sql/StatementLines.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<clsFilterManagement> filterManagerForLoad(Session &session)
{
    const QString allFields = joinStatementLines(session.texts.sqlShow);
    auto manager = session.sharedHistory().newManager();
    manager->SetDBType(session.shared.dbType);
    manager->SetTBLType(session.texts.tableType);
    manager->SetFieldStatus(static_cast<qint32>(session.fields().view()));
    manager->SetDBConnString(session.texts.connectionString);
    manager->SetAllFields(allFields);
    manager->SetOriginFilter(allFields);
    manager->SetShowFields(joinStatementLines(session.texts.sqlPartDisplay));
    manager->SetOrderFields(joinStatementLines(session.texts.sqlSort));
    manager->SetSQLInitData();
    return manager;
}

struct LoadedStatement
{
    QString written; // SQLShow unchanged, unless another statement is needed
    QString line;    // the line that is run and that others are derived from
};

// For Oracle, * is replaced by all field names, so that each can be used and long binary ones come last. No
// value if that fails; the reader has the reason.
std::optional<LoadedStatement> statementToOpen(Session &session, clsFilterManagement &manager)
{
    const QString given = manager.AllFields();
    const QString &connectionString = session.texts.connectionString;
    LoadedStatement first{session.texts.sqlShow, manager.GetCurrentSQL20(FirstStatement)};
    // Missing properties are reported when the statement is opened.
    if (spellsOutStar(session.shared.dbType) && !connectionString.isEmpty() && !first.line.isEmpty()) {
        // A table written for the sort has a * that is not the host's.
        const bool isTable = !first.line.startsWith(given);
        QString rewritten;
        if (!manager.SQLManager().GetAllFieldNameSQL(connectionString, isTable ? given : first.line,
                                                     rewritten))
            return {};
        manager.SetAllFields(rewritten);
        manager.SetOriginFilter(rewritten);
        manager.SetSQLInitData();
        first.line = isTable ? manager.SQLManager().Sorted(rewritten, manager.OrderFields()) : rewritten;
    }
    if (first.line != given) // with a sort or a field list, so no longer the host's own text
        first.written = first.line;
    manager.SQLManager().SetWritten(first.written, first.line);
    return first;
}

void showLoaded(Session &session, const ResultSet::Opened &opened, const LoadedStatement &statement,
                std::unique_ptr<clsFilterManagement> manager)
{
    const ADODB::Notifications::Hold hold(session.notifications());
    const QStringList fieldsBefore = session.window().Headings();
    session.result().replaceBy(opened);
    session.sharedHistory().setManager(std::move(manager));
    session.texts.recordSource = statement.written;
    session.shown().setText(statement.line);
    session.fieldReader().remember(session.texts.connectionString, statement.line,
                                   session.result().recordset()->Fields());

    session.window().enableCommands();
    session.pages().showPage(1);
    // Widths and positions belong to fields: if the same ones are loaded again, they are kept.
    if (session.window().Headings() != fieldsBefore) {
        session.window().ResetColWidths();
        session.window().arrangeColumns({}, 0);
    }
    session.window().showAllRecords();

    session.pages().storeRecordCount();
    if (session.result().hasRecords() && session.window().Cols() > 1) {
        session.window().PutRow(1);
        session.window().PutCol(1);
    }
    session.fields().showLoaded(session.filterManager().ShowFields());
    session.columns().RecordShowSQL(statement.written, session.fields().view(), true,
                                    colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort(),
                                    session.texts.connectionString);
    if (session.columns().columnsFit())
        session.columns().fitColumns(session.rules().roundWidth);
    session.pages().updateRecordPosition();
    session.sharedHistory().noteShownResult();
    session.window().refreshCommands();
    session.window().scrollAsOpened();
}

} // namespace

// Everything is prepared separately and replaces what is shown only after the statement was read, so that a
// failed load does not change grid, history and position.
bool loadResult(Session &session)
{
    using Outcome = StatementReader::Outcome;
    if (session.shared.isOpening || !session.record().leaveResult())
        return false;
    session.fieldReader().forget();
    const ConnectionFieldReader::Command command(session.fieldReader());
    auto manager = filterManagerForLoad(session);
    StatementReader &reader = session.statementReader();
    StatementReader::Reading reading;
    std::optional<LoadedStatement> statement;
    {
        const ADODB::OneCommand oneCommand;
        statement = statementToOpen(session, *manager);
        if (statement)
            reading = reader.read(statement->line, session.shared.dbType);
    }
    if (!statement && session.fieldReader().isCancelled()) {
        reading.outcome = Outcome::Cancelled;
        reader.reportCancelled();
    } else if (!statement) {
        reader.reportError(session.fieldReader().Failure());
    }
    switch (reading.outcome) {
    case Outcome::Failed:
        session.questions().show(SessionMessages::OpenFailed);
        return false;
    case Outcome::Cancelled:
        return false;
    case Outcome::Overtaken: // for example by another load, which has done everything that follows
        return !session.isDetached() && session.result().isOpen();
    case Outcome::Done:
        break;
    }
    if (reading.opened && statement)
        showLoaded(session, *reading.opened, *statement, std::move(manager));
    return !session.isDetached() && session.result().isOpen();
}

} // namespace KOVAVSFDataGridLib
