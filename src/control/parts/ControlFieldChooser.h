#pragma once

#include "forms/DialogFieldChooser.h"

namespace KOVAVSFDataGridLib {

// Asks with the dialogs, under the pictures of the buttons that open them.
class ControlFieldChooser final : public FieldChooser
{
public:
    explicit ControlFieldChooser(QWidget *parent);

    std::optional<QString> ChooseVisibleFields(const QString &title, const QList<OfferedField> &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                      const QStringList &sortTerms) override;

private:
    DialogFieldChooser m_dialogs;
};

} // namespace KOVAVSFDataGridLib
