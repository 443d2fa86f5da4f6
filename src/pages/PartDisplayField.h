#pragma once

#include "PropertyPage.h"

class QListWidget;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Edits "SQLPartDisplay", typed or put together from the fields that "SQLShow" names.
class KOVA_EXPORT PartDisplayField final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows nothing until a control is selected.
    explicit PartDisplayField(QWidget *parent = nullptr);

    // A statement without a table leaves the lists as they are.
    void SelectionChanged() override;

private:
    void layOut();
    void listFields();
    // Moves the selected field, if any, and writes the statement anew.
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
