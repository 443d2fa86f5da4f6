#pragma once

#include <QtCore/QString>

#include <functional>

class QWidget;

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;
struct ConditionRequest;

// Lets the user build a condition in a dialog above `parent`; empty if the user cancels. `asked` contains
// only the state of the previous condition.
using AskCondition = std::function<QString(QWidget *parent, const ConditionRequest &asked)>;

// Shows the session of a control in full screen until the user comes back, and then updates the control: with
// the result, its page and columns if the user opened another one, else with the page only. If neither has
// changed, nothing moves. The toolbar and the page button are enabled afterwards.
//
// Ends early and returns false if the host opens or closes a result of the session meanwhile, which the
// control then shows, or if it destroys `control`. Does nothing if there are no records.
bool ShowFullScreen(QWidget &control, Session &session, GridParts &parts, const AskCondition &askCondition);

} // namespace KOVAVSFDataGridLib
