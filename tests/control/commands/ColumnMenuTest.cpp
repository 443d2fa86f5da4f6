// A column's menu: opened by mouse and keys, and what its entries do.
#include "ColumnMenuFixture.h"

#include "support/Dialogs.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <algorithm>
#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST_F(ColumnMenu, SortsByTheColumnAndByOneMore)
{
    ASSERT_TRUE(load());
    choose(u"城市"_s, u"SortDescending"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 城市 DESC"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s).first(), u"6"_s);
    EXPECT_EQ(spoken(u"城市"_s), u"城市，第 1 排序字段，降序"_s);
    choose(u"Unit Price"_s, u"AddToSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 城市 DESC,[Unit Price]"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(spoken(u"Unit Price"_s), u"Unit Price，第 2 排序字段，升序"_s);
    open(u"城市"_s);
    EXPECT_FALSE(entry(u"AddToSort"_s)->isEnabled());
    EXPECT_TRUE(entry(u"SortDescending"_s)->isChecked());
    EXPECT_FALSE(entry(u"SortAscending"_s)->isChecked());
    menu()->close();
    choose(u"城市"_s, u"RemoveFromSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY [Unit Price]"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s).first(), u"7"_s);
    EXPECT_EQ(spoken(u"城市"_s), u"城市"_s);
    choose(u"Unit Price"_s, u"RemoveFromSort"_s);
    EXPECT_FALSE(statement().contains(u"ORDER BY"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s).first(), u"1"_s);
    // Every step is one of the history.
    click(u"ToPreview"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY [Unit Price]"_s));
    EXPECT_EQ(spoken(u"Unit Price"_s), u"Unit Price，第 1 排序字段，升序"_s);
}

TEST_F(ColumnMenu, ShowsTheSortThatTheStatementCameWith)
{
    ASSERT_TRUE(load(u"SELECT ID,名称 AS 品名,城市 FROM 商品 ORDER BY 3 DESC, 品名"_s, {}));
    EXPECT_EQ(spoken(u"城市"_s), u"城市，第 1 排序字段，降序"_s);
    EXPECT_EQ(spoken(u"品名"_s), u"品名，第 2 排序字段，升序"_s);
    EXPECT_EQ(spoken(u"ID"_s), u"ID"_s);
    choose(u"品名"_s, u"SortAscending"_s);
    EXPECT_EQ(spoken(u"城市"_s), u"城市"_s);
    EXPECT_EQ(spoken(u"品名"_s), u"品名，第 1 排序字段，升序"_s);
}

// A term that means an entry of the list keeps its meaning where the chosen fields lack the entry.
TEST_F(ColumnMenu, AddsToASortByFieldsThatAreNotChosen)
{
    ASSERT_TRUE(load(u"SELECT ID AS 编号,名称,城市 FROM 商品 ORDER BY 编号 DESC, 2"_s, {}));
    choose(u"编号"_s, u"HideColumn"_s);
    choose(u"城市"_s, u"AddToSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY ID DESC,名称,城市"_s)) << qUtf8Printable(statement());
    choose(u"城市"_s, u"RemoveFromSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY ID DESC,名称"_s)) << qUtf8Printable(statement());
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(ColumnMenu, AddsToASortByAPositionWithACollation)
{
    ASSERT_TRUE(load(u"SELECT ID,名称,城市 FROM 商品 ORDER BY 2 COLLATE NOCASE DESC, 1"_s, {}));
    EXPECT_EQ(spoken(u"名称"_s), u"名称，第 1 排序字段，降序"_s);
    choose(u"名称"_s, u"HideColumn"_s);
    choose(u"城市"_s, u"AddToSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 名称 COLLATE NOCASE DESC,ID,城市"_s))
        << qUtf8Printable(statement());
    choose(u"ID"_s, u"RemoveFromSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 名称 COLLATE NOCASE DESC,城市"_s))
        << qUtf8Printable(statement());
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(ColumnMenu, GroupedRowsAreSortedAsWell)
{
    ASSERT_TRUE(load(u"SELECT 城市,COUNT(*) AS 数量 FROM 商品 GROUP BY 城市"_s, {}));
    choose(u"数量"_s, u"SortDescending"_s);
    EXPECT_EQ(spoken(u"数量"_s), u"数量，第 1 排序字段，降序"_s);
    EXPECT_EQ(texts(u"数量"_s).first(), u"2"_s);
}

TEST_F(ColumnMenu, AddsToADerivedTablesSortOnlyIfItCanKeepIt)
{
    ASSERT_TRUE(load(u"SELECT 城市,COUNT(*) FROM 商品 GROUP BY 城市 ORDER BY COUNT(*) DESC"_s, {}));
    EXPECT_EQ(spoken(u"COUNT(*)"_s), u"COUNT(*)，第 1 排序字段，降序"_s);
    choose(u"城市"_s, u"AddToSort"_s);
    EXPECT_EQ(spoken(u"COUNT(*)"_s), u"COUNT(*)，第 1 排序字段，降序"_s);
    EXPECT_EQ(spoken(u"城市"_s), u"城市，第 2 排序字段，升序"_s);

    // The rows were taken by a field that is not shown, which no sort of them can name. So what is left of
    // the sort would be another one.
    ASSERT_TRUE(load(u"SELECT ID,城市 FROM 商品 ORDER BY [Unit Price] DESC, 城市 LIMIT 5"_s, {}));
    const QStringList taken = texts(u"ID"_s);
    const std::pair<QString, QString> refused[] = {{u"ID"_s, u"AddToSort"_s},
                                                   {u"城市"_s, u"RemoveFromSort"_s}};
    for (const auto &[column, key] : refused) {
        open(column);
        EXPECT_FALSE(entry(key)->isEnabled());
        EXPECT_TRUE(entry(key)->toolTip().startsWith(u"记录按结果中没有的内容排序"_s));
        menu()->close();
    }
    // Nor do the records that a filter leaves of them have a name for it.
    Shop::choose(14, 1, 2);
    open(u"ID"_s);
    EXPECT_FALSE(entry(u"AddToSort"_s)->isEnabled());
    menu()->close();
    click(u"ToPreview"_s);
    choose(u"ID"_s, u"SortDescending"_s);
    QStringList sorted = taken;
    std::ranges::sort(sorted, std::greater<>(), [](const QString &id) { return id.toInt(); });
    EXPECT_EQ(texts(u"ID"_s), sorted);
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(ColumnMenu, SaysWhyAStatementIsNeitherSortedNorFiltered)
{
    ASSERT_TRUE(load(u"SELECT ID,ID FROM 商品 UNION SELECT 1,2"_s, {}));
    open(u"ID"_s);
    for (const QString &key :
         {u"SortAscending"_s, u"SortDescending"_s, u"AddToSort"_s, u"FilterByColumn"_s, u"HideColumn"_s}) {
        EXPECT_FALSE(entry(key)->isEnabled()) << qUtf8Printable(key);
        EXPECT_TRUE(entry(key)->toolTip().startsWith(u"查询结果中有多个名为“ID”的字段"_s))
            << qUtf8Printable(entry(key)->toolTip());
    }
    EXPECT_TRUE(menu()->toolTipsVisible());
}

TEST_F(ColumnMenu, FiltersByTheColumnThroughTheDialog)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { press(dialog, "cmdByConditions"); },
                           [](QDialog &dialog) {
                               EXPECT_EQ(part<QComboBox>(dialog, "cmbField1").currentText(), u"城市"_s);
                               compose(part<QLineEdit>(dialog, "txtValue1"), u"大连"_s);
                               press(dialog, "cmd_Filter");
                           }});
    choose(u"城市"_s, u"FilterByColumn"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    EXPECT_EQ(spoken(u"城市"_s), u"城市，已筛选"_s);
    EXPECT_EQ(spoken(u"名称"_s), u"名称"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(spoken(u"城市"_s), u"城市"_s);
}

TEST_F(ColumnMenu, TheHostsOwnConditionFiltersNoColumn)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE 城市='大连'"_s, {}));
    EXPECT_EQ(spoken(u"城市"_s), u"城市"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"米"_s, u"名称"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s}));
    EXPECT_EQ(spoken(u"城市"_s), u"城市"_s);
    EXPECT_EQ(spoken(u"名称"_s), u"名称，已筛选"_s);
}

TEST_F(ColumnMenu, HidesTheColumnAsAChoiceOfFieldsDoes)
{
    ASSERT_TRUE(load());
    choose(u"城市"_s, u"HideColumn"_s);
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"名称"_s, u"Unit Price"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
    EXPECT_TRUE(isPressed(u"Part"_s));
    choose(u"ID"_s, u"HideColumn"_s);
    EXPECT_EQ(columns(), QStringList({u"名称"_s, u"Unit Price"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
    click(u"All"_s);
    EXPECT_EQ(columns(), AllColumns);
    click(u"Part"_s);
    EXPECT_EQ(columns(), QStringList({u"名称"_s, u"Unit Price"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
}

TEST_F(ColumnMenu, TheLastColumnStays)
{
    ASSERT_TRUE(load(u"SELECT 名称 FROM 商品"_s, {}));
    open(u"名称"_s);
    EXPECT_FALSE(entry(u"HideColumn"_s)->isEnabled());
}

TEST_F(ColumnMenu, HidesOneOfTwoColumnsOfAName)
{
    const auto shownRow = [&] {
        QStringList values;
        for (const int section : shownSections())
            values.append(table->model()->index(0, section).data().toString());
        return values;
    };
    ASSERT_TRUE(load(u"SELECT a.ID, b.ID, b.商品 FROM 商品 a JOIN 订单 b ON b.商品 = a.ID"_s, {}));
    ASSERT_EQ(shownRow(), QStringList({u"3"_s, u"1"_s, u"3"_s}));
    choose(u"ID"_s, u"HideColumn"_s); // the first of them
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"商品"_s}));
    EXPECT_EQ(shownRow(), QStringList({u"1"_s, u"3"_s}));
    choose(u"商品"_s, u"HideColumn"_s);
    EXPECT_EQ(columns(), QStringList(u"ID"_s));
    EXPECT_EQ(shownRow(), QStringList(u"1"_s)) << "the other one stays away";
    choose(u"ID"_s, u"SortDescending"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY b.ID DESC"_s)) << qUtf8Printable(statement());
    Hands::choose(14, 1, shownSections().first() + 1); // the cell filter
    EXPECT_TRUE(statement().contains(u"WHERE b.ID"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(rows(), 1);
    click(u"All"_s);
    EXPECT_EQ(shownRow(), QStringList({u"3"_s, u"1"_s, u"3"_s}));
}

TEST_F(ColumnMenu, SaysWhyAnEntryIsGrey)
{
    ASSERT_TRUE(load());
    const auto why = [&](const QString &column, const QString &key) {
        open(column);
        const QString tip = entry(key)->isEnabled() ? u"it is not"_s : entry(key)->toolTip();
        menu()->close();
        return tip;
    };
    EXPECT_EQ(why(u"城市"_s, u"RemoveFromSort"_s), u"记录没有按此列排序。"_s);
    EXPECT_EQ(why(u"城市"_s, u"FormatColumn"_s), u"只有数字列和“是/否”列可以设置格式。"_s);
    EXPECT_EQ(why(u"ID"_s, u"MoveLeft"_s), u"这一侧没有其他列。"_s);
    EXPECT_EQ(why(u"ID"_s, u"MoveRight"_s), u"it is not"_s);
    choose(u"城市"_s, u"AddToSort"_s);
    EXPECT_EQ(why(u"城市"_s, u"AddToSort"_s), u"记录已经按此列排序。"_s);
    ASSERT_TRUE(load(u"SELECT 名称 FROM 商品"_s, {}));
    EXPECT_EQ(why(u"名称"_s, u"HideColumn"_s), u"至少要显示一列。"_s);
}

TEST_F(ColumnMenu, OpensByKeysAndGoesOnByKeys)
{
    ASSERT_TRUE(load());
    clickCell(2, 4);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_TRUE(menu()->isVisible());
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 城市 DESC"_s)) << qUtf8Printable(statement());
}

TEST_F(ColumnMenu, OpensByKeyWithoutRecordsToo)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID < 0"_s, {}));
    ASSERT_EQ(table->model()->rowCount(), 0);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_TRUE(menu()->isVisible());
    EXPECT_EQ(menu()->pos().x(), header()->viewport()->mapToGlobal(QPoint(0, 0)).x());
    QTest::keyClick(menu(), Qt::Key_Escape);
    // A current column that is out of view.
    ASSERT_TRUE(load());
    clickCell(1, static_cast<int>(AllColumns.size()));
    for (int section = 0; section < table->model()->columnCount(); ++section)
        table->setColumnWidth(section, 400);
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID < 0"_s, {}));
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    ASSERT_TRUE(menu()->isVisible());
    EXPECT_TRUE(QRect(table->mapToGlobal(QPoint(0, 0)), table->size()).contains(menu()->pos()));
    QTest::keyClick(menu(), Qt::Key_Escape);
}

TEST_F(ColumnMenu, IsTheEndOfThePopupOnAHeading)
{
    ASSERT_TRUE(load());
    QStringList fixed;
    auto *popup = grid.findChild<QMenu *>(u"PopMnuData"_s);
    for (const QAction *action : popup->actions())
        fixed.append(action->objectName());
    QStringList shown;
    {
        WindowAnswers answers;
        answers.clickInMenu(u"ColumnMenuSortDescending"_s);
        QObject::connect(popup, &QMenu::aboutToHide, &grid, [&] {
            if (shown.isEmpty()) {
                for (const QAction *action : popup->actions())
                    shown.append(action->objectName());
            }
        });
        QTest::mouseClick(header()->viewport(), Qt::RightButton, {}, heading(u"城市"_s));
        EXPECT_TRUE(answers.wasMenuShown());
    }
    EXPECT_EQ(shown.first(fixed.size()), fixed);
    EXPECT_EQ(shown.size(), fixed.size() + 2)
        << "a line and a menu of its own, so that the popup stays short";
    EXPECT_TRUE(statement().endsWith(u"ORDER BY 城市 DESC"_s)) << qUtf8Printable(statement());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(popup->actions().size(), fixed.size());
}

TEST_F(ColumnMenu, TheCurrentColumnStaysWhenOtherRecordsAreShown)
{
    ASSERT_TRUE(load());
    clickCell(2, 4);
    for (const auto key : {Qt::Key_Return, Qt::Key_Down}) {
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        ASSERT_TRUE(menu()->isVisible());
        if (key == Qt::Key_Down)
            QTest::keyClick(menu(), key);
        QTest::keyClick(menu(), Qt::Key_Return);
        EXPECT_TRUE(statement().contains(u"ORDER BY 城市"_s)) << qUtf8Printable(statement());
        EXPECT_EQ(table->currentIndex().column(), 3);
        EXPECT_EQ(table->currentIndex().row(), 0);
        EXPECT_EQ(grid.GetGridCol(), 4);
    }
}

TEST_F(ColumnMenu, IsNotThereWhileTheToolbarIsDisabled)
{
    ASSERT_TRUE(load());
    table->setFocus();
    grid.PutDisplayEable(false);
    QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    QTest::mouseClick(header()->viewport(), Qt::LeftButton, {}, arrow(u"城市"_s));
    EXPECT_FALSE(menu()->isVisible());
}

TEST_F(ColumnMenu, AClickOnTheHeadingNeverSorts)
{
    ASSERT_TRUE(load());
    const QString before = statement();
    QSignalSpy heads(&grid, &KOVAVSFDataGrid::HeadClick);
    QTest::mouseClick(header()->viewport(), Qt::LeftButton, {}, heading(u"城市"_s));
    EXPECT_EQ(heads.count(), 1);
    open(u"城市"_s);
    EXPECT_EQ(heads.count(), 1);
    EXPECT_EQ(statement(), before);
}

TEST_F(ColumnMenu, TheFullScreenViewerHasItToo)
{
    ASSERT_TRUE(load());
    header()->moveSection(0, 2);
    const QStringList moved = shownOrder();
    {
        WindowAnswers dialogs({[&](QDialog &viewer) {
            auto &shown = part<QTableView>(viewer, "vsfgShowData");
            QStringList names;
            for (int visual = 0; visual < shown.horizontalHeader()->count(); ++visual)
                names.append(shown.model()
                                 ->headerData(shown.horizontalHeader()->logicalIndex(visual), Qt::Horizontal)
                                 .toString());
            EXPECT_EQ(names, moved);
            QHeaderView &headings = *shown.horizontalHeader();
            const QPoint arrow(headings.sectionViewportPosition(3) + headings.sectionSize(3) - 8,
                               headings.height() / 2);
            QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, arrow);
            auto &opened = part<QMenu>(viewer, "ColumnMenu");
            EXPECT_TRUE(opened.isVisible());
            QTest::keyClick(&opened, Qt::Key_Down);
            QTest::keyClick(&opened, Qt::Key_Return);
            EXPECT_EQ(shown.model()->headerData(3, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
                      u"城市，第 1 排序字段，降序"_s);
            shown.horizontalHeader()->moveSection(0, 3);
            viewer.accept();
        }});
        click(u"FullScreen"_s);
    }
    EXPECT_EQ(spoken(u"城市"_s), u"城市，第 1 排序字段，降序"_s);
    EXPECT_EQ(shownOrder(),
              QStringList({u"Unit Price"_s, u"ID"_s, u"城市"_s, u"名称"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
}

TEST_F(ColumnMenu, AHostMayDeleteTheControlFromACommandOfTheMenu)
{
    auto *control = new KOVAVSFDataGrid;
    control->resize(900, 400);
    control->show();
    control->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(control));
    control->PutConnectionString(database.connectionString());
    control->PutSQLShow(statementOfAll());
    ASSERT_TRUE(control->IsLoadData());
    auto *view = control->findChild<QTableView *>(u"vsfgDataGrid"_s);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    const QPointer<QWidget> opened = QApplication::activePopupWidget();
    ASSERT_TRUE(opened);
    EXPECT_EQ(opened->objectName(), u"ColumnMenu"_s);
    const QPointer<KOVAVSFDataGrid> alive(control);
    QObject::connect(control, &KOVAVSFDataGrid::RecordsetChanged, control, [control] { delete control; });
    QTest::keyClick(opened, Qt::Key_Return);
    EXPECT_FALSE(alive);
}
