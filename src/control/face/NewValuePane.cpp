#include "control/face/NewValuePane.h"

#include "control/face/KOVAVSFDataGrid.h"
#include "control/parts/ValueViewer.h"
#include "forms/value/ValuePane.h"

#include <utility>

namespace KOVAVSFDataGridLib {

QWidget *newValuePane(KOVAVSFDataGrid &grid, QWidget *parent, std::function<void()> bring)
{
    auto *pane = new ValuePane(parent);
    pane->putHasAccessKeys(false); // the host may use these keys
    if (ValueViewer *const viewer = ValueViewer::of(grid))
        viewer->setPane(*pane, std::move(bring));
    return pane;
}

} // namespace KOVAVSFDataGridLib
