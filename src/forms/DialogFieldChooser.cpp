#include "forms/DialogFieldChooser.h"

#include "forms/frmSelShowFields.h"
#include "forms/frmSelSortFields.h"

namespace KOVAVSFDataGridLib {

namespace {

std::optional<QString> answerOf(SelectionDialog &dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.strRetFields();
}

} // namespace

DialogFieldChooser::DialogFieldChooser(QWidget *parent) : m_parent(parent) {}

DialogFieldChooser::~DialogFieldChooser() = default;

std::optional<QString> DialogFieldChooser::ChooseVisibleFields(const QString &title,
                                                               const QStringList &allFields,
                                                               const QStringList &partFields)
{
    frmSelShowFields dialog(m_parent);
    dialog.SetTitle(title);
    dialog.AppendListFields(&allFields);
    dialog.SetListFieldCheck(&partFields);
    return answerOf(dialog);
}

std::optional<QString> DialogFieldChooser::ChooseSort(const QString &title, const QStringList &allFields,
                                                      const QStringList &sortTerms)
{
    frmSelSortFields dialog(m_parent);
    dialog.SetTitle(title);
    dialog.AppendListFields(&allFields);
    dialog.AppendListSortFields(&sortTerms);
    dialog.AppendSortOrder();
    return answerOf(dialog);
}

} // namespace KOVAVSFDataGridLib
