#include "forms/DialogFieldChooser.h"

#include "forms/frmSelShowFields.h"
#include "forms/frmSelSortFields.h"

#include <QtWidgets/QApplication>

#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

std::optional<QString> answerOf(SelectionDialog &dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.strRetFields();
}

} // namespace

DialogFieldChooser::DialogFieldChooser(QWidget *parent, Pictures pictures)
    : m_parent(parent), m_pictures(std::move(pictures))
{
}

DialogFieldChooser::~DialogFieldChooser() = default;

// A modal window (for example the full-screen viewer) would cover a dialog whose parent is another window.
QWidget *DialogFieldChooser::windowBelow() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : m_parent.data();
}

std::optional<QString> DialogFieldChooser::ChooseVisibleFields(const QString &title,
                                                               const QList<OfferedField> &allFields,
                                                               const QStringList &partFields)
{
    frmSelShowFields dialog(windowBelow());
    dialog.SetPicture(m_pictures.fields);
    dialog.SetTitle(title);
    dialog.AppendListFields(allFields);
    dialog.SetListFieldCheck(&partFields);
    return answerOf(dialog);
}

std::optional<QString> DialogFieldChooser::ChooseSort(const QString &title,
                                                      const QList<OfferedField> &allFields,
                                                      const QStringList &sortTerms)
{
    frmSelSortFields dialog(windowBelow());
    dialog.SetPicture(m_pictures.sort);
    dialog.SetTitle(title);
    dialog.AppendListFields(allFields);
    dialog.AppendListSortFields(&sortTerms);
    dialog.AppendSortOrder();
    return answerOf(dialog);
}

} // namespace KOVAVSFDataGridLib
