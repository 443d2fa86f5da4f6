#pragma once

#include "filter/tree/FilterTree.h"

namespace KOVAVSFDataGridLib {

// A tree of conditions as lines one below the other, each group followed by its parts one level deeper. The
// first line is the outermost group, on level 0. Moves that can't be made leave the lines as they are; groups
// that lose their last part go.
class FilterOutline
{
public:
    static constexpr int deepest = FilterSql::mostBrackets + 1; // level

    struct Line
    {
        int level = 0;
        FilterNode::Kind kind = FilterNode::Kind::Condition;
        qsizetype row = -1; // of a condition

        bool isGroup() const { return kind != FilterNode::Kind::Condition; }
        bool operator==(const Line &) const = default;
    };

    // One group without any parts.
    FilterOutline() : m_lines{{0, FilterNode::Kind::All, -1}} {}
    explicit FilterOutline(const FilterNode &tree);
    // All groups have brackets.
    FilterNode tree() const;

    const QList<Line> &lines() const { return m_lines; }
    // The line of a condition.
    qsizetype lineOf(qsizetype row) const;
    // The line that follows a line and all of its parts.
    qsizetype endOf(qsizetype line) const;

    // Numbers the conditions in their order, and answers the numbers that they had.
    QList<qsizetype> renumber();

    void setKind(qsizetype group, FilterNode::Kind kind) { m_lines[group].kind = kind; }
    // Adds a condition as the last part of a group.
    void add(qsizetype group, qsizetype row);
    // Further rows than those that there are get the numbers after it.
    void removeRow(qsizetype row);

    // A line with its parts past its neighbour, into a group beside it or out of its own at its begin or end.
    // The answer is where it is now.
    qsizetype moveUp(qsizetype line);
    qsizetype moveDown(qsizetype line);
    // Before the line `before`, on a level that is possible there.
    qsizetype moveTo(qsizetype line, qsizetype before, int level);
    // A new group around a line, and a group replaced by its parts. The outermost one stays.
    void enclose(qsizetype line);
    void dissolve(qsizetype group);

private:
    void appendParts(const FilterNode &group, int level);
    FilterNode nodeAt(qsizetype line) const;
    qsizetype dropEmptyGroups(qsizetype tracked = 0);

    QList<Line> m_lines;
};

} // namespace KOVAVSFDataGridLib
