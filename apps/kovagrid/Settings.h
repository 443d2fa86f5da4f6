#pragma once

#include <memory>

class QSettings;

// What this program keeps for its user: recent connections, and where the window and its panes were.
std::unique_ptr<QSettings> userSettings();
