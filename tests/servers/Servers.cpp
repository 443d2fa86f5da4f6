#include "servers/Servers.h"

#include <QtCore/QProcess>
#include <gtest/gtest.h>

namespace KovaTest {

QString serverConnection(const char *variable)
{
    return qEnvironmentVariable(variable);
}

QString markerPassword()
{
    return qEnvironmentVariable("KOVA_TEST_PASSWORD");
}

void controlServer(const char *what, const char *name)
{
    QProcess script;
    // The servers that it starts go on, so what they write must not be waited for.
    script.setStandardOutputFile(QProcess::nullDevice());
    script.setStandardErrorFile(QProcess::nullDevice());
    script.start(qEnvironmentVariable("KOVA_TEST_SERVER_CONTROL"),
                 {QString::fromLatin1(what), QString::fromLatin1(name)});
    const bool isDone = script.waitForFinished() && script.exitCode() == 0;
    ASSERT_TRUE(isDone) << what << ' ' << name;
}

} // namespace KovaTest
