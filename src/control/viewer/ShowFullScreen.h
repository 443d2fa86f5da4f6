#pragma once

#include <QtCore/QString>

#include <functional>

class QWidget;

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;
struct ConditionRequest;

// Lets the user build a condition in a dialog above `parent`; an empty text when he cancels. `asked` says no
// more than what became of the last one.
using AskCondition = std::function<QString(QWidget *parent, const ConditionRequest &asked)>;

// Shows the session of a control on the whole screen until the user comes back, and brings the control in
// step with what he left: the result with its page and columns when he asked for another one, else the page
// alone. When he changed neither, nothing moves. The toolbar and the page button are enabled afterwards.
//
// The visit ends early when the host opens or closes a result of the session meanwhile, which the control
// then shows, or when it destroys `control`; the answer is false then. Nothing happens without records.
bool ShowFullScreen(QWidget &control, Session &session, GridParts &parts, const AskCondition &askCondition);

} // namespace KOVAVSFDataGridLib
