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

// Lets the user choose sort fields and their order. Call, in this order, SetTitle, AppendListFields,
// AppendListSortFields and AppendSortOrder. strRetFields() then returns the ORDER BY list.
class frmSelSortFields final : public SelectionDialog
{
    Q_OBJECT

public:
    explicit frmSelSortFields(QWidget *parent = nullptr);

    // The terms of the current sort. Returns false and changes nothing if there is no list.
    bool AppendListSortFields(const QStringList *PassSortFields);
    // The fields to choose from. Returns false and changes nothing if there is no list or it is empty.
    bool AppendListFields(const QStringList *PassAllFields);
    // The same, shown by their headings; the sort uses their names in statements.
    bool AppendListFields(const QList<OfferedField> &fields);
    // The two order words. Always returns true.
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
    QHash<QString, QString> m_whyNotSorted; // by caption; those that can be sorted by are not in it
    // In tab order.
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
