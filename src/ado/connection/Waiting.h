#pragma once

#include "KovaExport.h"

#include <QtCore/QtGlobal>

#include <functional>

namespace ADODB {

// For as long as it lives, what waits for a server in this thread, and has nobody of its own to ask, asks
// here whether to go on: every few milliseconds, from this thread. When the answer is false the wait ends
// with dbErrCancelled. They can be nested; the innermost is asked.
class KOVA_EXPORT Waiting
{
public:
    explicit Waiting(std::function<bool()> shouldContinue);
    ~Waiting();
    Q_DISABLE_COPY_MOVE(Waiting)

    // Whether somebody can end a wait in this thread.
    static bool isWatched();
    // True where nobody can.
    static bool shouldContinue();

private:
    std::function<bool()> m_shouldContinue;
    Waiting *m_outer;
};

} // namespace ADODB
