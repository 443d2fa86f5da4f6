// Every file and folder that CONTRIBUTING.md names is there, every name that docs/architecture.md has is in
// the sources, and constants and widgets are named as CONTRIBUTING.md says.
#include "Rooms.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Those of the product and of programs that users read.
const QStringList ownFolders{u"src"_s, u"apps"_s, u"designer"_s, u"examples"_s, u"python"_s};

// Between single backquotes, without blanks: a path, or a file's name alone. A recipe's <name> ends what can
// be looked up.
QStringList pathsNamedIn(const QStringList &lines)
{
    static const QRegularExpression code(u"`([^` ]+)`"_s);
    static const QRegularExpression path(u"^[\\w.@<>/-]*(/[\\w.@<>-]*|\\.(cpp|h|md|txt|in|cmake|json))$"_s);
    QStringList paths;
    for (const QString &line : lines) {
        for (const QRegularExpressionMatch &match : code.globalMatch(line)) {
            const QString text = match.captured(1);
            if (path.match(text).hasMatch())
                paths += text.contains(u'<') ? text.section(u'<', 0, 0) : text;
        }
    }
    return paths;
}

QSet<QString> sourceFileNames(const QString &top)
{
    QSet<QString> names;
    for (const QString &folder : {u"/src"_s, u"/tests"_s, u"/docs"_s}) {
        QDirIterator files(top + folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            names.insert(QFileInfo(files.next()).fileName());
    }
    return names;
}

// From the top of the project or, as includes are written, from src/.
QStringList missing(const QStringList &paths)
{
    const QString top = QStringLiteral(KOVA_SOURCE_DIR);
    const QSet<QString> names = sourceFileNames(top);
    QStringList gone;
    for (const QString &path : paths) {
        const bool isThere = QFileInfo::exists(top + u'/' + path) ||
                             QFileInfo::exists(top + u"/src/"_s + path) ||
                             (!path.contains(u'/') && names.contains(path));
        if (!isThere)
            gone += path;
    }
    return gone;
}

QStringList filesIn(const QString &folder, const QStringList &patterns)
{
    QStringList paths;
    QDirIterator files(QStringLiteral(KOVA_SOURCE_DIR "/") + folder, patterns, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths += files.next();
    return paths;
}

QSet<QString> wordsOf(const QString &text)
{
    static const QRegularExpression between(u"\\W+"_s);
    const QStringList words = text.split(between, Qt::SkipEmptyParts);
    return {words.cbegin(), words.cend()};
}

// The words of all sources, and their files' and folders' names.
QSet<QString> wordsOfSources()
{
    QSet<QString> words;
    for (const QString &folder :
         {u"src"_s, u"apps"_s, u"designer"_s, u"examples"_s, u"python"_s, u"tests"_s, u"bench"_s}) {
        for (const QString &path : filesIn(folder, {})) {
            words += wordsOf(path.mid(static_cast<qsizetype>(sizeof(KOVA_SOURCE_DIR))));
            static const QRegularExpression text(u"\\.(cpp|h|txt|cmake|py)$"_s);
            if (text.match(path).hasMatch())
                words += wordsOf(linesOf(path).join(u'\n'));
        }
    }
    return words;
}

// Names between single backquotes: `Name`, `name()`, `room/` and all parts of `room/Name.h`.
QSet<QString> namesIn(const QStringList &lines)
{
    static const QRegularExpression code(u"`([\\w./:<>()-]+)`"_s);
    QSet<QString> names;
    bool isPicture = false;
    for (const QString &line : lines) {
        isPicture = line.startsWith(u"```"_s) != isPicture;
        for (const QRegularExpressionMatch &match : code.globalMatch(isPicture ? QString() : line))
            names += wordsOf(match.captured(1));
    }
    return names;
}

// Constants of a source that are not lowerCamelCase, or have a prefix. Members are called m_….
QStringList wrongConstantsIn(const QString &source)
{
    static const QRegularExpression constant(
        u"^[ \\t]*(?:inline |static |thread_local )*(?:constexpr|constinit|const) [^()=;{}\\n]*(?<!::)"
        "\\b(\\w+)(?:\\[\\w*\\])*(?: =|\\{|\\((?=[\"0-9]))"_s,
        QRegularExpression::MultilineOption);
    static const QRegularExpression right(u"^(?:m_)?(?![kc][A-Z])[a-z][A-Za-z0-9]*$"_s);
    QStringList names;
    for (const QRegularExpressionMatch &match : constant.globalMatch(source)) {
        if (!right.match(match.captured(1)).hasMatch())
            names += match.captured(1);
    }
    return names;
}

// A constant has a type, and a function of one file is in its unnamed namespace.
QStringList macrosAndStaticsIn(const QString &source)
{
    static const QRegularExpression macro(
        u"^[ \\t]*#[ \\t]*define[ \\t]+(?!KOVA_EXPORT\\b)\\w+|^(?:\\[\\[.*\\]\\] *|template *<.*> *|inline "
        "|constexpr )*static .*"_s,
        QRegularExpression::MultilineOption);
    QStringList found;
    for (const QRegularExpressionMatch &match : macro.globalMatch(source))
        found += match.captured().trimmed();
    return found;
}

// The object names, written out, by which a source looks for a widget. Those that begin with "qt_" are Qt's.
QStringList namesLookedFor(const QString &source)
{
    static const QRegularExpression lookup(
        u"(?:findChild(?:ren)?<[^>]*>\\(|objectName\\(\\) *[=!]=)\\s*(?:u|QStringLiteral\\()?\"(?!qt_)(\\w+)\""_s);
    QStringList names;
    for (const QRegularExpressionMatch &match : lookup.globalMatch(source))
        names += match.captured(1);
    return names;
}

} // namespace

TEST(Recipes, NameFilesThatAreThere)
{
    const QStringList paths = pathsNamedIn(linesOf(QStringLiteral(KOVA_SOURCE_DIR "/CONTRIBUTING.md")));
    EXPECT_GT(paths.size(), 20) << "paths are not found any more";
    EXPECT_EQ(missing(paths).join(u' ').toStdString(), "");
}

// The check itself is checked.
TEST(Recipes, AreFoundOutWhereAFileIsGone)
{
    const QStringList paths =
        pathsNamedIn({u"Copy `src/ado/gone/` to `tests/providers/<name>/X.cpp`, see `Gone.h`, "
                      "`Rooms.h`, `cmake --preset dev`, `Session` and `grid/Twips.h`."_s});
    EXPECT_EQ(missing(paths).join(u' ').toStdString(), "src/ado/gone/ Gone.h");
}

TEST(Architecture, NamesWhatIsThere)
{
    const QSet<QString> names = namesIn(linesOf(QStringLiteral(KOVA_SOURCE_DIR "/docs/architecture.md")));
    EXPECT_GT(names.size(), 200) << "names are not found any more";
    const QSet<QString> words = wordsOfSources();
    QStringList gone;
    for (const QString &name : names) {
        if (!words.contains(name))
            gone += name;
    }
    EXPECT_EQ(gone.join(u' ').toStdString(), "");
}

TEST(Constants, AreNamedAsContributingSays)
{
    static const QRegularExpression table(u"(Texts|Messages|Keys)\\.h$"_s);
    int files = 0;
    for (const QString &folder : ownFolders) {
        for (const QString &path : filesIn(folder, {u"*.h"_s, u"*.cpp"_s})) {
            const QString source = linesOf(path).join(u'\n');
            EXPECT_EQ(macrosAndStaticsIn(source).join(u'\n').toStdString(), "") << path.toStdString();
            const bool isTable = table.match(path).hasMatch();
            EXPECT_EQ(isTable ? "" : wrongConstantsIn(source).join(u' ').toStdString(), "")
                << path.toStdString();
            ++files;
        }
    }
    EXPECT_GT(files, 500) << "sources are not found any more";
}

// The check itself is checked.
TEST(Constants, AreFoundOutWhereTheirNamesAreWrong)
{
    EXPECT_EQ(wrongConstantsIn(u"const int Wrong = 1;\n    static constexpr QChar Bad(0x200B);\n"
                               "inline const std::array Four{1};\nconstexpr int Six[] = {1};\n"
                               "constexpr int kBad = 1;\nconst int MAX_ROWS = 2;\nconst int max_rows = 2;\n"
                               "const QString cName(\"x\");\nconstexpr int Grid[2][3] = {};\n"
                               "const int right = Wrong;\nconst Field &Item(int index);\n"
                               "constexpr Kind kinds[] = {Kind::First};\nconst int Fields::Count = 1;\n"
                               "    const bool m_isRight = true;\nconst auto key = 1, column2 = 2;"_s),
              (QStringList{u"Wrong"_s, u"Bad"_s, u"Four"_s, u"Six"_s, u"kBad"_s, u"MAX_ROWS"_s, u"max_rows"_s,
                           u"cName"_s, u"Grid"_s}));
}

TEST(Constants, AreNoMacrosAndFunctionsOfAFileAreNotStatic)
{
    EXPECT_EQ(
        macrosAndStaticsIn(u"#define KOVA_EXPORT Q_DECL_EXPORT\n#define LIMIT 3\n  # define TWICE(x) x\n"
                           "static int count()\n{\n    static const QString once;\n}\n"
                           "template<typename T> static T most(T a);\n[[nodiscard]] static bool is();\n"
                           "class A\n{\n    static bool isRight();\n};\nstatic_assert(true);\n"
                           "inline static int size = 3;"_s),
        (QStringList{u"#define LIMIT"_s, u"# define TWICE"_s, u"static int count()"_s,
                     u"template<typename T> static T most(T a);"_s, u"[[nodiscard]] static bool is();"_s,
                     u"inline static int size = 3;"_s}));
}

// Programs around the control are hosts, which find its parts by their names.
TEST(ObjectNames, AreWrittenOnceWhereTheWidgetIsMade)
{
    for (const QString &folder : {u"src"_s, u"designer"_s}) {
        for (const QString &path : filesIn(folder, {u"*.h"_s, u"*.cpp"_s}))
            EXPECT_EQ(namesLookedFor(linesOf(path).join(u'\n')).join(u' ').toStdString(), "")
                << path.toStdString();
    }
}

// The check itself is checked.
TEST(ObjectNames, AreFoundOutWhereTheyAreWrittenAgain)
{
    EXPECT_EQ(namesLookedFor(u"box.findChild<QComboBox *>(QStringLiteral(\"cmbField1\"));\n"
                             "findChild<QPushButton *>(\n    u\"cmdPrint\"_s)->setFocus();\n"
                             "return focused->objectName() != u\"vsfgDataGrid\";\n"
                             "calendar.findChild<QToolButton *>(u\"qt_calendar_nextmonth\"_s);\n"
                             "part->setObjectName(u\"txtPage\"_s);"_s),
              (QStringList{u"cmbField1"_s, u"cmdPrint"_s, u"vsfgDataGrid"_s}));
}
