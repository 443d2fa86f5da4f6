#pragma once

#include "KovaExport.h"

#include <QtCore/QtGlobal>

#include <functional>
#include <memory>
#include <optional>

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

private:
    friend class Watched;

    std::function<bool()> m_shouldContinue;
    Waiting *m_outer;
};

// What watches a wait in the application's main thread where no Waiting lives, which keeps the windows
// painted and lets the user end the wait.
class KOVA_EXPORT WaitWatcher
{
public:
    virtual ~WaitWatcher();
    virtual bool shouldContinue() = 0;

    // Called when such a wait begins; a null answer leaves it unwatched. The last one that was set is used,
    // and null uses none.
    using Maker = std::function<std::unique_ptr<WaitWatcher>()>;
    static void setMaker(Maker maker);
};

// One wait of a provider: asks the innermost Waiting, else a watcher of its own.
class Watched
{
public:
    // True where nobody can end it.
    bool shouldContinue();

private:
    bool m_isMade = false;
    std::unique_ptr<WaitWatcher> m_watcher;
    std::optional<Waiting> m_waiting; // for what waits in the host's code meanwhile
};

} // namespace ADODB
