#pragma once

#include <functional>

// Waits for a dialog of the calling thread while that dialog's own event loop runs. Only one can be waited
// for.
namespace DialogWatch {

// Calls the action, on the calling thread, when another window of it than those of a class has been in front
// for half a second. The name must outlive the wait.
void whenOpen(const wchar_t *otherClass, std::function<void()> action);

// No longer waits. Does nothing if the dialog has been open.
void cancel();

} // namespace DialogWatch
