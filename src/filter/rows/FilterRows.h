#pragma once

#include "filter/rows/FilterRow.h"
#include "filter/tree/FilterOutline.h"

class QFrame;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

class FilterGroupHead;

// The rows of a builder, one below another; there is always at least one. They have brackets, or are shown as
// an equivalent tree of groups.
class FilterRows final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterRows(QWidget *parent = nullptr);

    // Starts again with a single row for these fields.
    void start(std::shared_ptr<const FilterRowContext> context);
    void startAgain() { start(m_context); }
    FilterRow *add() { return addTo(0); }
    void focusFirstPart();

    // The contents of the rows, and the reverse. If a field or its operator isn't offered, PutState returns
    // the field and changes nothing.
    FilterState state() const;
    std::optional<QString> setState(const FilterState &state);
    // See FilterRow::suggest; for the first row.
    void suggest(const QString &field, const QString &value);
    // Whether there is only one row, which nothing was typed into.
    bool isBlank() const;
    // Whether OR joins the complete rows.
    bool isAlternative() const;
    // The complete rows as a sentence; empty if their brackets don't match.
    QString sentence() const;

    // Shows the rows as a tree, or with brackets. If brackets don't match, marks them instead.
    void setGrouped(bool on);
    bool isGrouped() const { return m_outline.has_value(); }
    // Whether “并且” and “或者” are mixed without brackets; and adds brackets that show the precedence.
    bool needsBrackets() const;
    void addBrackets();

    // The condition of the complete rows.
    QString preview() const;
    // The same, and the contents, without rows that are a condition in force to which AND joins the others.
    QString builtPreview() const { return written(builtTree()); }
    FilterState builtState() const;
    // The condition of all rows. If there is an error, returns an empty text, marks the rows and moves the
    // focus to the first one.
    QString checkedText();

Q_SIGNALS:
    void changed();

private:
    FilterRow *addTo(qsizetype group);
    FilterRow *append(); // without arranging the rows
    void remove(FilterRow *row);
    FilterGroupHead *newHead();
    QList<FilterSql::Term> frames() const;
    void setFrames(const QList<FilterPlace> &places);
    std::optional<FilterNode> completeTree() const;
    std::optional<FilterNode> builtTree() const;
    QString written(const std::optional<FilterNode> &tree) const;
    // Only if isGrouped().
    FilterOutline &outline() { return *m_outline; }             // NOLINT(bugprone-unchecked-optional-access)
    const FilterOutline &outline() const { return *m_outline; } // NOLINT(bugprone-unchecked-optional-access)
    qsizetype lineOf(const FilterRow *row) const { return outline().lineOf(m_rows.indexOf(row)); }
    qsizetype lineOf(const FilterGroupHead *head) const;
    void step(qsizetype line, int by);
    void connectGrip(const FilterGrip &grip, const std::function<qsizetype()> &line);
    struct DropPlace
    {
        qsizetype before; // index of a line of the outline
        int level;
        int y; // its vertical position
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
    std::optional<FilterOutline> m_outline; // if shown as a tree
    QList<FilterGroupHead *> m_heads;
    QList<QWidget *> m_lines; // rows and headings from top to bottom
    QFrame *m_dropMark;
    QVBoxLayout *m_layout;
};

} // namespace KOVAVSFDataGridLib
