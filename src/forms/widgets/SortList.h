#pragma once

#include "query/conditions/SelectionText.h"

#include <QtWidgets/QTreeWidget>

namespace KOVAVSFDataGridLib {

// The terms of a sort, one a row: field and order word. The user changes their order by dragging.
class SortList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SortList(QWidget *parent = nullptr);

    void append(const SortTerm &term);
    bool contains(const QString &field) const;
    QList<SortTerm> terms() const;

    int selectedRow() const; // -1 when there is none
    // Takes the row out, puts it in again as row `to` and selects it. Nothing happens when one of the two is
    // no row of the list.
    void moveRow(int from, int to);
    void removeRow(int row);
    // Turns ascending into descending and back.
    static void flipOrder(QTreeWidgetItem *item);

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dropEvent(QDropEvent *event) override;

private:
    // The row in front of which something dropped there belongs.
    int rowBehind(QPoint position) const;
};

} // namespace KOVAVSFDataGridLib
