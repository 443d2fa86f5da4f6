#pragma once

#include "filter/tree/FilterTree.h"

namespace KOVAVSFDataGridLib {

// A tree of conditions as consecutive lines, each group followed by its parts one level deeper. The first
// line is the outermost group, on level 0. Moves that are impossible change nothing; groups without parts are
// removed.
class FilterOutline
{
public:
    static constexpr int deepest = FilterSql::mostBrackets + 1; // level

    struct Line
    {
        int level = 0;
        FilterNode::Kind kind = FilterNode::Kind::Condition;
        qsizetype row = -1; // for a condition

        bool isGroup() const { return kind != FilterNode::Kind::Condition; }
        bool operator==(const Line &) const = default;
    };

    // A single empty group.
    FilterOutline() : m_lines{{0, FilterNode::Kind::All, -1}} {}
    explicit FilterOutline(const FilterNode &tree);
    // All groups have brackets.
    FilterNode tree() const;

    const QList<Line> &lines() const { return m_lines; }
    // The index of a condition's line.
    qsizetype lineOf(qsizetype row) const;
    // The index after a line and all of its parts.
    qsizetype endOf(qsizetype line) const;

    // Renumbers the conditions in order, and returns their old numbers.
    QList<qsizetype> renumber();

    void setKind(qsizetype group, FilterNode::Kind kind) { m_lines[group].kind = kind; }
    // Adds a condition as the last part of a group.
    void add(qsizetype group, qsizetype row);
    // The numbers of the rows after it are decreased.
    void removeRow(qsizetype row);

    // Moves a line with its parts past its neighbour: into an adjacent group, or out of its own at its start
    // or end. Returns its new index.
    qsizetype moveUp(qsizetype line);
    qsizetype moveDown(qsizetype line);
    // Moves it before the line `before`, to a level that is possible there.
    qsizetype moveTo(qsizetype line, qsizetype before, int level);
    // Puts a line into a new group, or replaces a group with its parts. The outermost one stays.
    void enclose(qsizetype line);
    void dissolve(qsizetype group);

private:
    void appendParts(const FilterNode &group, int level);
    FilterNode nodeAt(qsizetype line) const;
    qsizetype dropEmptyGroups(qsizetype tracked = 0);

    QList<Line> m_lines;
};

} // namespace KOVAVSFDataGridLib
