#pragma once

#include <QtCore/QStringList>

// The last connections, newest first, stored in the user's settings without passwords.
namespace RecentConnections {

constexpr int most = 10;

QStringList all();
// Adds it as the first one. Replaces one that differs only in its password.
void add(const QString &connection);
void clear();

} // namespace RecentConnections
