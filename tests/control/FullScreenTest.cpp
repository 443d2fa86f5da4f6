// The "FullScreen" button of a control, and coming back from the viewer.
#include <KOVAVSFDataGrid>

#include "support/Dialogs.h"
#include "support/ExpectedWarnings.h"
#include "support/TestDatabase.h"
#include "support/WindowAnswers.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
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
        EXPECT_EQ(view->model()->index(1, 0).data(), u"3"_s);
        EXPECT_EQ(view->model()->index(2, 0).data(), QString());
    });
    EXPECT_EQ(grid.CellTextL(2, 1), u"3"_s);
    EXPECT_TRUE(grid.SQLFilter().contains(u"B like 'x'"_s)) << qPrintable(grid.SQLFilter());
    press(grid, "ToPreview");
    EXPECT_EQ(grid.CellTextL(2, 1), u"2"_s) << "the history goes along";
}

TEST_F(FullScreen, TheFilterButtonAsksInTheDialogAboveTheViewer)
{
    ASSERT_TRUE(grid.IsLoadData());
    WindowAnswers dialogs({[](QDialog &viewer) {
                               press(viewer, "Filter");
                               EXPECT_EQ(seen(viewer, u"vsfgShowData"_s), u"A B C"_s);
                               QTest::keyClick(&viewer, Qt::Key_Escape);
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(dialog.objectName(), u"frm_Filter"_s);
                               EXPECT_EQ(dialog.parentWidget()->objectName(), u"frm_FullScreen"_s);
                               compose(part<QLineEdit>(dialog, "txtCondition"), u"C > 10"_s);
                               KovaTest::press(dialog, "cmd_Filter");
                           }});
    press(grid, "FullScreen");
    EXPECT_EQ(grid.CellTextL(1, 1), u"2"_s);
    EXPECT_TRUE(grid.SQLFilter().contains(u"WHERE C > 10"_s)) << qPrintable(grid.SQLFilter());
    press(grid, "ToPreview");
    EXPECT_EQ(grid.CellTextL(1, 1), u"1"_s) << "it is an entry of the history";
}

TEST_F(FullScreen, ShortcutsWorkThereToo)
{
    ASSERT_TRUE(grid.IsLoadData());
    visit([](QDialog &viewer) {
        auto *view = viewer.findChild<QTableView *>(u"vsfgShowData"_s);
        viewer.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&viewer));
        EXPECT_TRUE(view->hasFocus());
        QTest::keyClick(view, Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(seen(viewer, u"vsfgShowData"_s), u"A C"_s);
        QTest::keyClick(view, Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(seen(viewer, u"vsfgShowData"_s), u"A B C"_s);
    });
    EXPECT_EQ(seen(grid, u"vsfgDataGrid"_s), u"A B C"_s);
}

TEST_F(FullScreen, AResultThatTakesLongCanBeCancelled)
{
    database.run(u"CREATE TABLE S (N INTEGER PRIMARY KEY);"
                 "WITH RECURSIVE I(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM I WHERE i < 2000)"
                 " INSERT INTO S SELECT i FROM I;"
                 "CREATE VIEW Many AS SELECT A.N AS N, B.N AS M FROM S A, S B, S C"_s);
    grid.PutSQLShow(u"select * from Many where N = 1 and M = 2"_s);
    ASSERT_TRUE(grid.IsLoadData());
    int lines = 0;
    visit([&](QDialog &viewer) {
        QTimer::singleShot(0, &viewer, [&] { // runs when the line is shown
            ASSERT_TRUE(viewer.findChild<QProgressBar *>());
            for (QPushButton *button : viewer.findChildren<QPushButton *>()) {
                if (button->text() == u"取消") {
                    ++lines;
                    QTest::mouseClick(button, Qt::LeftButton);
                }
            }
        });
        press(viewer, "ToFullTable");
        EXPECT_FALSE(viewer.findChild<QProgressBar *>());
        const auto *cells = viewer.findChild<QTableView *>(u"vsfgShowData"_s)->model();
        EXPECT_NE(cells->index(1999, 0).data(), QString());
        EXPECT_EQ(cells->index(2000, 0).data(), QString()) << "empty below the last record";
    });
    EXPECT_EQ(lines, 1);
    EXPECT_EQ(grid.findChild<QTableView *>(u"vsfgDataGrid"_s)->model()->rowCount(), 2000);
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
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
