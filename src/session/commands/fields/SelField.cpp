#include "ado/Notifications.h"
#include "session/HostEvents.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/fields/ChosenFields.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"

// Lets the user (or another chooser) choose the part fields, and shows them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(Session &session, const QString &statement)
{
    QStringList names;
    for (const SourceField &field : session.fieldReader()
                                        .Read(session.texts.connectionString, statement)
                                        .value_or(std::vector<SourceField>()))
        names.append(field.name);
    return names;
}

// Temporarily replaces the filter manager's chooser.
class ChooserInPlace
{
public:
    ChooserInPlace(Session &session, clsFilterManagement &manager, FieldChooser *chooser)
        : m_session(session), m_manager(manager), m_usual(manager.GetFieldChooser()), m_isUsual(!chooser)
    {
        if (chooser)
            manager.SetFieldChooser(chooser);
    }
    // The usual chooser is destroyed with the session's window.
    ~ChooserInPlace()
    {
        if (!m_isUsual)
            m_manager.SetFieldChooser(m_session.isDetached() ? nullptr : m_usual);
    }
    Q_DISABLE_COPY_MOVE(ChooserInPlace)

private:
    Session &m_session;
    clsFilterManagement &m_manager;
    FieldChooser *const m_usual;
    const bool m_isUsual;
};

// The statement with the fields that the user chooses; empty if the user cancels.
QString askForFields(const FilterManagerRollback &rollback, const clsShowSQLSentence &latest)
{
    QString partFields;
    latest.GetCurrUsePartFieldSQL(partFields);
    QString statement;
    const bool isChosen =
        rollback.manager().GetPartShowSelFields(latest.AllFields, partFields, latest.ShowSQL, statement);
    return isChosen && rollback.isResultUntouched() ? statement : QString();
}

} // namespace

void showChosenFields(Session &session, FieldChooser *chooser)
{
    if (!session.rules().choosesFieldsWithoutRecords && !session.result().hasRecords())
        return;
    FilterManagerRollback rollback(session);
    const colShowSQLSentences &history = rollback.manager().SQLManager();
    rollback.manager().SetDBConnString(session.texts.connectionString);
    const clsShowSQLSentence *entry = history.Item(history.Count());
    if (!entry)
        return;
    const clsShowSQLSentence latest = *entry; // the history can change while the dialog is open
    const QString statement = [&] {
        const ChooserInPlace inPlace(session, rollback.manager(), chooser);
        return askForFields(rollback, latest);
    }();
    if (statement.isEmpty())
        return;

    const QString chosenFields = history.GetFieldsStatement(statement);
    session.columns().SaveColumnWidths();
    std::optional<ResultSet::Opened> opened;
    if (session.rules().alwaysOpensFields || history.IsShownAlone(statement) ||
        !session.columns().hasColumnsFor(namesOf(session, chosenFields))) {
        opened = session.statementReader().read(statement);
        if (!opened)
            return;
    }
    const ADODB::Notifications::Hold hold(session.notifications());
    if (opened)
        session.shown().show(*opened);
    rollback.keepChanges();
    if (session.rules().writesFilter)
        session.shown().writeFilter(statement);
    session.fields().setView(FieldView::Part);
    session.shown().addToHistory(statement, chosenFields);
    session.host().fieldsChanged(statement);
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
}

namespace {

const Command::Registration selFieldCommand({
    .key = CommandKeys::SelField,
    .shortcut = u"Ctrl+L"_s,
    .button = {{102, Command::tr("选择字段"), Command::tr("选择要显示的字段")}},
    .isInViewer = true,
    .run = [](Session &session) { showChosenFields(session); },
    .whyNot = [](Session &session) { return session.sharedHistory().whyNot(DerivationStep::Fields); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
