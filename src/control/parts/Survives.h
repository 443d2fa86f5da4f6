#pragma once

#include <QtCore/QPointer>

#include <functional>
#include <utility>

namespace KOVAVSFDataGridLib {

// Runs something that can call the host: emits a signal, or calls a function that shows a message or saves.
// Returns false if the host has deleted `object` meanwhile. Then neither it nor any other part of its control
// exists any more, and the caller must return immediately.
template<typename Object, typename Function, typename... Arguments>
[[nodiscard]] bool survives(Object &object, Function &&run, Arguments &&...arguments)
{
    const QPointer<Object> alive(&object);
    std::invoke(std::forward<Function>(run), object, std::forward<Arguments>(arguments)...);
    return !alive.isNull();
}

} // namespace KOVAVSFDataGridLib
