#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "sql/StatementLines.h"

// The load: from the host's texts to a shown result with the first entry of the history.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

std::unique_ptr<clsFilterManagement> Session::filterManagerForLoad()
{
    const QString allFields = joinStatementLines(texts.sqlShow);
    auto manager = newFilterManager();
    manager->SetDBType(shared.dbType);
    manager->SetTBLType(texts.tableType);
    manager->SetFieldStatus(static_cast<qint32>(m_fieldView));
    manager->SetDBConnString(texts.connectionString);
    manager->SetAllFields(allFields);
    manager->SetOriginFilter(allFields);
    manager->SetShowFields(joinStatementLines(texts.sqlPartDisplay));
    manager->SetOrderFields(joinStatementLines(texts.sqlSort));
    manager->SetSQLInitData();
    return manager;
}

// For Oracle the field list is spelled out, so that each field can be named and long binary ones come last.
// Nothing when it can't be, for the reason that the reader gives.
std::optional<Session::LoadedStatement> Session::statementToOpen(clsFilterManagement &manager)
{
    const QString given = manager.AllFields();
    LoadedStatement first{texts.sqlShow, manager.GetCurrentSQL20(FirstStatement)};
    // What is missing is reported when the statement is opened.
    if (shared.dbType == dbOracle && !texts.connectionString.isEmpty() && !first.line.isEmpty()) {
        QString rewritten;
        if (!manager.SQLManager().GetAllFieldNameSQL(texts.connectionString, first.line, rewritten))
            return {};
        manager.SetAllFields(rewritten);
        manager.SetOriginFilter(rewritten);
        manager.SetSQLInitData();
        first.line = rewritten;
    }
    if (first.line != given) // sorted or spelled out, so that it isn't the host's own any more
        first.written = first.line;
    manager.SQLManager().SetWritten(first.written, first.line);
    return first;
}

// Everything is made ready beside what is shown and takes its place only when the statement has been read, so
// that a failed load leaves grid, history and position as they were.
bool Session::load()
{
    const auto alive = shared_from_this();
    if (shared.isOpening || !leaveResult())
        return false;
    m_reader.forget();
    const ConnectionFieldReader::Command command(m_reader);
    auto manager = filterManagerForLoad();
    const std::optional<LoadedStatement> statement = statementToOpen(*manager);
    std::optional<ResultSet::Opened> opened;
    Reading reading = Reading::Failed;
    if (statement)
        reading = readResult(statement->line, shared.dbType, opened);
    else if (m_reader.isCancelled())
        reading = reportCancelled();
    else
        reportOpenError(m_reader.Failure());
    switch (reading) {
    case Reading::Failed:
        m_questions->show(SessionMessages::OpenFailed);
        return false;
    case Reading::Cancelled:
        return false;
    case Reading::Overtaken: // by another load, say, which has done all that follows
        return !m_isDetached && m_result.isOpen();
    case Reading::Done:
        break;
    }
    showLoaded(*opened, *statement, std::move(manager));
    return !m_isDetached && m_result.isOpen();
}

void Session::showLoaded(const ResultSet::Opened &opened, const LoadedStatement &statement,
                         std::unique_ptr<clsFilterManagement> manager)
{
    const ADODB::Notifications::Hold hold(*m_notifications);
    const QStringList fieldsBefore = m_window->Headings();
    m_result.replaceBy(opened);
    m_filter = std::move(manager);
    texts.recordSource = statement.written;
    m_statement = statement.line;
    m_reader.remember(texts.connectionString, statement.line, m_result.recordset()->Fields());

    m_window->enableCommands();
    showPage(1);
    // Widths and places belong to fields: the same ones loaded again keep theirs.
    if (m_window->Headings() != fieldsBefore) {
        m_window->ResetColWidths();
        m_window->arrangeColumns({}, 0);
    }
    m_window->showAllRecords();

    storeRecordCount();
    if (shared.hasRecords && m_window->Cols() > 1) {
        m_window->PutRow(1);
        m_window->PutCol(1);
    }
    showLoadedFields();
    columns().RecordShowSQL(statement.written, m_fieldView, true, colShowSQLSentences::NoPartField(),
                            colShowSQLSentences::NoSort(), texts.connectionString);
    if (columns().columnsFit())
        columns().fitColumns(m_rules.roundWidth);
    updateRecordPosition();
    noteShownResult();
    m_window->refreshCommands();
    m_window->scrollAsOpened();
}

// Without part fields all of them are shown, as by "Part".
void Session::showLoadedFields()
{
    const bool isPart = m_fieldView == FieldView::Part || m_lacksPartFields;
    const bool lacksPartFields = isPart && m_filter->ShowFields().trimmed().isEmpty();
    setFieldView(isPart && !lacksPartFields ? FieldView::Part : FieldView::All);
    m_lacksPartFields = lacksPartFields;
}

} // namespace KOVAVSFDataGridLib
