#pragma once

#include "forms/SelectionDialog.h"
#include "query/fields/FieldChooser.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

class QComboBox;
class QLabel;
class QPushButton;

namespace KOVAVSFDataGridLib {

class SortList;

// Lets the user choose sort fields and their order. Fill it in this order: SetTitle, AppendListFields,
// AppendListSortFields, AppendSortOrder; strRetFields() is then the sort as it stands behind ORDER BY.
class frmSelSortFields final : public SelectionDialog
{
    Q_OBJECT

public:
    explicit frmSelSortFields(QWidget *parent = nullptr);

    // The present sort's terms. False, changing nothing, when there is no list.
    bool AppendListSortFields(const QStringList *PassSortFields);
    // The fields to choose from. False, changing nothing, when there is no list or nothing in it.
    bool AppendListFields(const QStringList *PassAllFields);
    // The same, under the headings that the user sees; the sort is made of what statements write.
    bool AppendListFields(const QList<OfferedField> &fields);
    // The two order words; always True.
    bool AppendSortOrder();

private:
    QWidget *makeAddRow();
    QWidget *makeList();
    void connectKeys();
    void acceptChoice() override;

    void addField();
    void deleteField();
    // Moves the selected row up (-1) or down (1).
    void moveField(int by);
    void enableButtons();

    QHash<QString, QString> m_writtenByCaption;
    // In the order in which the tab key reaches them.
    QComboBox *m_fields;
    QComboBox *m_order;
    QPushButton *m_add;
    SortList *m_sort;
    QPushButton *m_up;
    QPushButton *m_down;
    QPushButton *m_delete;
    QLabel *m_hint;
};

} // namespace KOVAVSFDataGridLib
