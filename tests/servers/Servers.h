#pragma once

#include <QtCore/QString>

// The servers that the script with-servers started around this process.
namespace KovaTest {

// The connection string in an environment variable; empty when that server isn't there.
QString serverConnection(const char *variable);

// The password for all of them: it must never be visible anywhere.
QString markerPassword();

// `what` is start, stop, kill, freeze or thaw, `name` postgresql, pgbouncer or mariadb; see the script
// server-control. Fails the test if that fails.
void controlServer(const char *what, const char *name);

} // namespace KovaTest
