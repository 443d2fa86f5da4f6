#pragma once

namespace KOVAVSFDataGridLib {

class FieldChooser;
class Session;

// Shows the fields chosen by `chooser`, or by the session's user if it is null.
void showChosenFields(Session &session, FieldChooser *chooser = nullptr);

} // namespace KOVAVSFDataGridLib
