#pragma once

#include "ado/Error.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>

#include <utility>

namespace ADODB {

// Late-bound callers can't handle exceptions. Runs `action` for `object`, and turns an exception into the
// object's HostError signal and a default-constructed result. A listener called by the action may delete the
// object; then no signal is emitted.
template<typename Object, typename Action>
auto guarded(Object *object, Action &&action) -> decltype(action())
{
    const QPointer<Object> alive(object);
    try {
        return std::forward<Action>(action)();
    } catch (const Error &error) {
        if (alive)
            Q_EMIT object->HostError(error.Number(), error.Description());
    } catch (const std::exception &error) {
        qWarning("A call from a host failed in a way that is no database error: %s", error.what());
        if (alive)
            Q_EMIT object->HostError(dbErrFailed, QString::fromUtf8(error.what()));
    }
    return decltype(action())();
}

// The same with a given result for a failure.
template<typename Object, typename Result, typename Action>
Result guardedOr(Object *object, Result neutral, Action &&action)
{
    guarded(object, [&] { neutral = action(); });
    return neutral;
}

// A count or position, limited to the 32 bits that a late-bound host supports.
inline qint32 narrowed(qint64 number)
{
    return static_cast<qint32>(qMin<qint64>(number, 0x7fffffff));
}

} // namespace ADODB
