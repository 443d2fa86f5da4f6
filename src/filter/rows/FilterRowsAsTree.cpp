#include "filter/rows/FilterGrip.h"
#include "filter/rows/FilterGroupHead.h"
#include "filter/rows/FilterRows.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QFrame>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

// Shows the rows of a builder as a tree of groups.
namespace KOVAVSFDataGridLib {

void FilterRows::setGrouped(bool on)
{
    if (on == isGrouped())
        return;
    if (!on)
        m_outline.reset();
    else if (markUnmatchedBracket())
        return;
    else if (const auto tree = treeOf(frames()))
        m_outline = FilterOutline(*tree);
    arrange();
}

FilterGroupHead *FilterRows::newHead()
{
    auto *const head = new FilterGroupHead(this);
    connect(head, &FilterGroupHead::kindChanged, this, [this, head] {
        outline().setKind(lineOf(head), head->kind());
        arrange();
    });
    connect(head, &FilterGroupHead::addWanted, this, [this, head] { addTo(lineOf(head))->focusFirstPart(); });
    connect(head, &FilterGroupHead::dissolveWanted, this, [this, head] {
        outline().dissolve(lineOf(head));
        arrange();
        m_rows.constFirst()->focusFirstPart();
    });
    connectGrip(head->grip(), [this, head] { return lineOf(head); });
    return head;
}

qsizetype FilterRows::lineOf(const FilterGroupHead *head) const
{
    return m_lines.indexOf(head);
}

void FilterRows::connectGrip(const FilterGrip &grip, const std::function<qsizetype()> &line)
{
    connect(&grip, &FilterGrip::stepped, this, [this, line](int by) { step(line(), by); });
    connect(&grip, &FilterGrip::dragged, this, &FilterRows::showDropPlace);
    connect(&grip, &FilterGrip::cancelled, m_dropMark, &QFrame::hide);
    connect(&grip, &FilterGrip::dropped, this, [this, line](const QPoint &place) {
        m_dropMark->hide();
        const DropPlace drop = dropPlaceAt(place);
        outline().moveTo(line(), drop.before, drop.level);
        arrange();
    });
}

void FilterRows::step(qsizetype line, int by)
{
    const qsizetype now = by < 0 ? outline().moveUp(line) : outline().moveDown(line);
    arrange();
    // Headings are reused by position, so the focus must follow the group.
    if (const auto *head = qobject_cast<FilterGroupHead *>(m_lines.at(now)))
        head->grip().setFocus();
}

// The upper half of a line means the place before it, the lower half the one after it, or inside a group.
FilterRows::DropPlace FilterRows::dropPlaceAt(const QPoint &global) const
{
    const int y = mapFromGlobal(global).y();
    for (qsizetype i = 1; i < m_lines.size(); ++i) {
        const QRect place = m_lines.at(i)->geometry();
        const FilterOutline::Line &line = outline().lines().at(i);
        if (y < place.center().y())
            return {i, line.level, place.top()};
        if (y <= place.bottom())
            return {i + 1, line.level + (line.isGroup() ? 1 : 0), place.bottom()};
    }
    return {m_lines.size(), 1, m_lines.constLast()->geometry().bottom()};
}

void FilterRows::showDropPlace(const QPoint &global)
{
    const DropPlace drop = dropPlaceAt(global);
    const int left = indentOf(*this, drop.level);
    m_dropMark->setGeometry(left, drop.y - 1, width() - left, 3);
    m_dropMark->raise();
    m_dropMark->show();
}

// In the order of the tree, with the equivalent brackets.
void FilterRows::orderRows()
{
    QList<FilterRow *> ordered;
    for (const qsizetype row : outline().renumber())
        ordered.append(m_rows.at(row));
    m_rows = ordered;
    setFrames(flatOf(outline().tree()));
}

void FilterRows::layOutLines()
{
    const qsizetype groups =
        m_outline ? std::ranges::count_if(m_outline->lines(), &FilterOutline::Line::isGroup) : 0;
    while (m_heads.size() < groups) {
        m_heads.append(newHead());
        m_heads.constLast()->show();
    }
    m_heads.constFirst()->setVisible(groups > 0);
    while (m_heads.size() > std::max<qsizetype>(groups, 1)) {
        FilterGroupHead *const gone = m_heads.takeLast();
        gone->hide();
        gone->setParent(nullptr);
        gone->deleteLater(); // a click in it can still be in progress
    }
    m_lines.clear();
    int group = 0;
    for (const FilterOutline::Line &line : m_outline ? m_outline->lines() : QList<FilterOutline::Line>()) {
        if (!line.isGroup()) {
            m_lines.append(m_rows.at(line.row));
            continue;
        }
        FilterGroupHead *const head = m_heads.at(group++);
        const QSignalBlocker quiet(head);
        head->setPlace(group, line.level, line.kind);
        m_lines.append(head);
    }
    if (!m_outline)
        std::ranges::copy(m_rows, std::back_inserter(m_lines));
    QWidget *last = nullptr;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        QWidget *const line = m_lines.at(i);
        if (m_layout->indexOf(line) != i)
            m_layout->insertWidget(static_cast<int>(i), line);
        if (!m_outline)
            continue;
        if (auto *const head = qobject_cast<FilterGroupHead *>(line))
            last = last ? head->followInTabOrder(last) : head->lastPart();
        else if (auto *const row = qobject_cast<FilterRow *>(line))
            last = row->followInTabOrder(last);
    }
}

} // namespace KOVAVSFDataGridLib
