#include "control/parts/DialogQuestions.h"

#include "ado/Error.h"
#include "control/parts/FormatDialog.h"
#include "control/parts/GridTexts.h"
#include "control/parts/toolbar/ToolbarIcons.h"
#include "control/settings/Configuration.h"
#include "control/settings/KeptFilters.h"
#include "filter/mod_Filter.h"
#include "filter/ticks/ColumnTicks.h"
#include "forms/ExportDialog.h"
#include "forms/FindDialog.h"
#include "forms/Messages.h"
#include "print/PrintPreview.h"
#include "session/commands/CommandKeys.h"

namespace KOVAVSFDataGridLib {

DialogQuestions::DialogQuestions(QWidget *parent)
    : m_parent(parent),
      m_chooser(parent, {toolbarIcon(CommandKeys::SelField), toolbarIcon(CommandKeys::Sort)})
{
}

std::optional<QString> DialogQuestions::ChooseVisibleFields(const QString &title,
                                                            const QList<OfferedField> &allFields,
                                                            const QStringList &partFields)
{
    return m_chooser.ChooseVisibleFields(title, allFields, partFields);
}

std::optional<QString> DialogQuestions::ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                                   const QStringList &sortTerms)
{
    return m_chooser.ChooseSort(title, allFields, sortTerms);
}

void DialogQuestions::show(const QString &text)
{
    Messages::show(m_parent, text);
}

void DialogQuestions::showWithCause(const QString &text, const QString &cause)
{
    Messages::showWithCause(m_parent, text, cause);
}

bool DialogQuestions::ask(const QString &text, const QString &title)
{
    return Messages::ask(m_parent, text, title, QMessageBox::Question, QMessageBox::No);
}

bool DialogQuestions::offerNewValues(const QString &text, const QString &cause)
{
    return Messages::offer(m_parent, text, cause, GridTexts::ShowNewValues);
}

Unsaved DialogQuestions::askUnsaved(const QString &reason, bool isChangedByOthers)
{
    switch (Messages::askToSave(m_parent, reason, GridTexts::UnsavedTitle,
                                isChangedByOthers ? GridTexts::ShowNewValues : QString())) {
    case QMessageBox::Save:
        return Unsaved::SaveAgain;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    case QMessageBox::NoButton:
        return Unsaved::ShowNewValues;
    default:
        return Unsaved::Stay;
    }
}

QString DialogQuestions::askCondition(const ConditionRequest &request)
{
    const auto filter =
        request.memory ? std::static_pointer_cast<mod_Filter>(request.memory) : preparedFilter(request);
    request.memory = filter;
    QString condition = filter->ShowFilterDialog(request.refusal);
    request.built = filter->Built();
    request.builtCondition = filter->BuiltCondition();
    saveSqlWanted(filter->IsSqlWanted());
    return condition;
}

void DialogQuestions::noteConditionUsed(const ConditionRequest &request)
{
    if (request.memory)
        std::static_pointer_cast<mod_Filter>(request.memory)->NoteUsed();
}

FilterRequest DialogQuestions::filterRequest(const ConditionRequest &request) const
{
    FilterRequest prepared;
    prepared.connectionString = request.connectionString;
    prepared.dbType = request.dbType;
    prepared.tableType = request.tableType;
    prepared.sqlShow = request.sqlShow;
    prepared.connection = request.connection;
    prepared.result = request.result;
    prepared.condition = request.condition;
    prepared.field = request.field;
    prepared.value = request.value;
    prepared.built = request.built;
    prepared.replaced = request.replaced;
    prepared.isSqlWanted = readSqlWanted();
    prepared.picture = toolbarIcon(CommandKeys::Filter);
    if (!request.table.isEmpty()) {
        const FilterPlace place{m_hostKey ? m_hostKey() : QString(), request.connectionString, request.table};
        prepared.shelf = {[place] { return readFilters(place); },
                          [place](const QString &filters) { saveFilters(place, filters); }};
    }
    return prepared;
}

std::shared_ptr<mod_Filter> DialogQuestions::preparedFilter(const ConditionRequest &request)
{
    auto filter = std::make_shared<mod_Filter>(m_parent);
    filter->PrepareFilterDialog(filterRequest(request));
    return filter;
}

std::optional<ValuesAnswer> DialogQuestions::askValues(const ValuesRequest &request)
{
    const auto choice = askColumnTicks(m_parent, filterRequest(request.records), request.written);
    if (!choice)
        return {};
    return ValuesAnswer{choice->condition, choice->built, choice->wantsBuilder};
}

std::optional<FindAnswer> DialogQuestions::askWords(const colDataFields &fields)
{
    FindDialog dialog(m_parent);
    dialog.SetEarlierWords(readSearchedWords());
    if (!dialog.InitFrm(&fields))
        return {};
    if (dialog.exec() == QDialog::Accepted)
        saveSearchedWords(dialog.EarlierWords());
    return FindAnswer{dialog.strFindText(), dialog.bIsAppointField(), dialog.strFieldName()};
}

std::optional<QString> DialogQuestions::askFormat(const FormatRequest &request)
{
    FormatDialog dialog(request.column, request.isBoolean, request.format, request.sample, request.decimals,
                        m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.format();
}

std::optional<ExportAnswer> DialogQuestions::askExport(const ExportRequest &request)
{
    ExportDialog dialog(
        {request.name, request.records, request.markedRecords, request.shownColumns, request.allColumns},
        m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return ExportAnswer{dialog.file(), dialog.options(), dialog.isMarkedOnly(), dialog.hasAllColumns()};
}

std::optional<PrintAnswer> DialogQuestions::askPrint(const PrintRequest &request)
{
    const QPointer<QWidget> parent = m_parent;
    PrintPreview dialog({request.title, request.file, request.all.count(),
                         std::max<qint64>(0, request.marked.count()), request.columns, request.formats,
                         request.write},
                        m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    try {
        return PrintAnswer{dialog.newWriter(), dialog.isMarkedOnly()};
    } catch (const ADODB::Error &error) {
        Messages::show(parent, error.Description());
        return {};
    }
}

} // namespace KOVAVSFDataGridLib
