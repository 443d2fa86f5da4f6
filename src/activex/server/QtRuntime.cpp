#include "activex/server/QtRuntime.h"

#include "activex/server/ModuleUse.h"
#include "activex/server/QtHome.h"
#include "activex/server/QuitKeeper.h"
#include "control/settings/platform/ModuleFolder.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtGui/QFont>
#include <QtWidgets/QApplication>

#include <array>
#include <atomic>
#include <mutex>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

// COM unloads a server when it uninitializes a thread, whatever the server says. Qt would then have dangling
// pointers to types, resources and window procedures.
void pinModule()
{
    HMODULE pinned = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(moduleInstance), &pinned);
}

QByteArray hostProgram()
{
    std::array<wchar_t, 32768> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QString::fromWCharArray(path.data()).toLocal8Bit();
}

// Loads the texts of Qt's own dialogs from beside this file, where they are installed.
void useChinese()
{
    const QLocale chinese(QLocale::Chinese, QLocale::China);
    QLocale::setDefault(chinese);
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(chinese, u"qtbase"_s, u"_"_s, moduleFolder() + "/translations"_L1))
        QCoreApplication::installTranslator(translator);
    QFont font = QApplication::font();
    font.setFamilies({u"Microsoft YaHei UI"_s, u"Noto Sans CJK SC"_s, font.family()});
    QApplication::setFont(font);
}

void makeApplication()
{
    // The platform plugin is beside this file, wherever the host program is.
    QCoreApplication::addLibraryPath(moduleFolder());
    // Does not affect the host's process: its DPI awareness and the way it ends.
    QCoreApplication::setAttribute(Qt::AA_PluginApplication);
    static QByteArray program = hostProgram();
    static int count = 1;
    static std::array<char *, 2> arguments{program.data(), nullptr};
    new QApplication(count, arguments.data()); // QtHome deletes it
    QApplication::setQuitOnLastWindowClosed(false);
    useChinese();
    keepQuitMessages();
}

std::atomic<bool> wasStarted = false;

} // namespace

HRESULT startQt()
{
    // Recursive, because Qt's start can process messages.
    static std::recursive_mutex starting;
    const std::scoped_lock oneAtATime(starting);
    pinModule();
    if (!QtHome::claim())
        return RPC_E_WRONG_THREAD;
    wasStarted = true;
    if (!QCoreApplication::instance())
        QtHome::settle(makeApplication);
    // A host may use Qt without windows.
    return qobject_cast<QApplication *>(QCoreApplication::instance()) ? S_OK : E_UNEXPECTED;
}

bool wasQtStarted()
{
    return wasStarted;
}

} // namespace KOVAVSFDataGridLib::ActiveX
