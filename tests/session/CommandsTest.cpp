// What is registered as a command.
#include "session/commands/Command.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

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
    QFile header(QStringLiteral(KOVA_SOURCE_DIR "/src/session/commands/CommandKeys.h"));
    ASSERT_TRUE(header.open(QIODevice::ReadOnly));
    static const QRegularExpression constant(u"inline const QString (\\w+) = u\"(\\w+)\"_s;"_s);
    int keys = 0;
    for (auto found = constant.globalMatch(QString::fromUtf8(header.readAll())); found.hasNext(); ++keys) {
        const QRegularExpressionMatch match = found.next();
        EXPECT_EQ(match.captured(1), match.captured(2));
        EXPECT_TRUE(Command::find(match.captured(2)))
            << "CommandKeys.h names " << match.captured(2).toStdString() << ", which no command registers";
    }
    EXPECT_GT(keys, 5);
}

TEST(Commands, HaveTheirShortcutsInTheDocument)
{
    for (const char *file :
         {KOVA_SOURCE_DIR "/docs/shortcuts.zh-CN.md", KOVA_SOURCE_DIR "/docs/shortcuts.md"}) {
        QFile document(QString::fromUtf8(file));
        ASSERT_TRUE(document.open(QIODevice::ReadOnly)) << file;
        const QString documented = QString::fromUtf8(document.readAll());
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
