#include "control/parts/lines/WaitPlace.h"

#include "ado/connection/Waiting.h"
#include "control/parts/GridTexts.h"
#include "control/parts/lines/LoadProgress.h"
#include "query/SharedValues.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <vector>

namespace KOVAVSFDataGridLib {

namespace {

class LineWatcher final : public ADODB::WaitWatcher
{
public:
    LineWatcher(QWidget &window, std::function<QRect()> place)
        : m_progress(window, std::move(place), GridTexts::WaitingForDatabase)
    {
    }
    bool shouldContinue() override { return m_progress.shouldContinue(0); }
    bool isWindowGone() const override { return m_progress.isWindowGone(); }

private:
    SharedValues &m_shared = SharedValues::instance();
    QScopedValueRollback<bool> m_opening{m_shared.isOpening, true};
    QScopedValueRollback<bool> m_waiting{m_shared.isWaiting, true};
    LoadProgress m_progress;
};

std::vector<WaitPlace *> &places()
{
    static std::vector<WaitPlace *> thePlaces;
    return thePlaces;
}

bool hasFocus(const WaitPlace *place)
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused && (&place->window() == focused || place->window().isAncestorOf(focused));
}

bool isActive(const WaitPlace *place)
{
    return place->window().isActiveWindow();
}

const WaitPlace *bestPlace()
{
    std::vector<const WaitPlace *> seen;
    std::ranges::copy_if(places(), std::back_inserter(seen),
                         [](const WaitPlace *place) { return place->window().isVisible(); });
    for (const auto isBest : {hasFocus, isActive}) {
        if (const auto found = std::ranges::find_if(seen, isBest); found != seen.end())
            return *found;
    }
    return seen.empty() ? nullptr : seen.back();
}

QRect footOf(const QWidget &dialog)
{
    const int height = dialog.fontMetrics().height() * 2;
    return {0, dialog.height() - height, dialog.width(), height};
}

std::unique_ptr<ADODB::WaitWatcher> makeWatcher()
{
    if (SharedValues::instance().isOpening) // only one line can exist in a process
        return nullptr;
    if (QWidget *const dialog = QApplication::activeModalWidget(); dialog && dialog->isVisible())
        return std::make_unique<LineWatcher>(*dialog, [dialog] { return footOf(*dialog); });
    const WaitPlace *const best = bestPlace();
    if (!best)
        return nullptr;
    // The line is destroyed with its window, and does not call this afterwards.
    return std::make_unique<LineWatcher>(best->window(), [best] { return best->place(); });
}

} // namespace

WaitPlace::WaitPlace(QWidget &window, std::function<QRect()> place)
    : m_window(window), m_place(std::move(place))
{
    places().push_back(this);
    ADODB::WaitWatcher::setMaker(makeWatcher);
}

WaitPlace::~WaitPlace()
{
    std::erase(places(), this);
    if (places().empty())
        ADODB::WaitWatcher::setMaker(nullptr);
}

} // namespace KOVAVSFDataGridLib
