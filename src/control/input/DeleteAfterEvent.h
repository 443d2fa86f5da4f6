#pragma once

class QWidget;

namespace KOVAVSFDataGridLib {

// For a part of a control that is deleted while Qt still processes an event of the part: removes it from the
// control, and deletes it when the event loop runs again.
void deleteAfterEvent(QWidget &part);

} // namespace KOVAVSFDataGridLib
