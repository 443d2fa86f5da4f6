#include "forms/widgets/SortList.h"

#include "forms/FormTexts.h"
#include "query/QueryTexts.h"

#include <QtGui/QCursor>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

SortList::SortList(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(u"lvSortFields"_s);
    setAccessibleName(FormTexts::SelectSortTitle);
    setHeaderLabels({FormTexts::SortFieldColumn, FormTexts::OrderColumn});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setExpandsOnDoubleClick(false);
    setDragDropMode(QAbstractItemView::InternalMove);
}

void SortList::append(const SortTerm &term)
{
    auto *item = new QTreeWidgetItem({term.field, term.orderWord});
    // Items can't be dropped on a row, only between rows.
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                   Qt::ItemNeverHasChildren);
    addTopLevelItem(item);
}

bool SortList::contains(const QString &field) const
{
    return !findItems(field, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

QList<SortTerm> SortList::terms() const
{
    QList<SortTerm> terms;
    for (int row = 0; row < topLevelItemCount(); ++row)
        terms.append({topLevelItem(row)->text(0), topLevelItem(row)->text(1)});
    return terms;
}

int SortList::selectedRow() const
{
    const auto selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.constFirst());
}

void SortList::moveRow(int from, int to)
{
    const int count = topLevelItemCount();
    if (from < 0 || from >= count || to < 0 || to >= count || from == to)
        return;
    QTreeWidgetItem *item = takeTopLevelItem(from);
    insertTopLevelItem(to, item);
    setCurrentItem(item);
}

void SortList::removeRow(int row)
{
    delete takeTopLevelItem(row);
}

void SortList::flipOrder(QTreeWidgetItem *item)
{
    const bool isDescending = QueryTexts::Descending.is(item->text(1));
    item->setText(1, isDescending ? QueryTexts::Ascending() : QueryTexts::Descending());
}

int SortList::rowBehind(QPoint position) const
{
    const QModelIndex at = indexAt(position);
    if (!at.isValid())
        return topLevelItemCount();
    return position.y() < visualRect(at).center().y() ? at.row() : at.row() + 1;
}

// The view's default drag loses the selection of the moved row, and then the buttons beside the list have
// nothing to act on. Here the row is moved on the drop, and nothing remains to be done when the drag ends.
void SortList::startDrag(Qt::DropActions)
{
    const QRect row = visualItemRect(currentItem());
    auto *drag = new QDrag(this);
    drag->setMimeData(model()->mimeData(selectedIndexes()));
    drag->setPixmap(viewport()->grab(row));
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - row.topLeft());
    drag->exec(Qt::MoveAction);
}

void SortList::dropEvent(QDropEvent *event)
{
    const int from = selectedRow();
    const int behind = rowBehind(event->position().toPoint());
    moveRow(from, behind > from ? behind - 1 : behind);
    event->acceptProposedAction();
    QDragLeaveEvent end;
    dragLeaveEvent(&end); // stops automatic scrolling
}

} // namespace KOVAVSFDataGridLib
