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
