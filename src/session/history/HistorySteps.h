#pragma once

#include "session/history/StatementTrail.h"

namespace KOVAVSFDataGridLib {

class Session;

// A statement that the user can go to.
struct HistoryStep
{
    int steps; // relative to the shown one: less than 0 back, more than 0 forward
    QString statement;
    std::optional<StatementTrail::Note> note;
};

// All of them including the shown one, newest first.
std::vector<HistoryStep> historySteps(Session &session);

// Goes back by that many statements, which removes them from the
// history, or forward, which restores removed ones. Both leave the
// single-record view. They do nothing if there is no such statement.
void goBack(Session &session, qsizetype steps);
void goToOrigin(Session &session);
void goForward(Session &session, qsizetype steps);

// Saves the current record and goes back or forward, as a command of the user.
void goToStep(Session &session, int steps);

} // namespace KOVAVSFDataGridLib
