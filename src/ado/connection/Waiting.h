#pragma once

#include "KovaExport.h"

#include <QtCore/QtGlobal>

#include <functional>
#include <memory>
#include <optional>

namespace ADODB {

// While it exists, a wait for a server in this thread that has no progress callback of its own calls this one
// every few milliseconds, in this thread. If it returns false, the wait ends with dbErrCancelled. Can be
// nested; the innermost one is called.
class KOVA_EXPORT Waiting
{
public:
    explicit Waiting(std::function<bool()> shouldContinue);
    ~Waiting();
    Q_DISABLE_COPY_MOVE(Waiting)

    // Whether a wait in this thread can be cancelled.
    static bool isWatched();

private:
    friend class Watched;

    std::function<bool()> m_shouldContinue;
    Waiting *m_outer;
};

// Watches a wait in the application's main thread if there is no Waiting. It keeps the windows painted and
// lets the user cancel the wait.
class KOVA_EXPORT WaitWatcher
{
public:
    virtual ~WaitWatcher();
    // False when the user has cancelled.
    virtual bool shouldContinue() = 0;
    // Whether the window that waits has been destroyed meanwhile, so that nobody can cancel any more.
    virtual bool isWindowGone() const = 0;

    // Called when such a wait begins. If it returns null, the wait is not watched. The maker set last is
    // used; null means none.
    using Maker = std::function<std::unique_ptr<WaitWatcher>()>;
    static void setMaker(Maker maker);
};

// A provider's wait: uses the innermost Waiting, or else a WaitWatcher of its own.
class Watched
{
public:
    // When the window that waits is destroyed, reading is cancelled, but a change is completed.
    enum class For { Reading, Changing };
    explicit Watched(For purpose = For::Reading) : m_purpose(purpose) {}

    // True if nothing can cancel the wait.
    bool shouldContinue();

private:
    const For m_purpose;
    bool m_isMade = false;
    std::unique_ptr<WaitWatcher> m_watcher;
    std::optional<Waiting> m_waiting; // for waits in the host's code meanwhile
};

} // namespace ADODB
