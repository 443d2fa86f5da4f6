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

// Lets the user tick the fields to show. Call, in this order, SetTitle, AppendListFields and
// SetListFieldCheck. strRetFields() then returns the ticked fields as a SELECT list.
class frmSelShowFields final : public SelectionDialog
{
    Q_OBJECT

public:
    explicit frmSelShowFields(QWidget *parent = nullptr);

    // The fields to choose from, in order. Returns false and changes nothing if there is no list.
    bool AppendListFields(const QStringList *PassAllFields);
    // The same, with the text that a chosen field adds to the result.
    void AppendListFields(const QList<OfferedField> &fields);
    // Ticks the rows whose names are listed plain, in brackets or in double quotes; does not untick any.
    // Returns false if there is no list.
    bool SetListFieldCheck(const QStringList *PassPartFields);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    QWidget *makeSearchRow();
    QWidget *makeList();
    QWidget *makeCheckRow();
    void acceptChoice() override;

    QList<QTreeWidgetItem *> items() const;
    QTreeWidgetItem *firstListed() const; // null if the search hides all rows
    void listOnly(const QString &part);
    // Sets each listed row to the result of `change` for its current state.
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
