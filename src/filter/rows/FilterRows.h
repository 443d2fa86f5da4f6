#pragma once

#include "filter/rows/FilterRow.h"
#include "filter/tree/FilterOutline.h"

class QFrame;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

class FilterGroupHead;

// The rows of a builder, one below the other; there is always at least one. They have brackets, or are shown
// as a tree of groups, which says the same.
class FilterRows final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterRows(QWidget *parent = nullptr);

    // Starts again with one row over these fields.
    void start(std::shared_ptr<const FilterRowContext> context);
    void startAgain() { start(m_context); }
    FilterRow *add() { return addTo(0); }
    void focusFirstPart();

    // What the rows hold, and the same put into as many rows. When a field or its operator isn't offered, the
    // field is answered and the rows stay as they are.
    FilterState state() const;
    std::optional<QString> setState(const FilterState &state);
    // As FilterRow has it, in the first row.
    void suggest(const QString &field, const QString &value);
    // Whether there is only one row, which nothing was typed into.
    bool isBlank() const;
    // Whether OR joins the complete rows.
    bool isAlternative() const;
    // The complete rows as a sentence; empty while their brackets don't match.
    QString sentence() const;

    // Shows the rows as a tree, or with brackets. Where brackets don't match they are marked instead.
    void setGrouped(bool on);
    bool isGrouped() const { return m_outline.has_value(); }
    // Whether “并且” and “或者” meet without brackets, and the brackets that say how they are read.
    bool needsBrackets() const;
    void addBrackets();

    // The rows that are complete, joined.
    QString preview() const;
    // All rows joined; empty, with the rows at fault marked and the first of them given the keyboard, when
    // something is wrong.
    QString checkedText();

Q_SIGNALS:
    void changed();

private:
    FilterRow *addTo(qsizetype group);
    void remove(FilterRow *row);
    FilterGroupHead *newHead();
    QList<FilterSql::Term> frames() const;
    void setFrames(const QList<FilterPlace> &places);
    std::optional<FilterNode> completeTree() const;
    // Where isGrouped().
    FilterOutline &outline() { return *m_outline; }             // NOLINT(bugprone-unchecked-optional-access)
    const FilterOutline &outline() const { return *m_outline; } // NOLINT(bugprone-unchecked-optional-access)
    qsizetype lineOf(const FilterRow *row) const { return outline().lineOf(m_rows.indexOf(row)); }
    qsizetype lineOf(const FilterGroupHead *head) const;
    void step(qsizetype line, int by);
    void connectGrip(const FilterGrip &grip, const std::function<qsizetype()> &line);
    struct DropPlace
    {
        qsizetype before; // a line of the outline
        int level;
        int y; // where it is shown
    };
    DropPlace dropPlaceAt(const QPoint &global) const;
    void showDropPlace(const QPoint &global);
    void orderRows();
    void layOutLines();
    void arrange();
    void onRowChanged();
    bool markUnmatchedBracket();

    std::shared_ptr<const FilterRowContext> m_context;
    QList<FilterRow *> m_rows;
    std::optional<FilterOutline> m_outline; // of a tree
    QList<FilterGroupHead *> m_heads;
    QList<QWidget *> m_lines; // rows and headings from above
    QFrame *m_dropMark;
    QVBoxLayout *m_layout;
};

} // namespace KOVAVSFDataGridLib
