// What is registered as a command.
#include "session/columns/ColumnCommand.h"
#include "session/commands/Command.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(KOVA_SOURCE_DIR "/src");

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

// What the first brackets of a pattern find in a source file.
QStringList namesIn(const QString &path, const QString &pattern)
{
    QStringList names;
    const QString text = textOf(path);
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        names += match.captured(1);
    return names;
}

QStringList sourcesIn(const QString &folder)
{
    QStringList paths;
    QDirIterator sources(sourceFolder + u'/' + folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext())
        paths += sources.next();
    return paths;
}

} // namespace

TEST(Commands, HaveKeysOfTheirOwn)
{
    QSet<QString> keys;
    QSet<QString> shortcuts;
    for (const Command *command : Command::all()) {
        EXPECT_FALSE(command->key.isEmpty());
        EXPECT_FALSE(keys.contains(command->key))
            << "two commands have the key " << command->key.toStdString();
        for (const QString &shortcut : {command->shortcut, command->otherShortcut})
            EXPECT_FALSE(shortcuts.contains(shortcut)) << command->key.toStdString();
        EXPECT_FALSE(command->button && !command->otherShortcut.isEmpty()) << command->key.toStdString();
        EXPECT_TRUE(command->run) << command->key.toStdString();
        keys.insert(command->key);
        shortcuts.insert(command->shortcut);
        if (!command->otherShortcut.isEmpty())
            shortcuts.insert(command->otherShortcut);
    }
    for (const char *key : {"All", "Part", "SingleRecord", "AllRecord", "Filter", "Sort", "First", "Previous",
                            "Next", "Last", "FullScreen", "ToPreview", "ToOrigin", "FromResult",
                            "CompressView", "ToFullTable", "SelField", "QuickFilter"})
        EXPECT_TRUE(keys.contains(QString::fromLatin1(key))) << key;
}

// What other code calls a command by is a command.
TEST(Commands, AreThereForEachNamedKey)
{
    const QStringList keys = namesIn(sourceFolder + u"/session/commands/CommandKeys.h"_s,
                                     u"inline const QString (\\w+) = u\"\\1\"_s;"_s);
    EXPECT_GT(keys.size(), 5);
    for (const QString &key : keys)
        EXPECT_TRUE(Command::find(key)) << key.toStdString();
    EXPECT_TRUE(ColumnCommand::find(ColumnKeys::FitColumn));
}

// A key written out where it is used could be that of no command.
TEST(Commands, AreNamedByConstantsOnly)
{
    const QStringList sources = sourcesIn(u"session"_s) + sourcesIn(u"control"_s);
    EXPECT_GT(sources.size(), 100) << "sources are not found any more";
    for (const QString &path : sources) {
        for (const QString &word : namesIn(path, u"(?<! = )u\"(\\w+)\"_s"_s))
            EXPECT_FALSE(Command::find(word) || ColumnCommand::find(word))
                << path.toStdString() << ": " << word.toStdString();
    }
}

TEST(Commands, HaveAFileEach)
{
    int commands = 0;
    for (const QString &path : sourcesIn(u"session/commands"_s)) {
        const qsizetype inFile = namesIn(path, u"(const Command::Registration )"_s).size();
        EXPECT_LE(inFile, 1) << path.toStdString();
        commands += static_cast<int>(inFile);
    }
    EXPECT_EQ(commands, Command::all().size());
}

TEST(Commands, HaveTheirButtonsInTheDocuments)
{
    for (const char *file : {"docs/reference.md", "docs/kovagrid.md", "docs/kovagrid.zh-CN.md",
                             "apps/kovagrid/assets/kovagrid.1"}) {
        const QString documented = textOf(QStringLiteral(KOVA_SOURCE_DIR "/") + QString::fromUtf8(file));
        for (const Command *command : Command::all()) {
            const QRegularExpression key(u"\\b%1\\b"_s.arg(command->key));
            EXPECT_TRUE(!command->button || documented.contains(key))
                << file << ": " << command->key.toStdString();
        }
    }
}

TEST(Commands, HaveTheirMenuItemsInTheDocument)
{
    const QString document = textOf(QStringLiteral(KOVA_SOURCE_DIR "/docs/reference.md"));
    const qsizetype table = document.indexOf(u"| number in the popup menu |"_s);
    ASSERT_GE(table, 0);
    static const QRegularExpression lastCell(u"\\| ([0-9, ]+) \\|\n"_s);
    QStringList documented;
    for (const QRegularExpressionMatch &match : lastCell.globalMatch(document, table))
        documented += match.captured(1).split(u", "_s);
    for (const Command *command : Command::all()) {
        const int index = command->menu.index;
        EXPECT_TRUE(index == 0 || documented.contains(QString::number(index)))
            << command->key.toStdString() << ' ' << index;
    }
}

TEST(Commands, HaveTheirShortcutsInTheDocument)
{
    for (const char *file : {"docs/shortcuts.zh-CN.md", "docs/shortcuts.md"}) {
        const QString documented = textOf(QStringLiteral(KOVA_SOURCE_DIR "/") + QString::fromUtf8(file));
        for (const Command *command : Command::all()) {
            for (const QString &shortcut : {command->shortcut, command->otherShortcut})
                EXPECT_TRUE(shortcut.isEmpty() || documented.contains(u"| %1 |"_s.arg(shortcut)))
                    << file << ": " << command->key.toStdString() << ' ' << shortcut.toStdString();
        }
    }
}

TEST(Commands, StandAtPlacesOfTheirOwn)
{
    QSet<int> places;
    QSet<int> items;
    QSet<int> viewerItems;
    for (const Command *command : Command::all()) {
        const std::string key = command->key.toStdString();
        if (command->button) {
            EXPECT_FALSE(places.contains(command->button->place)) << key;
            places.insert(command->button->place);
        }
        for (auto &[taken, menu] :
             {std::pair(&items, &command->menu), std::pair(&viewerItems, &command->viewerMenu)}) {
            if (menu->index == 0)
                continue;
            EXPECT_FALSE(taken->contains(menu->index)) << key;
            EXPECT_FALSE(menu->caption.isEmpty()) << key;
            taken->insert(menu->index);
        }
        EXPECT_TRUE(command->isInViewer || command->viewerMenu.index == 0) << key;
        for (const MenuItemTexts *menu : {&command->menu, &command->viewerMenu}) {
            if (!menu->enabledAs.isEmpty()) {
                const Command *other = Command::find(menu->enabledAs);
                EXPECT_TRUE(other && other->button) << key << " is enabled as a button that isn't there";
            }
        }
    }
    for (const int separator : {3, 7, 10, 13})
        EXPECT_FALSE(items.contains(separator));
}

TEST(Commands, AreFoundByKeyAndMenuIndex)
{
    ASSERT_TRUE(Command::find(u"Sort"_s));
    EXPECT_EQ(Command::findMenuItem(&Command::menu, 12), Command::find(u"Sort"_s));
    EXPECT_FALSE(Command::find(u"sort"_s)) << "letter case matters";
    EXPECT_FALSE(Command::find(QString()));
    EXPECT_FALSE(Command::findMenuItem(&Command::menu, 0));
    EXPECT_FALSE(Command::findMenuItem(&Command::menu, 13));
}
