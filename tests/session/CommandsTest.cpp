// What is registered as a command.
#include "session/columns/ColumnCommand.h"
#include "session/columns/ColumnKeys.h"
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

// What the first brackets of a pattern find in a text.
QStringList wordsIn(const QString &text, const QString &pattern)
{
    QStringList words;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        words += match.captured(1);
    return words;
}

QStringList namesIn(const QString &path, const QString &pattern)
{
    return wordsIn(textOf(path), pattern);
}

// The keys of commands in string literals of any kind, except those that initialize a constant or a
// registration.
QStringList keysWrittenIn(QString source)
{
    static const QRegularExpression comment(u"//[^\n]*"_s);
    static const QRegularExpression definition(uR"( = (u|QStringLiteral\()?"\w+"(_s|\))?[;,])"_s);
    source.remove(comment).remove(definition);
    QStringList keys;
    for (const QString &word : wordsIn(source, uR"-("(\w+)")-"_s)) {
        if (Command::find(word) || ColumnCommand::find(word))
            keys += word;
    }
    return keys;
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

// A key written as a literal might not be that of any command.
TEST(Commands, AreNamedByConstantsOnly)
{
    // Here these words mean records and columns to export.
    const QStringList words{u"All"_s, u"All"_s};
    int files = 0;
    for (const QString &folder : {u"session"_s, u"control"_s, u"activex"_s, u"../apps"_s, u"../designer"_s}) {
        const QStringList sources = sourcesIn(folder);
        EXPECT_FALSE(sources.isEmpty()) << folder.toStdString();
        for (const QString &path : sources) {
            const bool hasWords = path.endsWith("/records/ExportResult.cpp"_L1);
            EXPECT_EQ(keysWrittenIn(textOf(path)), hasWords ? words : QStringList()) << path.toStdString();
            ++files;
        }
    }
    EXPECT_GT(files, 250) << "sources are not found any more";
}

// The check itself is checked.
TEST(Commands, AreFoundOutWhereALiteralNamesThem)
{
    EXPECT_EQ(keysWrittenIn(uR"(
        inline const QString Sort = u"Sort"_s; // "Filter"
            .key = u"Copy"_s,
        run(u"All"_s); run(QStringLiteral("AddRecord")); find("Sort"_L1); press("Part"); show("Other");
        const QString key = on ? u"First"_s : "Last";)"_s),
              (QStringList{u"All"_s, u"AddRecord"_s, u"Sort"_s, u"Part"_s, u"First"_s, u"Last"_s}));
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

// For users, one line for each shortcut. For programs, one for the key of each button and the number of each
// menu item.
TEST(Commands, HaveALineInTheDocument)
{
    const auto document = [](const char *file) {
        return textOf(QStringLiteral(KOVA_SOURCE_DIR "/") + QString::fromUtf8(file));
    };
    const QString reference = document("docs/reference.md");
    const QStringList shortcuts{document("docs/shortcuts.zh-CN.md"), document("docs/shortcuts.md")};
    for (const Command *command : Command::all()) {
        EXPECT_FALSE(command->shortcut.isEmpty()) << command->key.toStdString() << " has no line";
        for (const QString &shortcut : {command->shortcut, command->otherShortcut}) {
            for (const QString &lines : shortcuts)
                EXPECT_TRUE(shortcut.isEmpty() || lines.count(u"\n| %1 | "_s.arg(shortcut)) > 0)
                    << shortcut.toStdString() << " has no line";
        }
        const QString key = command->button ? u" `%1`"_s.arg(command->key) : QString();
        const QString number =
            command->menu.index > 0 ? u' ' + QString::number(command->menu.index) : QString();
        const bool isListed = reference.count(u"\n|%1 |%2 | "_s.arg(key, number)) == 1;
        EXPECT_TRUE(isListed || (key.isEmpty() && number.isEmpty())) << command->key.toStdString();
    }
}

TEST(Commands, HavePlacesOfTheirOwn)
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
