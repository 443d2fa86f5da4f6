// The toolbar's commands by key.
#include "Shop.h"

#include <QtTest/QTest>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint16 controlKey = 17;

using Shortcuts = Shop;

} // namespace

TEST_F(Shortcuts, ADisabledToolbarRunsNothingByShortcut)
{
    ASSERT_TRUE(load());
    table->setFocus();
    grid.PutDisplayEable(false);
    QTest::keyClick(table, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(columns(), AllColumns);
}

TEST_F(Shortcuts, ShortcutsRunTheirCommandsAndTheHostGetsTheKey)
{
    ASSERT_TRUE(load());
    table->setFocus();
    QList<std::pair<int, int>> keys;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataKeyDown, &grid, [&](qint16 &code, qint16 &shift) {
        if (code != controlKey)
            keys.append({code, shift});
    });
    QTest::keyClick(table, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(columns(), PartColumns);
    QTest::keyClick(table, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_EQ(keys, (QList<std::pair<int, int>>{{'2', 2}, {'1', 2}}));
}

TEST_F(Shortcuts, AHostCanKeepAShortcutFromItsCommand)
{
    ASSERT_TRUE(load());
    table->setFocus();
    int told = 0;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataKeyDown, &grid, [&](qint16 &code, qint16 &) {
        if (code == '2')
            ++told;
        code = 0;
    });
    QTest::keyClick(table, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_EQ(told, 1);
}

TEST_F(Shortcuts, EveryButtonHasANameAToolTipAndAShortcutOfItsOwn)
{
    QSet<QString> shortcuts;
    for (const QAction *action : toolbar->actions()) {
        if (action->isSeparator())
            continue;
        EXPECT_FALSE(action->text().isEmpty());
        const QString shortcut = action->shortcut().toString(QKeySequence::NativeText);
        EXPECT_FALSE(shortcut.isEmpty());
        EXPECT_TRUE(action->toolTip().contains(shortcut));
        EXPECT_FALSE(shortcuts.contains(shortcut)) << qUtf8Printable(shortcut);
        shortcuts.insert(shortcut);
    }
}
