#include "filter/mod_Filter.h"

#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/frm_Filter.h"
#include "query/conditions/Conditions.h"

namespace KOVAVSFDataGridLib {

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
        // Elsewhere than in one name a "." stands between a table and its field.
        if (request.dbType == dbOracle && !fromText.contains(u' '))
            SplitFilterTableName();
    }

    // A dialog begins without the conditions of the one before.
    m_dialog = std::make_unique<frm_Filter>(m_parent);
    m_dialog->SetPicture(request.picture);
    SetFilter &builder = m_dialog->SetFilter1();
    builder.Initialize(FilterTexts::TableCaption, request.dbType);
    constexpr qint32 statementOfTheHost = 2;
    if (request.tableType == statementOfTheHost && request.connection)
        builder.SetConnection(request.connection);
    else
        builder.SetConnectionString(request.connectionString);
    builder.SetCurrentTable(m_strTableName);
    if (request.result)
        builder.SetResult(*request.result);
    else if (m_isTableKnown)
        builder.SetTableName(fromText);
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
