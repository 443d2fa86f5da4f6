#include "support/ExpectedWarnings.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

QStringList &expected()
{
    static QStringList list;
    return list;
}

// An unexpected warning is a defect of the code under test, so it fails the running test.
void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    // Missing features of the off-screen platform (limiting sizes, raising, grabbing) are no defect.
    if (text.startsWith(QLatin1StringView("This plugin does not support ")))
        return;
    for (const QString &part : expected()) {
        if (text.contains(part))
            return;
    }
    ADD_FAILURE() << "unexpected Qt message: " << qUtf8Printable(text);
}

} // namespace

namespace KovaTest {

ExpectedWarning::ExpectedWarning(const QString &part) : m_part(part)
{
    expected().append(m_part);
}

ExpectedWarning::~ExpectedWarning()
{
    expected().removeOne(m_part);
}

} // namespace KovaTest

int main(int argc, char **argv)
{
    // No test needs a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kova-tests"));
    // Tests never change the settings of the user who runs them.
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir settings; // nor those of test programs that run at the same time
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(onMessage);
    const int result = RUN_ALL_TESTS();
    // A message box that a control shows at its end, about unsaved changes, waits for its user.
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qInstallMessageHandler(nullptr);
    const auto &unit = *testing::UnitTest::GetInstance();
    if (result == 0 && unit.test_to_run_count() > 0 && unit.skipped_test_count() == unit.test_to_run_count())
        std::puts("ALL TESTS SKIPPED");
    return result;
}
