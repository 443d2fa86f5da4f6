#include "forms/DialogFieldChooser.h"

#include "forms/frmSelShowFields.h"
#include "forms/frmSelSortFields.h"

#include <QtWidgets/QApplication>

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

// A window that is modal itself, the full-screen viewer say, would cover a dialog above any other.
QWidget *DialogFieldChooser::windowBelow() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : m_parent.data();
}

std::optional<QString> DialogFieldChooser::ChooseVisibleFields(const QString &title,
                                                               const QStringList &allFields,
                                                               const QStringList &partFields)
{
    frmSelShowFields dialog(windowBelow());
    dialog.SetTitle(title);
    dialog.AppendListFields(&allFields);
    dialog.SetListFieldCheck(&partFields);
    return answerOf(dialog);
}

std::optional<QString> DialogFieldChooser::ChooseSort(const QString &title, const QStringList &allFields,
                                                      const QStringList &sortTerms)
{
    frmSelSortFields dialog(windowBelow());
    dialog.SetTitle(title);
    dialog.AppendListFields(&allFields);
    dialog.AppendListSortFields(&sortTerms);
    dialog.AppendSortOrder();
    return answerOf(dialog);
}

} // namespace KOVAVSFDataGridLib
