#pragma once

class QWidget;

namespace KOVAVSFDataGridLib {

// For a part of a control that is being deleted in the middle of an event which Qt has not done with the part
// yet: takes it out of the control, and deletes it when the event loop runs again.
void deleteAfterEvent(QWidget &part);

} // namespace KOVAVSFDataGridLib
