#include "control/face/NewValuePane.h"

#include "control/face/KOVAVSFDataGrid.h"
#include "control/parts/ValueViewer.h"
#include "forms/value/ValuePane.h"

#include <QtGui/QShortcut>

#include <utility>

namespace KOVAVSFDataGridLib {

QWidget *newValuePane(KOVAVSFDataGrid &grid, QWidget *parent, std::function<void()> bring)
{
    auto *pane = new ValuePane(parent);
    pane->putHasAccessKeys(false); // the host may use these keys
    if (ValueViewer *const viewer = ValueViewer::of(grid))
        viewer->setPane(*pane, std::move(bring));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F3}) {
        auto *back = new QShortcut(key, pane);
        back->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(back, &QShortcut::activated, &grid, [&grid] {
            grid.activateWindow(); // the pane may have a window of its own
            grid.setFocus();
        });
    }
    return pane;
}

} // namespace KOVAVSFDataGridLib
