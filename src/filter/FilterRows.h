#pragma once

#include "filter/FilterRow.h"

class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// The rows of a builder, one below the other; there is always at least one.
class FilterRows final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterRows(QWidget *parent = nullptr);

    // Starts again with one row over these fields.
    void start(std::shared_ptr<const FilterRowContext> context);
    FilterRow *add();
    void focusFirstPart();

    // What the rows hold, and the same put into as many rows. When a field or its operator isn't offered, the
    // field is answered and the rows stay as they are.
    FilterState state() const;
    std::optional<QString> setState(const FilterState &state);
    // Puts a value into the first row that the next text typed replaces.
    void suggest(const QString &field, const QString &value);
    // The complete rows as a sentence; empty while their brackets don't match.
    QString sentence() const;

    // The rows that are complete, joined.
    QString preview() const;
    // All rows joined; empty, with the rows at fault marked and the first of them given the keyboard, when
    // something is wrong.
    QString checkedText();

Q_SIGNALS:
    void changed();

private:
    void remove(FilterRow *row);
    void arrange();
    void onRowChanged();
    bool markUnmatchedBracket();

    std::shared_ptr<const FilterRowContext> m_context;
    QList<FilterRow *> m_rows;
    QVBoxLayout *m_layout;
};

} // namespace KOVAVSFDataGridLib
