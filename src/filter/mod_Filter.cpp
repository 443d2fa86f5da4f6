#include "filter/mod_Filter.h"

#include "ado/connection/EngineOf.h"
#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/frm_Filter.h"
#include "query/conditions/Conditions.h"

#include <QtCore/QJsonDocument>

namespace KOVAVSFDataGridLib {

bool isConnectionNeeded(const FilterRequest &request)
{
    return request.tableType == FromOwnStatement && request.connection &&
           !isRepeatable(request.connection, request.connectionString);
}

mod_Filter::mod_Filter(QWidget *parent) : m_parent(parent) {}

mod_Filter::~mod_Filter() = default;

void mod_Filter::SetFilterTableName()
{
    m_strTableName = KOVAVSFDataGridLib::SetFilterTableName(m_strTableName);
    m_nameParts = {};
    m_isTableKnown = true;
}

void mod_Filter::SplitFilterTableName()
{
    if (!m_strTableName.contains(u'.'))
        return;
    m_nameParts = KOVAVSFDataGridLib::SplitFilterTableName(m_strTableName);
    m_strTableName = m_nameParts.table;
}

void mod_Filter::PrepareFilterDialog(const FilterRequest &request)
{
    m_strFilterCondition.clear();
    m_isTableKnown = false;
    const QString fromText = GetTableOfSQL(request.sqlShow).value_or(QString());
    m_strTableName = fromText;
    if (!fromText.isEmpty()) {
        SetFilterTableName();
        // Except in a single name, a "." separates a table and its field.
        if (namesOwners(request.dbType) && !fromText.contains(u' '))
            SplitFilterTableName();
    }

    // A new dialog, without the conditions of the previous one.
    m_language.emplace();
    m_dialog = std::make_unique<frm_Filter>(m_parent);
    m_dialog->SetPicture(request.picture);
    m_shelf = request.shelf;
    SetFilter &builder = m_dialog->SetFilter1();
    builder.SetShelf(m_shelf);
    builder.SetSqlWanted(request.isSqlWanted);
    builder.Initialize(FilterTexts::TableCaption, request.dbType);
    if (isConnectionNeeded(request))
        builder.SetConnection(request.connection);
    else
        builder.SetConnectionString(request.connectionString);
    builder.SetCurrentTable(m_strTableName);
    builder.SetCurrentCondition(request.condition);
    if (request.result)
        builder.SetResult(*request.result);
    else if (m_isTableKnown)
        builder.SetTableName(fromText);
    if (!request.replaced.empty())
        builder.Begin(request.replaced, request.field);
    else if (!request.field.isEmpty())
        builder.Suggest(request.field, request.value);
}

QString mod_Filter::BuiltCondition() const
{
    return m_dialog && !m_strFilterCondition.isEmpty() ? m_dialog->SetFilter1().BuiltCondition() : QString();
}

QString mod_Filter::Built() const
{
    if (!m_dialog || m_strFilterCondition.isEmpty())
        return {};
    return QString::fromUtf8(
        QJsonDocument(toJson(m_dialog->SetFilter1().BuiltState())).toJson(QJsonDocument::Compact));
}

bool mod_Filter::IsSqlWanted() const
{
    return m_dialog && m_dialog->SetFilter1().IsSqlWanted();
}

void mod_Filter::NoteUsed()
{
    if (!m_dialog || !m_shelf.isThere())
        return;
    SavedFilters filters = m_shelf.filters();
    filters.noteUsed(m_dialog->SetFilter1().State());
    m_shelf.put(filters);
}

QString mod_Filter::ShowFilterDialog(const QString &refusal)
{
    m_strFilterCondition.clear();
    if (!m_dialog)
        return {};
    if (!refusal.isEmpty())
        m_dialog->SetFilter1().ShowNotice(refusal);
    if (m_dialog->exec() == QDialog::Accepted)
        m_strFilterCondition = m_dialog->strFilterCondition();
    return m_strFilterCondition;
}

} // namespace KOVAVSFDataGridLib
