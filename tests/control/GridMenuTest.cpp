// When the grid asks for its menu.
#include "GridFixture.h"
#include "control/face/ControlWindow.h"
#include "control/input/GridEvents.h"
#include "control/input/InputEvents.h"
#include "control/parts/GridParts.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/WindowRules.h"
#include "session/pages/Pages.h"

#include <QtTest/QSignalSpy>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// The parts of a control, put together without one.
struct GridMenu : testing::Test
{
    GridMenu()
    {
        window.resize(600, 400);
        shown.setSession(*session);
        parts.layOut(600, 400);
        window.show();
        QObject::connect(&host, &InputEvents::DataMouseUp, &window,
                         [this] { menusAtMouseUp = menus.count(); });
    }

    void fill(const QString &statement)
    {
        session->result().replaceBy(ResultSet::open(database.connectionString(), statement, 1, {}));
        session->pages().setPage(1);
        session->pages().fillPage();
    }
    QPoint rowPlace(int row) const
    {
        return parts.vsfgDataGrid->visualRect(parts.vsfgDataGrid->model()->index(row - 1, 0)).center();
    }
    void click(Qt::MouseButton button, const QPoint &place)
    {
        QTest::mouseClick(parts.vsfgDataGrid->viewport(), button, {}, place);
    }

    TestDatabase database{u"CREATE TABLE T (ID); INSERT INTO T VALUES (1),(2),(3)"_s};
    InputEvents host;
    QWidget window;
    GridParts parts{window};
    ControlWindow shown{window, parts};
    Questions nobody;
    HostEvents noHost;
    std::shared_ptr<Session> session =
        std::make_shared<Session>(shown, nobody, noHost, controlRules, parts.Adodc1);
    GridEvents events{host, parts, *session};
    QSignalSpy menus{&events, &GridEvents::menuWanted};
    qsizetype menusAtMouseUp = -1;
};

} // namespace

TEST_F(GridMenu, OpensOnARightClickOnDataBeforeTheHostGetsTheEvent)
{
    fill(u"select ID from T"_s);
    click(Qt::RightButton, rowPlace(2));
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus.at(0).at(0).toPoint(), parts.vsfgDataGrid->viewport()->mapToGlobal(rowPlace(2)));
    EXPECT_EQ(parts.vsfgDataGrid->Row(), 2) << "it acts on the record under the pointer";
    EXPECT_EQ(menusAtMouseUp, 1);
}

TEST_F(GridMenu, ComesWithNoOtherButton)
{
    fill(u"select ID from T"_s);
    click(Qt::LeftButton, rowPlace(2));
    click(Qt::MiddleButton, rowPlace(2));
    EXPECT_EQ(menus.count(), 0);
    EXPECT_EQ(menusAtMouseUp, 0) << "the host hears of the click all the same";
}

TEST_F(GridMenu, ComesBelowTheLastRecordAndForAColumnOnItsHeading)
{
    fill(u"select ID from T"_s);
    QSignalSpy headingMenus(&events, &GridEvents::headingMenuWanted);
    click(Qt::RightButton, {10, parts.vsfgDataGrid->viewport()->height() - 3});
    EXPECT_EQ(menus.count(), 1);
    QTest::mouseClick(parts.vsfgDataGrid->horizontalHeader()->viewport(), Qt::RightButton, {}, {5, 5});
    EXPECT_EQ(menus.count(), 1);
    ASSERT_EQ(headingMenus.count(), 1);
    EXPECT_EQ(headingMenus.at(0).at(0).toInt(), 1);
}

TEST_F(GridMenu, ComesOnlyWhileTheToolbarIsEnabled)
{
    fill(u"select ID from T"_s);
    parts.Toolbar1->setEnabled(false);
    click(Qt::RightButton, rowPlace(1));
    EXPECT_EQ(menus.count(), 0);
    EXPECT_EQ(menusAtMouseUp, 0);
    parts.Toolbar1->setEnabled(true);
    click(Qt::RightButton, rowPlace(1));
    EXPECT_EQ(menus.count(), 1);
}

TEST_F(GridMenu, DoesNotComeOnAnEmptyOrClosedResult)
{
    fill(u"select ID from T where ID > 5"_s);
    click(Qt::RightButton, {10, 10});
    fill(u"select ID from T"_s);
    session->result().close();
    click(Qt::RightButton, rowPlace(1));
    EXPECT_EQ(menus.count(), 0);
}

TEST_F(GridMenu, ComesWithTheMenuKeyBelowTheCurrentCell)
{
    fill(u"select ID from T"_s);
    parts.vsfgDataGrid->PutRow(3);
    QTest::keyClick(parts.vsfgDataGrid, Qt::Key_Menu);
    ASSERT_EQ(menus.count(), 1);
    const QRect cell = parts.vsfgDataGrid->visualRect(parts.vsfgDataGrid->currentIndex());
    EXPECT_EQ(menus.at(0).at(0).toPoint(), parts.vsfgDataGrid->viewport()->mapToGlobal(cell.bottomLeft()));
}
