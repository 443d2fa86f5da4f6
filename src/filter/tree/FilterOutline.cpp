#include "filter/tree/FilterOutline.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

using Line = FilterOutline::Line;

void shift(QList<Line> &lines, int levels)
{
    for (Line &line : lines)
        line.level += levels;
}

bool isTooDeep(const QList<Line> &lines)
{
    return std::ranges::any_of(lines, [](const Line &line) { return line.level > FilterOutline::deepest; });
}

} // namespace

FilterOutline::FilterOutline(const FilterNode &tree)
{
    m_lines.append({0, tree.kind, -1});
    appendParts(tree, 1);
}

void FilterOutline::appendParts(const FilterNode &group, int level)
{
    for (const FilterNode &part : group.parts) {
        m_lines.append({level, part.kind, part.row});
        appendParts(part, level + 1);
    }
}

FilterNode FilterOutline::tree() const
{
    FilterNode outermost = nodeAt(0);
    outermost.hasBrackets = false;
    return outermost;
}

FilterNode FilterOutline::nodeAt(qsizetype line) const
{
    FilterNode node{.kind = m_lines.at(line).kind, .row = m_lines.at(line).row};
    node.hasBrackets = node.isGroup();
    for (qsizetype part = line + 1; part < endOf(line); part = endOf(part))
        node.parts.push_back(nodeAt(part));
    return node;
}

qsizetype FilterOutline::lineOf(qsizetype row) const
{
    const auto found =
        std::ranges::find_if(m_lines, [row](const Line &line) { return !line.isGroup() && line.row == row; });
    return found == m_lines.end() ? -1 : found - m_lines.begin();
}

qsizetype FilterOutline::endOf(qsizetype line) const
{
    qsizetype end = line + 1;
    while (end < m_lines.size() && m_lines.at(end).level > m_lines.at(line).level)
        ++end;
    return end;
}

QList<qsizetype> FilterOutline::renumber()
{
    QList<qsizetype> before;
    for (Line &line : m_lines) {
        if (line.isGroup())
            continue;
        before.append(line.row);
        line.row = before.size() - 1;
    }
    return before;
}

void FilterOutline::add(qsizetype group, qsizetype row)
{
    m_lines.insert(endOf(group), {m_lines.at(group).level + 1, FilterNode::Kind::Condition, row});
}

void FilterOutline::removeRow(qsizetype row)
{
    const qsizetype line = lineOf(row);
    if (line < 0)
        return;
    m_lines.removeAt(line);
    for (Line &other : m_lines) {
        if (other.row > row)
            --other.row;
    }
    dropEmptyGroups();
}

qsizetype FilterOutline::moveUp(qsizetype line)
{
    if (line < 1)
        return line;
    const int level = m_lines.at(line).level;
    if (m_lines.at(line - 1).level < level) // the first part of its group
        return level == 1 ? line : moveTo(line, line - 1, level - 1);
    qsizetype previous = line - 1;
    while (m_lines.at(previous).level > level)
        --previous;
    return m_lines.at(previous).isGroup() ? moveTo(line, line, level + 1) : moveTo(line, previous, level);
}

qsizetype FilterOutline::moveDown(qsizetype line)
{
    if (line < 1)
        return line;
    const int level = m_lines.at(line).level;
    const qsizetype next = endOf(line);
    if (next == m_lines.size() || m_lines.at(next).level < level) // the last part of its group
        return level == 1 ? line : moveTo(line, next, level - 1);
    return m_lines.at(next).isGroup() ? moveTo(line, next + 1, level + 1) : moveTo(line, endOf(next), level);
}

qsizetype FilterOutline::moveTo(qsizetype line, qsizetype before, int level)
{
    const qsizetype end = endOf(line);
    if (line < 1 || before < 1 || before > m_lines.size() || (before > line && before < end))
        return line;
    QList<Line> moved = m_lines.mid(line, end - line);
    QList<Line> lines = m_lines;
    lines.remove(line, end - line);
    const qsizetype place = before <= line ? before : before - moved.size();
    // Excludes places without a group around them and those between a group and its parts.
    const Line &above = lines.at(place - 1);
    const int highest = above.level + (above.isGroup() ? 1 : 0);
    const int lowest = place < lines.size() ? lines.at(place).level : 1;
    shift(moved, std::clamp(level, std::min(lowest, highest), highest) - moved.first().level);
    if (isTooDeep(moved))
        return line;
    for (qsizetype i = 0; i < moved.size(); ++i)
        lines.insert(place + i, moved.at(i));
    m_lines = lines;
    return dropEmptyGroups(place);
}

void FilterOutline::enclose(qsizetype line)
{
    if (line < 1)
        return;
    const qsizetype end = endOf(line);
    QList<Line> enclosed = m_lines.mid(line, end - line);
    enclosed.prepend({enclosed.first().level - 1, FilterNode::Kind::Any, -1});
    shift(enclosed, 1);
    if (isTooDeep(enclosed))
        return;
    m_lines = m_lines.first(line) + enclosed + m_lines.sliced(end);
}

void FilterOutline::dissolve(qsizetype group)
{
    if (group < 1 || !m_lines.at(group).isGroup())
        return;
    const qsizetype end = endOf(group);
    for (qsizetype part = group + 1; part < end; ++part)
        --m_lines[part].level;
    m_lines.removeAt(group);
}

// Returns the new index of the line `tracked`.
qsizetype FilterOutline::dropEmptyGroups(qsizetype tracked)
{
    for (qsizetype line = m_lines.size() - 1; line > 0; --line) {
        if (!m_lines.at(line).isGroup() || endOf(line) > line + 1)
            continue;
        m_lines.removeAt(line);
        tracked -= line < tracked ? 1 : 0;
    }
    return tracked;
}

} // namespace KOVAVSFDataGridLib
