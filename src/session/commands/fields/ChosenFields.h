#pragma once

namespace KOVAVSFDataGridLib {

class FieldChooser;
class Session;

// Shows the fields that `chooser` chooses, the session's user when it is null.
void showChosenFields(Session &session, FieldChooser *chooser = nullptr);

} // namespace KOVAVSFDataGridLib
