#pragma once

#include "PropertyPage.h"

#include <optional>
#include <utility>

class QListWidget;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Edits "SQLPartDisplay", as text or by choosing from the fields in "SQLShow".
class KOVA_EXPORT PartDisplayField final : public PropertyPage
{
    Q_OBJECT

public:
    // Reads the names of a statement's fields, using the connection in the control's properties. Returns
    // nothing if they can't be read.
    using FieldReader =
        std::function<std::optional<QStringList>(const QObject &control, const QString &statement)>;

    // Shows nothing until a control is selected.
    explicit PartDisplayField(QWidget *parent = nullptr);

    // Without one, a "*" in SQLShow provides no fields. Set it before a control is selected.
    void SetFieldReader(FieldReader reader) { m_reader = std::move(reader); }

    // If the statement has no table, the lists don't change.
    void SelectionChanged() override;

private:
    void layOut();
    void listFields();
    // Moves the selected field, if any, and rewrites the statement.
    void move(QListWidget &from, QListWidget &to);
    void enableButtons();

    FieldReader m_reader;
    QListWidget *m_notChosen;
    QListWidget *m_chosen;
    QPushButton *m_add;
    QPushButton *m_remove;
    QString m_table;
    QString m_words; // before the list
    QString m_group; // after the table
};

} // namespace KOVAVSFDataGridLib
