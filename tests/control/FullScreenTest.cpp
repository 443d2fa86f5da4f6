// The "FullScreen" button of a control, and coming back from the viewer.
#include <KOVAVSFDataGrid>

#include "support/ExpectedWarnings.h"
#include "support/TestDatabase.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FullScreen : testing::Test
{
    FullScreen()
    {
        grid.resize(900, 500);
        grid.show();
        grid.PutConnectionString(database.connectionString());
        grid.PutDBType(KOVAVSFDataGrid::dbAccess);
        grid.PutSQLShow(u"select * from T"_s);
        grid.PutSQLPartDisplay(u"select A, C from T"_s);
    }

    static void press(QWidget &window, const char *key)
    {
        auto *toolbar = window.findChild<QToolBar *>(u"Toolbar1"_s);
        QTest::mouseClick(toolbar->widgetForAction(toolbar->findChild<QAction *>(QLatin1StringView(key))),
                          Qt::LeftButton);
    }
    // Presses "FullScreen", does something in the viewer and leaves it by Esc.
    void visit(const std::function<void(QDialog &)> &doSomething)
    {
        QTimer::singleShot(0, &grid, [this, doSomething] {
            auto *viewer = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(viewer);
            EXPECT_EQ(viewer->objectName(), u"frm_FullScreen"_s);
            ++visits;
            doSomething(*viewer);
            QTest::keyClick(viewer, Qt::Key_Escape);
        });
        press(grid, "FullScreen");
    }
    // The headings that can be seen.
    static QString seen(const QWidget &window, const QString &name)
    {
        const auto *view = window.findChild<QTableView *>(name);
        QStringList names;
        for (int col = 0; col < view->model()->columnCount(); ++col) {
            if (!view->isColumnHidden(col))
                names.append(view->model()->headerData(col, Qt::Horizontal).toString());
        }
        return names.join(u' ');
    }

    ExpectedWarning offscreen{u"This plugin does not support"_s};
    TestDatabase database{u"CREATE TABLE T (A INTEGER PRIMARY KEY, B VARCHAR(9), C INTEGER);"
                          "INSERT INTO T VALUES (1,'x',10),(2,'y',20),(3,'x',30)"_s};
    KOVAVSFDataGrid grid;
    int visits = 0;
};

} // namespace

TEST_F(FullScreen, LookingAroundMovesNothing)
{
    ASSERT_TRUE(grid.IsLoadData());
    grid.SetGridRow(2);
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    const qint32 position = grid.CurrPosition();
    visit([](QDialog &viewer) { EXPECT_EQ(seen(viewer, u"vsfgShowData"_s), u"A B C"_s); });
    EXPECT_EQ(visits, 1);
    EXPECT_EQ(grid.GetGridRowL(), 2);
    EXPECT_EQ(grid.CurrPosition(), position);
    EXPECT_EQ(moves.count(), 0);
}

TEST_F(FullScreen, WhatTheUserFilteredThereIsShownHere)
{
    ASSERT_TRUE(grid.IsLoadData());
    visit([](QDialog &viewer) {
        auto *view = viewer.findChild<QTableView *>(u"vsfgShowData"_s);
        QTest::mouseClick(view->viewport(), Qt::RightButton, {},
                          view->visualRect(view->model()->index(0, 1)).center());
        auto *menu = viewer.findChild<QMenu *>(u"PopMnu"_s);
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->findChild<QAction *>(u"PopMnuAction4"_s)).center());
        EXPECT_EQ(view->model()->rowCount(), 2);
    });
    EXPECT_EQ(grid.CellTextL(2, 1), u"3"_s);
    EXPECT_TRUE(grid.SQLFilter().contains(u"B like 'x'"_s)) << qPrintable(grid.SQLFilter());
    press(grid, "ToPreview");
    EXPECT_EQ(grid.CellTextL(2, 1), u"2"_s) << "the history goes along";
}

TEST_F(FullScreen, ThePartFieldViewComesBack)
{
    ASSERT_TRUE(grid.IsLoadData());
    visit([](QDialog &viewer) { press(viewer, "Part"); });
    EXPECT_EQ(seen(grid, u"vsfgDataGrid"_s), u"A C"_s);
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelPart);
    visit([](QDialog &viewer) {
        EXPECT_EQ(seen(viewer, u"vsfgShowData"_s), u"A C"_s);
        press(viewer, "All");
    });
    EXPECT_EQ(seen(grid, u"vsfgDataGrid"_s), u"A B C"_s);
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelAll);
}

TEST_F(FullScreen, LeavesTheSingleRecordView)
{
    ASSERT_TRUE(grid.IsLoadData());
    press(grid, "SingleRecord");
    visit([](QDialog &) {});
    EXPECT_TRUE(grid.findChild<QTableView *>(u"vsfgDataGrid"_s)->isVisible());
}

TEST_F(FullScreen, AnEmptyResultOpensNoViewer)
{
    grid.PutSQLShow(u"select * from T where A > 9"_s);
    ASSERT_TRUE(grid.IsLoadData());
    press(grid, "FullScreen");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(FullScreen, AHostThatReloadsMeanwhileEndsTheVisit)
{
    ASSERT_TRUE(grid.IsLoadData());
    visit([this](QDialog &viewer) {
        grid.PutSQLShow(u"select B from T"_s);
        EXPECT_TRUE(grid.IsLoadData());
        EXPECT_FALSE(viewer.isVisible());
    });
    EXPECT_EQ(seen(grid, u"vsfgDataGrid"_s), u"B"_s);
}
