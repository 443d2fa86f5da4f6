#pragma once

#include <memory>

class QSettings;

// The user's settings: recent connections, and the positions of the window and its panes.
std::unique_ptr<QSettings> userSettings();
