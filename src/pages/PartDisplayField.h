#pragma once

#include "PropertyPage.h"

class QListWidget;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Edits "SQLPartDisplay", as text or by choosing from the fields in "SQLShow".
class KOVA_EXPORT PartDisplayField final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows nothing until a control is selected.
    explicit PartDisplayField(QWidget *parent = nullptr);

    // If the statement has no table, the lists don't change.
    void SelectionChanged() override;

private:
    void layOut();
    void listFields();
    // Moves the selected field, if any, and rewrites the statement.
    void move(QListWidget &from, QListWidget &to);
    void enableButtons();

    QListWidget *m_notChosen;
    QListWidget *m_chosen;
    QPushButton *m_add;
    QPushButton *m_remove;
    QString m_table;
    QString m_words; // before the list
};

} // namespace KOVAVSFDataGridLib
