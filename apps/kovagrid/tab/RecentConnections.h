#pragma once

#include <QtCore/QStringList>

// The connections that were opened last, the newest first, kept in the user's settings without passwords.
namespace RecentConnections {

constexpr int most = 10;

QStringList all();
// Puts it first. One that differs by its password only takes the place of the other.
void add(const QString &connection);
void clear();

} // namespace RecentConnections
