#pragma once

#include "query/conditions/SelectionText.h"

#include <QtWidgets/QTreeWidget>

namespace KOVAVSFDataGridLib {

// The terms of a sort, one per row: field and order word. The user changes their order by dragging.
class SortList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SortList(QWidget *parent = nullptr);

    void append(const SortTerm &term);
    bool contains(const QString &field) const;
    QList<SortTerm> terms() const;

    int selectedRow() const; // -1 if there is none
    // Moves a row to position `to` and selects it. Does
    // nothing if one of the two is not a row of the list.
    void moveRow(int from, int to);
    void removeRow(int row);
    // Changes ascending to descending and back.
    static void flipOrder(QTreeWidgetItem *item);

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dropEvent(QDropEvent *event) override;

private:
    // The row before which an item dropped there is inserted.
    int rowBehind(QPoint position) const;
};

} // namespace KOVAVSFDataGridLib
