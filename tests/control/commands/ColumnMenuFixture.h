#pragma once

#include "Shop.h"

#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

namespace KovaTest {

// A user at the menus of the columns.
class ColumnMenu : public Shop
{
protected:
    QMenu *menu() const { return m_menu; }
    QHeaderView *header() const { return table->horizontalHeader(); }

    QPoint heading(const QString &column) const
    {
        const int section = grid.GetBindFieldIndex(column) - 1;
        return {header()->sectionViewportPosition(section) + 5, header()->height() / 2};
    }
    QPoint arrow(const QString &column) const
    {
        const int section = grid.GetBindFieldIndex(column) - 1;
        return {header()->sectionViewportPosition(section) + header()->sectionSize(section) - 8,
                header()->height() / 2};
    }
    void open(const QString &column)
    {
        QTest::mouseMove(header()->viewport(), arrow(column));
        QTest::mouseClick(header()->viewport(), Qt::LeftButton, {}, arrow(column));
        ASSERT_TRUE(menu()->isVisible());
    }
    QAction *entry(const QString &key) const
    {
        return menu()->findChild<QAction *>(QStringLiteral("ColumnMenu") + key);
    }
    // Opens the menu by the arrow and clicks an entry.
    void choose(const QString &column, const QString &key)
    {
        open(column);
        ASSERT_TRUE(entry(key) && entry(key)->isEnabled()) << qUtf8Printable(key);
        QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(entry(key)).center());
        EXPECT_FALSE(menu()->isVisible());
    }
    QString spoken(const QString &column) const
    {
        return table->model()
            ->headerData(grid.GetBindFieldIndex(column) - 1, Qt::Horizontal, Qt::AccessibleTextRole)
            .toString();
    }
    int width(int col) const { return table->columnWidth(col - 1); }
    QList<int> shownSections() const
    {
        QList<int> sections;
        for (int visual = 0; visual < header()->count(); ++visual) {
            if (const int section = header()->logicalIndex(visual); !table->isColumnHidden(section))
                sections.append(section);
        }
        return sections;
    }
    QStringList shownOrder() const
    {
        QStringList names;
        for (const int section : shownSections())
            names.append(table->model()->headerData(section, Qt::Horizontal).toString());
        return names;
    }

private:
    QMenu *const m_menu = grid.findChild<QMenu *>(QStringLiteral("ColumnMenu"));
};

} // namespace KovaTest
