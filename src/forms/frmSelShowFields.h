#pragma once

#include "forms/SelectionDialog.h"
#include "query/fields/FieldChooser.h"

#include <QtCore/QStringList>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace KOVAVSFDataGridLib {

// Lets the user tick the fields to show. Fill it in this order: SetTitle, AppendListFields,
// SetListFieldCheck; strRetFields() is then the ticked fields as they stand behind SELECT.
class frmSelShowFields final : public SelectionDialog
{
    Q_OBJECT

public:
    explicit frmSelShowFields(QWidget *parent = nullptr);

    // The fields to choose from, in their order. False, changing nothing, when there is no list.
    bool AppendListFields(const QStringList *PassAllFields);
    // The same, with the text that a chosen field adds to the result.
    void AppendListFields(const QList<OfferedField> &fields);
    // Ticks the rows that are named plain, in brackets or in double quotes; ticks none away. False when there
    // is no list.
    bool SetListFieldCheck(const QStringList *PassPartFields);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    QWidget *makeSearchRow();
    QWidget *makeList();
    QWidget *makeCheckRow();
    void acceptChoice() override;

    QList<QTreeWidgetItem *> items() const;
    QTreeWidgetItem *firstListed() const; // null when the search hides all
    void listOnly(const QString &part);
    // Gives every listed row the state that `change` makes of its own.
    void changeChecks(bool (*change)(bool isChecked));
    void countChecks();

    QLineEdit *m_search = nullptr;
    QTreeWidget *m_list;
    QLabel *m_count;
    QPushButton *m_all = nullptr;
    QPushButton *m_none = nullptr;
    QPushButton *m_invert = nullptr;
};

} // namespace KOVAVSFDataGridLib
