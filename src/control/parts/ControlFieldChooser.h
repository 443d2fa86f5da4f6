#pragma once

#include "forms/DialogFieldChooser.h"
#include "sql/AllDBType.h"

namespace KOVAVSFDataGridLib {

// Asks with the dialogs. A sort is made of names as statements need them, so the fields to sort by are
// offered in brackets (double quotes for Oracle) where a name can't stand plain.
class ControlFieldChooser final : public FieldChooser
{
public:
    explicit ControlFieldChooser(QWidget *parent);

    void setDatabase(AllDBType database) { m_database = database; }

    std::optional<QString> ChooseVisibleFields(const QString &title, const QStringList &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &title, const QStringList &allFields,
                                      const QStringList &sortTerms) override;

private:
    DialogFieldChooser m_dialogs;
    AllDBType m_database = dbAccess;
};

} // namespace KOVAVSFDataGridLib
