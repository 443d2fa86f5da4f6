#include "control/parts/ControlFieldChooser.h"

#include "control/parts/ToolbarIcons.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

ControlFieldChooser::ControlFieldChooser(QWidget *parent)
    : m_dialogs(parent, {toolbarIcon(u"SelField"_s), toolbarIcon(u"Sort"_s)})
{
}

std::optional<QString> ControlFieldChooser::ChooseVisibleFields(const QString &title,
                                                                const QList<OfferedField> &allFields,
                                                                const QStringList &partFields)
{
    return m_dialogs.ChooseVisibleFields(title, allFields, partFields);
}

std::optional<QString> ControlFieldChooser::ChooseSort(const QString &title,
                                                       const QList<OfferedField> &allFields,
                                                       const QStringList &sortTerms)
{
    return m_dialogs.ChooseSort(title, allFields, sortTerms);
}

} // namespace KOVAVSFDataGridLib
