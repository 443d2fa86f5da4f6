// The conditions in force above the grid, each of which can be removed.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FilterBar : public Shop
{
protected:
    QWidget *bar() const { return m_bar; }
    QToolButton *condition(int number) const
    {
        return bar()->findChild<QToolButton *>(u"Condition%1"_s.arg(number));
    }
    QStringList conditions() const
    {
        QStringList words;
        for (int number = 1; condition(number); ++number)
            words.append(condition(number)->text().chopped(3));
        return words;
    }
    void filterBy(const QString &text)
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { filter(dialog, text); }});
        click(u"Filter"_s);
    }
    void findWords(const QString &words, const QString &field = {})
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, words, field); }});
        click(u"QuickFilter"_s);
    }

private:
    QWidget *const m_bar = grid.findChild<QWidget *>(u"FilterBar"_s);
};

} // namespace

TEST_F(FilterBar, IsThereOnlyWhileAConditionIsInForce)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(bar()->isVisible());
    const QRect before = table->geometry();
    findWords(u"茶"_s, u"名称"_s);
    ASSERT_TRUE(bar()->isVisible());
    EXPECT_EQ(conditions(), QStringList(u"名称 包含“茶”"_s));
    EXPECT_EQ(bar()->geometry().top(), before.top());
    EXPECT_EQ(table->geometry().top(), bar()->geometry().bottom() + 1);
    EXPECT_EQ(table->geometry().bottom(), before.bottom());
    EXPECT_EQ(list->geometry(), table->geometry());
    click(u"ToPreview"_s);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(table->geometry(), before);
}

TEST_F(FilterBar, EachPartIsRemovedAlone)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s, u"名称"_s);
    click(u"FromResult"_s);
    filterBy(u"[Unit Price] > 60 AND (城市 = '杭州' OR 城市 = '昆明')"_s);
    EXPECT_EQ(conditions(), QStringList({u"名称 包含“茶”"_s, u"Unit Price > 60"_s,
                                         u"城市 = “杭州”，或者 城市 = “昆明”"_s}));
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s, u"11"_s}));
    WindowAnswers sorting({[](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); }});
    click(u"Sort"_s);
    QTest::mouseClick(condition(3), Qt::LeftButton);
    EXPECT_EQ(conditions(), QStringList({u"名称 包含“茶”"_s, u"Unit Price > 60"_s}));
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"12"_s, u"11"_s, u"10"_s, u"2"_s, u"1"_s})) << "sorted as before";
    QTest::mouseClick(condition(1), Qt::LeftButton);
    EXPECT_EQ(conditions(), QStringList({u"Unit Price > 60"_s}));
    QTest::mouseClick(condition(1), Qt::LeftButton);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(texts(u"ID"_s).size(), records);
    EXPECT_FALSE(statement().contains(u"WHERE"_s)) << qUtf8Printable(statement());
    // What was removed is a step back.
    click(u"ToPreview"_s);
    EXPECT_EQ(conditions(), QStringList({u"Unit Price > 60"_s}));
}

TEST_F(FilterBar, TheHostsOwnConditionIsNotTheUsersToRemove)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID > 2 OR 城市 = '昆明' ORDER BY ID DESC"_s, {}));
    EXPECT_FALSE(bar()->isVisible());
    findWords(u"茶"_s, u"名称"_s);
    EXPECT_EQ(conditions(), QStringList(u"名称 包含“茶”"_s));
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"12"_s, u"11"_s, u"10"_s, u"4"_s, u"2"_s}));
    QTest::mouseClick(condition(1), Qt::LeftButton);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(texts(u"ID"_s).size(), 11);
    EXPECT_EQ(texts(u"ID"_s).first(), u"12"_s);
}

TEST_F(FilterBar, GroupedRowsAreFilteredAndFreed)
{
    ASSERT_TRUE(load(u"SELECT 城市,COUNT(*) AS 数量 FROM 商品 WHERE ID > 1 GROUP BY 城市"_s, {}));
    filterBy(u"数量 > 1"_s);
    EXPECT_EQ(conditions(), QStringList(u"数量 > 1"_s));
    const int filtered = rows();
    QTest::mouseClick(condition(1), Qt::LeftButton);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_GT(rows(), filtered);
}

TEST_F(FilterBar, IsReachedAndUsedByKeys)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s, u"名称"_s);
    grid.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Backtab);
    ASSERT_EQ(QApplication::focusWidget(), condition(1));
    EXPECT_EQ(condition(1)->accessibleName(), u"移除条件：名称 包含“茶”"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), table);
    EXPECT_EQ(texts(u"ID"_s).size(), records);
}

TEST_F(FilterBar, WhatHasNoRoomIsInItsMenu)
{
    ASSERT_TRUE(load());
    filterBy(
        u"ID > 0 AND ID > -1 AND ID > -2 AND ID > -3 AND ID > -4 AND 名称 <> '一个很长很长的名称，占去很多地方'"_s);
    grid.resize(400, 300);
    auto *more = bar()->findChild<QToolButton *>(u"MoreConditions"_s);
    ASSERT_TRUE(more && more->isVisible());
    const auto hidden = more->menu()->actions();
    ASSERT_GE(hidden.size(), 1);
    EXPECT_TRUE(more->text().contains(QString::number(hidden.size())));
    EXPECT_LE(more->geometry().right(), bar()->width());
    hidden.last()->trigger();
    EXPECT_FALSE(statement().contains(u"很长"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(conditions().size(), 5);
}

TEST_F(FilterBar, AConditionThatCantBeReadStays)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s, u"名称"_s);
    const QString before = statement();
    database.run(u"ALTER TABLE 商品 RENAME TO 旧商品"_s);
    QTest::mouseClick(condition(1), Qt::LeftButton);
    EXPECT_FALSE(messages.texts().isEmpty());
    EXPECT_EQ(statement(), before);
    EXPECT_EQ(conditions(), QStringList(u"名称 包含“茶”"_s));
}
