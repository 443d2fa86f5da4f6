// What is registered as a command.
#include "session/commands/Command.h"

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
        EXPECT_FALSE(keys.contains(command->key)) << command->key.toStdString();
        EXPECT_FALSE(shortcuts.contains(command->shortcut)) << command->key.toStdString();
        EXPECT_TRUE(command->run) << command->key.toStdString();
        keys.insert(command->key);
        shortcuts.insert(command->shortcut);
    }
    for (const char *key : {"All", "Part", "SingleRecord", "AllRecord", "Filter", "Sort", "First", "Previous",
                            "Next", "Last", "FullScreen", "ToPreview", "ToOrigin", "FromResult",
                            "CompressView", "ToFullTable", "SelField", "QuickFilter"})
        EXPECT_TRUE(keys.contains(QString::fromLatin1(key))) << key;
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
    }
    for (const int separator : {3, 7, 10, 13})
        EXPECT_FALSE(items.contains(separator));
}

TEST(Commands, AreFoundByKeyAndMenuIndex)
{
    ASSERT_TRUE(Command::find(u"Sort"_s));
    EXPECT_EQ(Command::findMenuItem(12), Command::find(u"Sort"_s));
    EXPECT_FALSE(Command::find(u"sort"_s)) << "letter case matters";
    EXPECT_FALSE(Command::find(QString()));
    EXPECT_FALSE(Command::findMenuItem(0));
    EXPECT_FALSE(Command::findMenuItem(13));
}
