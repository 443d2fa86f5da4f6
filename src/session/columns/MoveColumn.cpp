#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"

#include <optional>

// The same as dragging a heading, but without a mouse:
// swaps a column with the shown column beside it.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

enum class Side { Left = -1, Right = 1 };

// The position of the nearest shown column on that side.
std::optional<int> placeBeside(const SessionWindow &window, int col, Side side)
{
    std::optional<int> nearest;
    for (const int other : window.shownColumns()) {
        const auto distance = [&](int place) {
            return (place - window.placeOf(col)) * static_cast<int>(side);
        };
        const int place = window.placeOf(other);
        if (distance(place) > 0 && (!nearest || distance(place) < distance(*nearest)))
            nearest = place;
    }
    return nearest;
}

template<Side side>
void move(Session &session, int col)
{
    SessionWindow &window = session.window();
    const std::optional<int> place = placeBeside(window, col, side);
    if (!place)
        return;
    QStringList order = window.columnOrder();
    order.move(window.placeOf(col), *place);
    window.arrangeColumns(order, window.frozenColumns());
}

template<Side side>
QString whyNotMoved(Session &session, int col)
{
    return placeBeside(session.window(), col, side) ? QString() : SessionMessages::NoColumnBeside;
}

const ColumnCommand::Registration left({
    .key = u"MoveLeft"_s,
    .place = 410,
    .caption = ColumnCommand::tr("左移(&B)"),
    .run = move<Side::Left>,
    .whyNot = whyNotMoved<Side::Left>,
});

const ColumnCommand::Registration right({
    .key = u"MoveRight"_s,
    .place = 411,
    .caption = ColumnCommand::tr("右移(&N)"),
    .run = move<Side::Right>,
    .whyNot = whyNotMoved<Side::Right>,
});

} // namespace

} // namespace KOVAVSFDataGridLib
