#include "start/Program.h"

#include "HostTexts.h"
#include "database/SampleDatabase.h"
#include "start/BoxStyle.h"
#include "start/Options.h"
#include "start/Unattended.h"
#include "tab/QueryPage.h"
#include "window/HostWindow.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QLibraryInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 1, BadUsage = 2 };

// On Unix, the program can load, print and take a screenshot without a display.
bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

void useSampleDatabase(Options &options, const QString &language)
{
    const SampleDatabase::Sample sample = SampleDatabase::inLanguage(language);
    options.connection = u"Provider=SQLite;Data Source="_s + sample.path;
    if (options.sql.isEmpty()) {
        options.sql = sample.statement;
        if (options.part.isEmpty())
            options.part = sample.partStatement;
    }
}

QAction *button(const KOVAVSFDataGrid &grid, const QString &key)
{
    return grid.findChild<QToolBar *>(u"Toolbar1"_s)->findChild<QAction *>(key);
}

void pressButtons(const KOVAVSFDataGrid &grid, const QStringList &keys)
{
    for (const QString &key : keys)
        button(grid, key)->trigger();
}

// The application owns the translators.
void install(const QString &translation, const QString &folder)
{
    auto *translator = new QTranslator(QApplication::instance());
    if (translator->load(translation, folder))
        QApplication::installTranslator(translator);
}

// The program's texts are written in Chinese, Qt's in English. Installing the library's translation sets the
// language of all grids, as their property Language does.
void useLanguage(const QString &language)
{
    if (language == u"en") {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        install(u"KOVAVSFDataGridLib_en"_s, u":/KOVAVSFDataGridLib/translations"_s);
        install(u"kovagrid_en"_s, u":/KOVAVSFDataGridLib/translations"_s);
    } else {
        QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
#if defined(Q_OS_WIN)
        install(u"qtbase_zh_CN"_s, QApplication::applicationDirPath() + u"/translations"_s);
#else
        install(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
#endif
    }
    // A Chinese font first: a system's default font may use the glyphs of another country.
    QFont font = QApplication::font();
    font.setFamilies({u"Noto Sans CJK SC"_s, u"Microsoft YaHei UI"_s, u"PingFang SC"_s, font.family()});
    QApplication::setFont(font);
}

void useDarkColours()
{
    QApplication::setStyle(u"Fusion"_s);
    QPalette palette(QColor(50, 50, 50));
    palette.setColor(QPalette::Base, QColor(36, 36, 36));
    palette.setColor(QPalette::AlternateBase, QColor(43, 43, 43));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::Link, QColor(80, 160, 240));
    // Qt makes those of disabled texts of the others only for light colours.
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(45, 45, 45));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 80, 80));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(180, 180, 180));
    QApplication::setPalette(palette);
}

int failed(const QString &text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    return Failed;
}

int badUsage(const QString &error)
{
    std::fprintf(stderr, "%s\n%s\n", qUtf8Printable(error), qUtf8Printable(HostTexts::Usage()));
    return BadUsage;
}

// Loads, does what the options say and exits.
int runUnattended(HostWindow &window, const Options &options)
{
    Unattended unattended;
    window.resize(options.size);
    if (!options.print && !options.screenshot.isEmpty()) // the layout that users see, but not the stored one
        window.grid()->PutLayoutKey(u"kovagrid --screenshot"_s);
    window.show();
    window.page()->setUpGrid();
    unattended.forgetMessages(); // whether a text can be loaded is known only afterwards
    if (!window.page()->load())
        return failed(unattended.messages());
    Q_EMIT window.page()->loaded();
    pressButtons(*window.grid(), options.keys);
    QCoreApplication::processEvents();

    const auto *table = window.grid()->findChild<QTableView *>(u"vsfgDataGrid"_s);
    const QString summary = u"Loaded %1 records, %2 fields in %3 s"_s
                                .arg(window.grid()->RecordSet()->property("RecordCount").toLongLong())
                                .arg(table->model()->columnCount())
                                .arg(window.page()->secondsOfLastLoad(), 0, 'f', 2);
    // If records are printed, standard output is for them only.
    std::fprintf(options.print ? stderr : stdout, "%s\n", qUtf8Printable(summary));
    if (options.print && !Unattended::print(*table, options.printRows))
        return failed(HostTexts::CantPrint());
    if (!options.screenshot.isEmpty() && !window.grab().save(options.screenshot))
        return failed(HostTexts::CantSavePicture().arg(options.screenshot));
    if (!unattended.messages().isEmpty())
        return failed(unattended.messages());
    window.close();
    return Done;
}

int run(int argc, char **argv)
{
    const bool isWatched = hasDisplay();
    if (!isWatched) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        // Suppresses warnings about what the off-screen platform doesn't support.
        QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"kovagrid"_s);
    QApplication::setApplicationDisplayName(u"KOVAVSFDataGrid"_s);
    QApplication::setApplicationVersion(QStringLiteral(KOVAGRID_VERSION));
    QApplication::setDesktopFileName(u"kovagrid"_s);
    QApplication::setWindowIcon(QIcon(u":/kovagrid.svg"_s));
    const QString language = Options::language(QApplication::arguments().mid(1));
    useLanguage(language);

    if (QApplication::arguments().contains(u"--help"_s)) {
        std::puts(qUtf8Printable(HostTexts::Usage()));
        return Done;
    }
    QString error;
    std::optional<Options> options = Options::parse(QApplication::arguments().mid(1), error);
    if (!options)
        return badUsage(error);
    if (options->isDark)
        useDarkColours();
    BoxStyle::use();
    if (options->connection.isEmpty())
        useSampleDatabase(*options, language);

    HostWindow window(*options);
    for (const QString &key : std::as_const(options->keys)) {
        if (!button(*window.grid(), key))
            return badUsage(HostTexts::NoButton().arg(key));
    }
    if (!isWatched || options->print || !options->screenshot.isEmpty())
        return runUnattended(window, *options);
    window.rememberSettings();
    window.show();
    // Shows the window before loading, which can take longer.
    QTimer::singleShot(0, &window, [&] {
        window.page()->loadForm();
        pressButtons(*window.grid(), options->keys);
    });
    return QApplication::exec();
}

} // namespace

int runKovagrid(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception &error) {
        return failed(QString::fromUtf8(error.what()));
    }
}
