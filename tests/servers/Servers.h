#pragma once

#include <QtCore/QString>

// The servers that the script with-servers started around this process.
namespace KovaTest {

// The connection string in an environment variable; empty when that server isn't there.
QString serverConnection(const char *variable);

// The password in all of them: it may stand in nothing that anybody sees.
QString markerPassword();

// `what` is start, stop, kill, freeze or thaw, `name` postgresql, pgbouncer or mariadb; see the script
// server-control. Fails the test when it can't be done.
void controlServer(const char *what, const char *name);

} // namespace KovaTest
