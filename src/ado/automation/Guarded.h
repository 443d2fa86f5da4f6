#pragma once

#include "ado/Error.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>

#include <utility>

namespace ADODB {

// Nothing may be thrown at a late-bound caller: runs `action` for `object` and turns what it throws into the
// object's HostError signal and the neutral value of the result. A listener that the action notified can
// have deleted the object; then nobody is left to tell.
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

// The same with a neutral value of the caller's choice.
template<typename Object, typename Result, typename Action>
Result guardedOr(Object *object, Result neutral, Action &&action)
{
    guarded(object, [&] { neutral = action(); });
    return neutral;
}

// A count or position in the 32 bits that a late-bound host can take.
inline qint32 narrowed(qint64 number)
{
    return static_cast<qint32>(qMin<qint64>(number, 0x7fffffff));
}

} // namespace ADODB
