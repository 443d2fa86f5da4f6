// Layouts of columns that stay: by the host's hand and by themselves.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <random>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class Layout : public Shop
{
protected:
    QStringList shownOrder(const KOVAVSFDataGrid &control) const
    {
        auto *view = control.findChild<QTableView *>(u"vsfgDataGrid"_s);
        QStringList names;
        for (int visual = 0; visual < view->horizontalHeader()->count(); ++visual) {
            const int section = view->horizontalHeader()->logicalIndex(visual);
            if (!view->isColumnHidden(section))
                names.append(view->model()->headerData(section, Qt::Horizontal).toString());
        }
        return names;
    }
    // Drags the right edge of a heading.
    void widen(int col, int pixels)
    {
        QHeaderView *header = table->horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(col - 1) + header->sectionSize(col - 1) - 2, 5);
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(header->viewport(), edge + QPoint(pixels, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(pixels, 0));
    }
    void chooseInColumnMenu(int col, const QString &key)
    {
        clickCell(1, col);
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        auto *menu = grid.findChild<QMenu *>(u"ColumnMenu"_s);
        auto *entry = grid.findChild<QAction *>(u"ColumnMenu"_s + key);
        ASSERT_TRUE(menu && menu->isVisible()) << col << ' ' << statement().toStdString();
        ASSERT_TRUE(entry && entry->isEnabled()) << key.toStdString();
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }
    // All fields again, by the keyboard.
    void showAll()
    {
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_1, Qt::ControlModifier);
    }
    // A column that can be seen, from the left.
    int shownCol(std::size_t number) const
    {
        std::vector<int> shown;
        for (int visual = 0; visual < table->horizontalHeader()->count(); ++visual) {
            const int section = table->horizontalHeader()->logicalIndex(visual);
            if (!table->isColumnHidden(section))
                shown.push_back(section + 1);
        }
        return shown[number % shown.size()];
    }
    QString saved() const
    {
        QString text;
        QMetaObject::invokeMethod(const_cast<KOVAVSFDataGrid *>(&grid), "SaveLayout",
                                  Q_RETURN_ARG(QString, text));
        return text;
    }
};

// A control of its own, as the next start of the program has one.
struct NextStart
{
    NextStart(const QString &connection, const QString &key)
    {
        control.resize(1400, 600);
        control.show();
        control.PutConnectionString(connection);
        control.setProperty("LayoutKey", key);
        control.PutSQLShow(u"SELECT * FROM 商品"_s);
        isLoaded = control.IsLoadData();
        table = control.findChild<QTableView *>(u"vsfgDataGrid"_s);
    }

    KOVAVSFDataGrid control;
    QTableView *table = nullptr;
    bool isLoaded = false;
};

} // namespace

TEST_F(Layout, IsSavedAndRestoredAsText)
{
    EXPECT_EQ(saved(), QString());
    ASSERT_TRUE(load());
    const QString first = saved();
    widen(2, 60);
    table->horizontalHeader()->moveSection(0, 3);
    chooseInColumnMenu(7, u"HideColumn"_s);
    chooseInColumnMenu(2, u"FreezeColumns"_s);
    const int width = table->columnWidth(1);
    const QStringList order = shownOrder(grid);
    const QString changed = saved();
    EXPECT_TRUE(QJsonDocument::fromJson(changed.toUtf8()).isObject());
    EXPECT_NE(changed, first);
    EXPECT_TRUE(grid.RestoreLayout(first));
    EXPECT_EQ(shownOrder(grid), AllColumns);
    EXPECT_NE(table->columnWidth(1), width);
    EXPECT_EQ(saved(), first);
    EXPECT_TRUE(grid.RestoreLayout(changed));
    EXPECT_EQ(shownOrder(grid), order);
    EXPECT_EQ(table->columnWidth(1), width);
    EXPECT_EQ(saved(), changed);
}

// A hidden column comes back where it was and as wide as it was: in this control, by the text, and in the
// next start of the program.
TEST_F(Layout, AHiddenColumnKeepsItsPlaceWidthAndFormat)
{
    QSettings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s).remove(u"Layouts"_s);
    grid.setProperty("LayoutKey", u"hidden"_s);
    ASSERT_TRUE(load());
    table->horizontalHeader()->moveSection(2, 0);
    widen(3, 77);
    {
        WindowAnswers dialogs({[](QDialog &dialog) {
            part<QSpinBox>(dialog, "spnDecimals").setValue(3);
            press(dialog, "cmdOK");
        }});
        chooseInColumnMenu(3, u"FormatColumn"_s);
    }
    chooseInColumnMenu(1, u"FreezeColumns"_s);
    const int width = table->columnWidth(2);
    const QStringList order = shownOrder(grid);
    chooseInColumnMenu(3, u"HideColumn"_s);
    const QString hidden = saved();
    // The statement is read again without the column.
    showAll();
    EXPECT_EQ(shownOrder(grid), order);
    QTest::keyClick(table, Qt::Key_Left, Qt::AltModifier);
    ASSERT_EQ(columns().size(), AllColumns.size() - 1);
    EXPECT_EQ(saved(), hidden);
    table->horizontalHeader()->moveSection(table->horizontalHeader()->count() - 1, 1);
    EXPECT_TRUE(grid.RestoreLayout(hidden));
    EXPECT_EQ(saved(), hidden);
    grid.ClearObject();
    {
        NextStart next(database.connectionString(), u"hidden"_s);
        ASSERT_TRUE(next.isLoaded);
        EXPECT_EQ(next.control.SaveLayout(), hidden);
        next.control.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&next.control));
        QTest::keyClick(next.table, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(shownOrder(next.control), order);
        EXPECT_EQ(next.table->columnWidth(2), width);
        EXPECT_TRUE(next.control.SaveLayout().contains(u"0.000"_s));
    }
    NextStart other(database.connectionString(), QString());
    EXPECT_TRUE(other.control.RestoreLayout(hidden));
    EXPECT_EQ(other.control.SaveLayout(), hidden);
}

// Whatever has been done, a layout is the same after it was restored: by another control, and by this one
// from any other state.
TEST_F(Layout, RestoringWhatWasSavedGivesTheSameText)
{
    ASSERT_TRUE(load());
    std::mt19937 random(20261123);
    const auto any = [&random](std::size_t below) { return random() % below; };
    std::vector<QString> layouts{saved()};
    for (int step = 0; step < 60; ++step) {
        SCOPED_TRACE(step);
        QHeaderView &header = *table->horizontalHeader();
        const int col = shownCol(any(20));
        switch (any(8)) {
        case 0:
            widen(col, static_cast<int>(any(60)) - 20);
            break;
        case 1:
            header.moveSection(header.visualIndex(col - 1), static_cast<int>(any(5)));
            break;
        case 2:
            if (shownOrder(grid).size() > 2)
                chooseInColumnMenu(col, u"HideColumn"_s);
            break;
        case 3:
            chooseInColumnMenu(col, u"FreezeColumns"_s);
            break;
        case 4:
            showAll();
            break;
        case 5:
            grid.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
            QTest::keyClick(table, any(2) ? Qt::Key_Left : Qt::Key_Right, Qt::AltModifier);
            break;
        case 6:
            if (table->model()->headerData(col - 1, Qt::Horizontal) != u"图片"_s) // which has no order
                chooseInColumnMenu(col, u"SortDescending"_s);
            break;
        case 7: {
            const QString &earlier = layouts[any(layouts.size())];
            EXPECT_TRUE(grid.RestoreLayout(earlier));
            EXPECT_EQ(saved(), earlier);
            break;
        }
        }
        layouts.push_back(saved());
    }
    for (std::size_t i = 0; i < layouts.size(); i += 4) {
        NextStart next(database.connectionString(), QString());
        ASSERT_TRUE(next.isLoaded);
        EXPECT_TRUE(next.control.RestoreLayout(layouts[i]));
        EXPECT_EQ(next.control.SaveLayout(), layouts[i]);
        ASSERT_TRUE(next.control.RestoreLayout(layouts[0]));
        EXPECT_EQ(next.control.SaveLayout(), layouts[0]);
    }
}

TEST_F(Layout, ATextThatIsNoneIsRefusedAndChangesNothing)
{
    ASSERT_TRUE(load());
    widen(2, 60);
    const QString before = saved();
    EXPECT_FALSE(grid.RestoreLayout(u"{\"layout\":1,"_s));
    EXPECT_TRUE(messages.texts().join(u'\n').contains(u"JSON"_s));
    EXPECT_FALSE(grid.RestoreLayout(u"{\"layout\":1,\"columns\":[{\"field\":\"ID\",\"width\":-7}]}"_s));
    EXPECT_TRUE(messages.texts().join(u'\n').contains(u"columns[0].width"_s));
    EXPECT_EQ(saved(), before);
    grid.ClearAll();
    EXPECT_FALSE(grid.RestoreLayout(before));
    EXPECT_TRUE(messages.texts().join(u'\n').contains(u"没有打开的结果"_s));
}

TEST_F(Layout, StaysForTheUserUnderTheHostsKey)
{
    QSettings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s).remove(u"Layouts"_s);
    grid.setProperty("LayoutKey", u"测试/一"_s);
    ASSERT_TRUE(load());
    widen(2, 60);
    table->horizontalHeader()->moveSection(0, 3);
    chooseInColumnMenu(7, u"HideColumn"_s);
    const int width = table->columnWidth(1);
    const QStringList order = shownOrder(grid);
    grid.ClearObject();
    {
        const NextStart next(database.connectionString(), u"测试/一"_s);
        ASSERT_TRUE(next.isLoaded);
        EXPECT_EQ(shownOrder(next.control), order);
        EXPECT_EQ(next.table->columnWidth(1), width);
    }
    const NextStart other(database.connectionString(), u"测试/二"_s);
    EXPECT_EQ(shownOrder(other.control), AllColumns);
    const NextStart none(database.connectionString(), QString());
    EXPECT_EQ(shownOrder(none.control), AllColumns);
}

TEST_F(Layout, NothingIsKeptWithoutAKey)
{
    QSettings settings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s);
    settings.remove(u"Layouts"_s);
    ASSERT_TRUE(load());
    widen(2, 60);
    grid.ClearObject();
    settings.sync();
    settings.beginGroup(u"Layouts"_s);
    EXPECT_TRUE(settings.allKeys().isEmpty());
}

TEST_F(Layout, AKeptTextThatIsBrokenDoesNoHarm)
{
    QSettings settings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s);
    settings.remove(u"Layouts"_s);
    grid.setProperty("LayoutKey", u"k"_s);
    ASSERT_TRUE(load());
    widen(2, 60);
    grid.ClearObject();
    settings.sync();
    settings.beginGroup(u"Layouts"_s);
    ASSERT_EQ(settings.allKeys().size(), 1);
    settings.setValue(settings.allKeys().front(), u"{\"layout\":1,\"columns\":7}"_s);
    settings.sync();
    const NextStart next(database.connectionString(), u"k"_s);
    ASSERT_TRUE(next.isLoaded);
    EXPECT_EQ(shownOrder(next.control), AllColumns);
}

TEST_F(Layout, ABooleanCanBeShownAsABox)
{
    ASSERT_TRUE(load());
    const QImage before = table->viewport()->grab().toImage();
    WindowAnswers dialogs({[](QDialog &dialog) {
        EXPECT_TRUE(part<QRadioButton>(dialog, "optAsItIs").isChecked());
        part<QRadioButton>(dialog, "optYesNo").setChecked(true);
        EXPECT_EQ(part<QLabel>(dialog, "lblSample").text(), u"示例：否"_s);
        part<QRadioButton>(dialog, "optBox").setChecked(true);
        EXPECT_EQ(part<QLabel>(dialog, "lblSample").text(), u"示例：☐"_s);
        press(dialog, "cmdOK");
    }});
    chooseInColumnMenu(6, u"FormatColumn"_s);
    EXPECT_NE(table->viewport()->grab().toImage(), before);
    EXPECT_TRUE(saved().contains(u"☑/☐"_s));
    EXPECT_EQ(texts(u"停用"_s).first(), u"False"_s);
}

TEST_F(Layout, AFormatChangesWhatIsSeenAndNothingElse)
{
    ASSERT_TRUE(load());
    const QImage before = table->viewport()->grab().toImage();
    WindowAnswers dialogs({[](QDialog &dialog) {
        part<QCheckBox>(dialog, "chkThousands").setChecked(true);
        part<QSpinBox>(dialog, "spnDecimals").setValue(2);
        EXPECT_EQ(part<QLabel>(dialog, "lblSample").text(), u"示例：128.00"_s);
        press(dialog, "cmdOK");
    }});
    chooseInColumnMenu(3, u"FormatColumn"_s);
    EXPECT_NE(table->viewport()->grab().toImage(), before);
    EXPECT_EQ(texts(u"Unit Price"_s).first(), u"128"_s);
    EXPECT_EQ(grid.CellTextL(1, 3), u"128"_s);
    EXPECT_TRUE(saved().contains(u"#,##0.00"_s));
    click(u"CompressView"_s);
    EXPECT_TRUE(saved().contains(u"#,##0.00"_s));
    // A text has no format.
    clickCell(1, 2);
    grid.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    const auto *entry = grid.findChild<QAction *>(u"ColumnMenuFormatColumn"_s);
    EXPECT_TRUE(entry && !entry->isEnabled());
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}
