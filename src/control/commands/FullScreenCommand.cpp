#include "control/commands/FullScreenCommand.h"

#include "control/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

void ShowFullScreen(ControlHub &hub)
{
    if (!hub.hasRecords())
        return;
    if (hub.isSingleRecordShown())
        hub.showMultiRecordView();
}

} // namespace KOVAVSFDataGridLib
