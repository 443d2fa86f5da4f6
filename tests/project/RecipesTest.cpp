// Every file and folder that CONTRIBUTING.md names is there.
#include "Rooms.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

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
