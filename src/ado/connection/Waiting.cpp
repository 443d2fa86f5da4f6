#include "ado/connection/Waiting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <utility>

namespace ADODB {

namespace {

thread_local Waiting *innermost = nullptr;

// Main thread only.
WaitWatcher::Maker &watcherMaker()
{
    static WaitWatcher::Maker theMaker;
    return theMaker;
}

bool isMainThread()
{
    const auto *const application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}

} // namespace

Waiting::Waiting(std::function<bool()> shouldContinue)
    : m_shouldContinue(std::move(shouldContinue)), m_outer(std::exchange(innermost, this))
{
}

Waiting::~Waiting()
{
    innermost = m_outer;
}

bool Waiting::isWatched()
{
    return innermost != nullptr;
}

WaitWatcher::~WaitWatcher() = default;

void WaitWatcher::setMaker(Maker maker)
{
    watcherMaker() = std::move(maker);
}

bool Watched::shouldContinue()
{
    if (!innermost && !m_isMade && isMainThread() && watcherMaker()) {
        m_isMade = true;
        m_watcher = watcherMaker()();
        if (m_watcher)
            m_waiting.emplace([this] {
                const bool isWanted = m_watcher->shouldContinue();
                return m_watcher->isWindowGone() ? m_purpose == For::Changing : isWanted;
            });
    }
    return !innermost || innermost->m_shouldContinue();
}

} // namespace ADODB
