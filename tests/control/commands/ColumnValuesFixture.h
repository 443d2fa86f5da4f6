#pragma once

#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QTreeWidgetItemIterator>

namespace KovaTest {

// A user at the lists of values of the columns.
class ColumnValues : public Shop
{
protected:
    // Opens the column's menu by the keyboard and its entry by the letter.
    void open(const QString &column)
    {
        grid.activateWindow(); // which a dialog was before
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        const int col = grid.GetBindFieldIndex(column);
        table->setCurrentIndex(table->model()->index(0, col - 1));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        auto *menu = grid.findChild<QMenu *>(QStringLiteral("ColumnMenu"));
        ASSERT_TRUE(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_F);
    }
    QStringList conditions() const
    {
        QStringList words;
        const auto *bar = grid.findChild<QWidget *>(QStringLiteral("FilterBar"));
        for (int number = 1;; ++number) {
            const auto *button = bar->findChild<QToolButton *>(QStringLiteral("Condition%1").arg(number));
            if (!button)
                return words;
            words.append(button->text().chopped(3));
        }
    }
    QString spoken(const QString &column) const
    {
        return table->model()
            ->headerData(grid.GetBindFieldIndex(column) - 1, Qt::Horizontal, Qt::AccessibleTextRole)
            .toString();
    }
    static QStringList listed(const QDialog &dialog)
    {
        QStringList texts;
        for (QTreeWidgetItemIterator item(&part<QTreeWidget>(dialog, "lstTicks")); *item; ++item) {
            texts.append(
                ((*item)->checkState(0) == Qt::Checked ? QStringLiteral("x ") : QStringLiteral("  ")) +
                (*item)->text(0));
        }
        return texts;
    }
    static void waitFor(const QDialog &dialog, const QString &entry)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return listed(dialog).contains(entry); }))
            << entry.toStdString() << ": " << listed(dialog).join(u'|').toStdString();
    }
    static void waitWhile(const QDialog &dialog, const QString &entry)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !listed(dialog).contains(entry); })) << entry.toStdString();
    }
    // Waits for the entry and presses the space bar on it.
    static void tick(const QDialog &dialog, const QString &text)
    {
        auto &list = part<QTreeWidget>(dialog, "lstTicks");
        const auto found = [&] { return list.findItems(text, Qt::MatchExactly | Qt::MatchRecursive); };
        ASSERT_TRUE(QTest::qWaitFor([&] { return found().size() == 1; })) << text.toStdString();
        list.setCurrentItem(found().front());
        QTest::keyClick(&list, Qt::Key_Space);
    }
    static void tickAll(const QDialog &dialog, bool isTicked)
    {
        auto &all = part<QCheckBox>(dialog, "chkAll");
        ASSERT_TRUE(QTest::qWaitFor([&] { return listed(dialog).size() > 1; }));
        while (all.checkState() != (isTicked ? Qt::Checked : Qt::Unchecked))
            QTest::mouseClick(&all, Qt::LeftButton, {}, {8, all.height() / 2});
    }
};

} // namespace KovaTest
