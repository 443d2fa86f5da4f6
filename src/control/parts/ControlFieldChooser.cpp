#include "control/parts/ControlFieldChooser.h"

#include "control/parts/ToolbarIcons.h"
#include "query/FieldNames.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

ControlFieldChooser::ControlFieldChooser(QWidget *parent)
    : m_dialogs(parent, {toolbarIcon(u"SelField"_s), toolbarIcon(u"Sort"_s)})
{
}

std::optional<QString> ControlFieldChooser::ChooseVisibleFields(const QString &title,
                                                                const QStringList &allFields,
                                                                const QStringList &partFields)
{
    return m_dialogs.ChooseVisibleFields(title, allFields, partFields);
}

std::optional<QString> ControlFieldChooser::ChooseSort(const QString &title, const QStringList &allFields,
                                                       const QStringList &sortTerms)
{
    QStringList written;
    for (const QString &name : allFields)
        written.append(QuotedFieldName(m_database, name));
    return m_dialogs.ChooseSort(title, written, sortTerms);
}

} // namespace KOVAVSFDataGridLib
