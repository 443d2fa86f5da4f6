#include "session/FilterManagerRollback.h"
#include "session/HostEvents.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

// Lets the user choose the part fields and shows them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(Session &session, const QString &statement)
{
    QStringList names;
    for (const SourceField &field : session.reader()
                                        .Read(session.texts.connectionString, statement)
                                        .value_or(std::vector<SourceField>()))
        names.append(field.name);
    return names;
}

// The statement with the fields that the user chooses; empty when he cancels.
QString askForFields(const FilterManagerRollback &ground, const clsShowSQLSentence &latest)
{
    QString partFields;
    latest.GetCurrUsePartFieldSQL(partFields);
    QString statement;
    const bool isChosen =
        ground.manager().GetPartShowSelFields(latest.AllFields, partFields, latest.ShowSQL, statement);
    return isChosen && ground.isResultUntouched() ? statement : QString();
}

void selectFields(Session &session)
{
    if (!session.rules().choosesFieldsWithoutRecords && !session.hasRecords())
        return;
    FilterManagerRollback rollback(session);
    const colShowSQLSentences &history = rollback.manager().SQLManager();
    rollback.manager().SetDBConnString(session.texts.connectionString);
    const clsShowSQLSentence *entry = history.Item(history.Count());
    if (!entry)
        return;
    const clsShowSQLSentence latest = *entry; // the history can change while the dialog is open
    const QString statement = askForFields(rollback, latest);
    if (statement.isEmpty())
        return;

    const QString chosenFields = history.GetFieldsStatement(statement);
    session.columns().SaveColumnWidths();
    std::optional<ResultSet::Opened> opened;
    if (session.rules().alwaysOpensFields || history.IsDistinct(statement) ||
        !session.columns().hasColumnsFor(namesOf(session, chosenFields))) {
        opened = session.read(statement);
        if (!opened)
            return;
    }
    const ADODB::Notifications::Hold hold(session.notifications());
    if (opened)
        session.show(*opened);
    rollback.keepChanges();
    if (session.rules().writesFilter)
        session.writeFilter(statement);
    session.setFieldView(FieldView::Part);
    session.record(statement, chosenFields);
    session.host().fieldsChanged(statement);
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
}

const Command::Registration registration({
    .key = CommandKeys::SelField,
    .shortcut = u"Ctrl+L"_s,
    .button = {{102, u"选择字段"_s, u"选择要显示的字段"_s}},
    .isInViewer = true,
    .run = selectFields,
    .whyNot = [](Session &session) { return session.whyNot(DerivationStep::Fields); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
