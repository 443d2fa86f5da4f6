// Includes point the way that the links in CMake allow, and docs/architecture.md shows the same arrows.
#include "IncludeArrows.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString top = QStringLiteral(KOVA_SOURCE_DIR);

const Rooms &rooms()
{
    static const Rooms found(QStringLiteral(KOVA_ROOMS_FILE));
    return found;
}

QStringList architecture()
{
    return linesOf(top + u"/docs/architecture.md"_s);
}

// The rows | `room` | `room` … | of the document: each room with those it may use.
QMap<QString, QSet<QString>> shownArrows()
{
    static const QRegularExpression row(u"^\\| `(src/\\w+)` \\|([^|]*)\\|$"_s);
    static const QRegularExpression name(u"`(\\w+)`"_s);
    QMap<QString, QSet<QString>> arrows;
    for (const QString &line : architecture()) {
        const QRegularExpressionMatch match = row.match(line);
        if (!match.hasMatch())
            continue;
        QSet<QString> &shown = arrows[match.captured(1)];
        for (const QRegularExpressionMatch &used : name.globalMatch(match.captured(2)))
            shown.insert("src/"_L1 + used.captured(1));
    }
    return arrows;
}

// The folders of control/ in the order in which the document has them include each other.
QStringList orderOfFolders()
{
    static const QRegularExpression sentence(
        u"Within `control/`, includes point one way:((?: (?:→ )?`\\w+/`)+)\\."_s);
    static const QRegularExpression folder(u"`(\\w+)/`"_s);
    QStringList order;
    const QString document = architecture().join(u' ');
    for (const QRegularExpressionMatch &match : folder.globalMatch(sentence.match(document).captured(1)))
        order += match.captured(1);
    return order;
}

// Where the picture at the top of the document names a room: the line's number, or -1.
int placeInPicture(const QString &folder)
{
    const QStringList lines = architecture();
    const qsizetype begin = lines.indexOf(u"```"_s);
    const qsizetype end = lines.indexOf(u"```"_s, begin + 1);
    const QRegularExpression room(u"(^| )%1/"_s.arg(folder.section(u'/', -1)));
    for (qsizetype i = begin + 1; i < end; ++i) {
        if (lines.at(i).contains(room))
            return static_cast<int>(i);
    }
    return -1;
}

std::string text(const QStringList &lines)
{
    return lines.join(u'\n').trimmed().toStdString();
}

std::string text(const QSet<QString> &names)
{
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return text(sorted);
}

} // namespace

TEST(Arrows, AreFollowedByEveryInclude)
{
    IncludeArrows arrows(top, rooms(), orderOfFolders());
    EXPECT_EQ(text(arrows.faults()), "");
    EXPECT_GT(arrows.includes(), 1000) << "includes are not found any more";
}

// The check itself is checked, on a tree of wrong includes.
TEST(Arrows, AreMissedByWrongIncludes)
{
    const QString tree = top + u"/tests/project/wrong_arrows"_s;
    const Rooms wrong(tree + u"/rooms.txt"_s);
    EXPECT_EQ(text(IncludeArrows(tree, wrong, orderOfFolders()).faults()),
              text(linesOf(tree + u"/faults.txt"_s)));
}

TEST(Arrows, AreThoseOfTheDocument)
{
    const QMap<QString, QSet<QString>> shown = shownArrows();
    for (const QString &folder : rooms().folders()) {
        if (!folder.startsWith("src/"_L1))
            continue;
        EXPECT_EQ(text(shown.value(folder)), text(rooms().restsOn(folder))) << qPrintable(folder);
    }
    for (const QString &folder : shown.keys())
        EXPECT_TRUE(rooms().folders().contains(folder)) << qPrintable(folder);
}

// A newcomer finds what each folder is for.
TEST(Rooms, HaveEveryFolderInTheDocument)
{
    const QString document = architecture().join(u'\n');
    QDirIterator folders(top + u"/src"_s, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    int found = 0;
    for (; folders.hasNext(); ++found) {
        const QString folder = QFileInfo(folders.next()).fileName();
        EXPECT_TRUE(document.contains(folder + u"/`"_s) || document.contains(u'/' + folder + u'`'))
            << qPrintable(folders.filePath());
    }
    EXPECT_GT(found, 30);
}

// Where there are more, subfolders say what belongs together.
TEST(Rooms, HaveAtMostTwentyFiveFilesOnALevel)
{
    QMap<QString, int> files;
    QDirIterator sources(top + u"/src"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext())
        ++files[QFileInfo(sources.next()).path()];
    EXPECT_GT(files.size(), 30);
    for (const auto &[folder, count] : files.asKeyValueRange())
        EXPECT_LE(count, 25) << qPrintable(folder);
}

TEST(Arrows, PointDownInThePicture)
{
    for (const QString &folder : rooms().folders()) {
        if (!folder.startsWith("src/"_L1))
            continue;
        const int place = placeInPicture(folder);
        EXPECT_GE(place, 0) << qPrintable(folder) << " is not in the picture";
        for (const QString &used : rooms().restsOn(folder))
            EXPECT_LT(place, placeInPicture(used)) << qPrintable(folder) << " above " << qPrintable(used);
    }
}
