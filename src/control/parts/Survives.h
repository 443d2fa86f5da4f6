#pragma once

#include <QtCore/QPointer>

#include <functional>
#include <utility>

namespace KOVAVSFDataGridLib {

// Runs what lets the host act: emits a signal, or calls a function that shows a message or saves. False when
// the host has deleted `object` meanwhile. Then neither it nor another part of its control is there any more,
// and the caller ends without another word.
template<typename Object, typename Function, typename... Arguments>
[[nodiscard]] bool survives(Object &object, Function &&run, Arguments &&...arguments)
{
    const QPointer<Object> alive(&object);
    std::invoke(std::forward<Function>(run), object, std::forward<Arguments>(arguments)...);
    return !alive.isNull();
}

} // namespace KOVAVSFDataGridLib
