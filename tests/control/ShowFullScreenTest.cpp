// The way from the control to the full-screen viewer and back.
#include "ViewerFixture.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/viewer/ShowFullScreen.h"
#include "forms/DialogFieldChooser.h"
#include "grid/FlexGrid.h"
#include "session/WindowRules.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownStatement.h"

#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct HandBack : LoadedParts
{
    // Opens the viewer, runs the user's actions in it, and closes it. False if the visit ended before.
    bool visit(const std::function<void(const ViewerUser &)> &doSomething)
    {
        host.filtersWritten = 0;
        QTimer::singleShot(0, &control, [this, doSomething] {
            QWidget *viewer = QApplication::activeModalWidget();
            ASSERT_TRUE(viewer);
            ++visits;
            doSomething(ViewerUser(*viewer));
            viewer->close();
        });
        return showFullScreen();
    }
    bool showFullScreen()
    {
        return ShowFullScreen(control, *session, parts,
                              [this](QWidget *, const ConditionRequest &) { return askCondition(); });
    }
    bool isRequeried() const { return host.filtersWritten > 0; }
    bool isAll() const { return session->fields().view() == FieldView::All; }

    std::function<QString()> askCondition = [this] { return condition; };
    QString row(int row) const
    {
        QStringList texts;
        for (int col = 1; col < parts.vsfgDataGrid->Cols(); ++col) {
            if (parts.vsfgDataGrid->ColWidth(col) != 0)
                texts.append(parts.vsfgDataGrid->TextMatrix(row, col));
        }
        return texts.join(u' ');
    }

    int visits = 0;
};

} // namespace

TEST_F(HandBack, AnEmptyResultIsNotShown)
{
    load(u"select * from T where ID > 99"_s);
    EXPECT_FALSE(showFullScreen());
    result.close();
    EXPECT_FALSE(showFullScreen());
}

TEST_F(HandBack, LookingAroundMovesNothing)
{
    load(u"select * from T"_s);
    result.recordset()->PutAbsolutePosition(3);
    parts.vsfgDataGrid->PutRow(3);
    QSignalSpy moves(parts.Adodc1, &ADODB::Adodc::MoveComplete);
    const auto before = result.recordset();
    const bool isBack = visit([](const ViewerUser &user) {
        EXPECT_EQ(user.grid().Row(), 3);
        QTest::keyClick(&user.grid(), Qt::Key_Down);
        user.press(u"Next"_s);
    });
    ASSERT_TRUE(isBack);
    EXPECT_EQ(visits, 1);
    EXPECT_TRUE(isAll());
    EXPECT_FALSE(isRequeried());
    EXPECT_EQ(session->shown().text(), statement);
    EXPECT_EQ(result.recordset(), before);
    EXPECT_EQ(position(), 3);
    EXPECT_EQ(parts.vsfgDataGrid->Row(), 3);
    EXPECT_EQ(moves.count(), 0);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(HandBack, EnablesToolbarAndPageButton)
{
    load(u"select * from T"_s);
    parts.Toolbar1->setEnabled(false);
    parts.cmdPgae->setEnabled(false);
    visit([](const ViewerUser &) {});
    EXPECT_TRUE(parts.Toolbar1->isEnabled());
    EXPECT_TRUE(parts.cmdPgae->isEnabled());
}

TEST_F(HandBack, ThePageGoesAlong)
{
    load(
        u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 1500000) select n as ID from N"_s);
    QSignalSpy moves(parts.Adodc1, &ADODB::Adodc::MoveComplete);
    visit([](const ViewerUser &user) { user.press(u"Last"_s); });
    EXPECT_FALSE(isRequeried());
    EXPECT_EQ(session->pages().current(), 2);
    EXPECT_EQ(parts.txtPage->text(), u"2"_s);
    EXPECT_EQ(row(1), u"1000000"_s);
    EXPECT_EQ(position(), 1000000);
    EXPECT_EQ(moves.count(), 0) << "filling a page is no move";
    visit([](const ViewerUser &user) {
        EXPECT_EQ(user.label(), u"第2页共2页"_s);
        user.goTo(u"1"_s);
    });
    EXPECT_EQ(session->pages().current(), 1);
    EXPECT_EQ(row(1), u"1"_s);
}

TEST_F(HandBack, ADifferentResultIsShownInTheControl)
{
    load(u"select * from T"_s);
    QSignalSpy replaced(parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete);
    condition = u"Name like 'Anna'"_s;
    visit([this](const ViewerUser &user) {
        user.press(u"Filter"_s);
        EXPECT_EQ(row(1), user.row(1)) << "the control behind the viewer shows the same result";
    });
    EXPECT_TRUE(isRequeried());
    EXPECT_EQ(session->shown().text(), latestStatement());
    EXPECT_EQ(result.recordset()->RecordCount(), 2);
    EXPECT_EQ(parts.vsfgDataGrid->model()->rowCount(), 2);
    EXPECT_EQ(row(2), u"4 Anna 40 2004-04-04"_s);
    EXPECT_EQ(history().Count(), 2);
    EXPECT_GE(replaced.count(), 1);
    EXPECT_EQ(parts.vsfgDataGrid->Row(), 1);
    EXPECT_EQ(position(), 1);
}

TEST_F(HandBack, ADifferentEmptyResultIsShownToo)
{
    load(u"select * from T"_s);
    condition = u"ID > 99"_s;
    visit([](const ViewerUser &user) { user.press(u"Filter"_s); });
    EXPECT_EQ(parts.vsfgDataGrid->model()->rowCount(), 0);
    EXPECT_EQ(session->pages().current(), 0);
    EXPECT_EQ(row(0), u"ID Name Price Born"_s);
}

TEST_F(HandBack, ThePartFieldViewGoesAlong)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    const bool isBack = visit([](const ViewerUser &user) { user.press(u"Part"_s); });
    EXPECT_TRUE(isBack);
    EXPECT_FALSE(isAll());
    EXPECT_FALSE(isRequeried());
    EXPECT_TRUE(parts.Toolbar1->isButtonPressed(u"Part"_s));
    EXPECT_EQ(row(0), u"Name Born"_s);

    visit([](const ViewerUser &user) {
        EXPECT_EQ(user.row(0), u"Name Born"_s);
        user.press(u"All"_s);
    });
    EXPECT_TRUE(parts.Toolbar1->isButtonPressed(u"All"_s));
    EXPECT_EQ(row(0), u"ID Name Price Born"_s);
}

TEST_F(HandBack, TheChosenFieldsGoAlong)
{
    load(u"select * from T"_s);
    chooser.answer = u"[Born],[ID]"_s;
    const bool isBack = visit([](const ViewerUser &user) { user.press(u"SelField"_s); });
    EXPECT_TRUE(isBack);
    EXPECT_FALSE(isAll());
    EXPECT_EQ(row(0), u"Born ID"_s);
    EXPECT_EQ(row(1), u"2001-01-01 1"_s);
}

TEST_F(HandBack, AColumnOfAnotherFieldIsNotHiddenByTheOneThatWasInItsPlace)
{
    load(u"select * from T"_s, u"select Name from T"_s);
    forgetWidths();
    session->columns().ShowPartFieldColumns(PartWidths::Unchanged);
    ASSERT_EQ(row(0), u"Name"_s);
    session->fields().setView(FieldView::Part);
    chooser.answer = u"[Born],[ID]"_s;
    visit([](const ViewerUser &user) { user.press(u"SelField"_s); });
    EXPECT_EQ(row(0), u"Born ID"_s);
}

TEST_F(HandBack, TheWidthsThatTheUserSeesGoIn)
{
    load(u"select * from T"_s);
    parts.vsfgDataGrid->PutColWidth(2, 4321);
    visit([](const ViewerUser &user) { EXPECT_EQ(user.grid().ColWidth(2), 4321); });
    EXPECT_EQ(parts.vsfgDataGrid->ColWidth(2), 4321);
}

TEST_F(HandBack, WhatTheControlDoesNotOfferTheViewerDoesNotEither)
{
    load(u"select * from T"_s);
    parts.Toolbar1->setButtonVisible(u"Filter"_s, false);
    parts.Toolbar1->setButtonEnabled(u"Sort"_s, false);
    parts.Toolbar1->setButtonEnabled(u"ToFullTable"_s, false);
    visit([](const ViewerUser &user) {
        for (const QString &key : {u"Filter"_s, u"Sort"_s, u"ToFullTable"_s})
            EXPECT_FALSE(user.toolbar().isButtonEnabled(key)) << qPrintable(key);
    });
}

TEST_F(HandBack, TheSelectionDialogsAreAboveTheViewer)
{
    load(u"select * from T"_s);
    DialogFieldChooser dialogs(&control);
    filter.SetFieldChooser(&dialogs);
    for (const QString &key : {u"Sort"_s, u"SelField"_s}) {
        visit([&](const ViewerUser &user) {
            const QWidget *viewer = QApplication::activeModalWidget();
            int shown = 0;
            QTimer::singleShot(0, &control, [&] {
                QWidget *dialog = QApplication::activeModalWidget();
                shown += dialog != viewer && dialog->parentWidget() == viewer;
                QTest::keyClick(dialog, Qt::Key_Escape);
            });
            user.press(key);
            EXPECT_EQ(shown, 1) << qPrintable(key);
        });
    }
    EXPECT_EQ(history().Count(), 1);
}

TEST_F(HandBack, AHostThatReloadsMeanwhileEndsTheVisit)
{
    load(u"select * from T"_s);
    const bool isBack = visit([this](const ViewerUser &user) {
        result.replaceBy(ResultSet::open(database.connectionString(), u"select Name from T"_s, dbAccess, {}));
        EXPECT_FALSE(user.grid().isVisible());
        user.toolbar().findChild<QAction *>(u"All"_s)->trigger();
    });
    EXPECT_FALSE(isBack);
    EXPECT_EQ(result.recordset()->Fields().Count(), 1) << "what the host opened stays";
    EXPECT_EQ(history().Count(), 1);
}

TEST_F(HandBack, AHostThatReloadsDuringTheFilterDialogEndsTheVisit)
{
    load(u"select * from T"_s);
    askCondition = [this] {
        result.replaceBy(ResultSet::open(database.connectionString(), u"select Name from T"_s, dbAccess, {}));
        return u"ID > 1"_s;
    };
    QTimer::singleShot(0, &control,
                       [] { ViewerUser(*QApplication::activeModalWidget()).press(u"Filter"_s); });
    EXPECT_FALSE(showFullScreen());
    EXPECT_EQ(result.recordset()->RecordCount(), 5);
    EXPECT_EQ(history().Count(), 1);
}

TEST_F(HandBack, AControlThatIsDestroyedMeanwhileTakesTheViewerAlong)
{
    load(u"select * from T"_s);
    auto *form = new QWidget;
    GridParts others(*form);
    ControlWindow otherWindow(*form, others);
    const auto other = std::make_shared<Session>(otherWindow, chooser, host, controlRules, others.Adodc1);
    otherWindow.setSession(*other);
    other->result().replaceBy(ResultSet::open(database.connectionString(), statement, dbAccess, {}));
    other->pages().setPage(1);
    other->pages().fillPage();
    QObject::connect(form, &QObject::destroyed, form, [&] { other->detach(); });
    QTimer::singleShot(0, form, [form] { delete form; });
    EXPECT_FALSE(
        ShowFullScreen(*form, *other, others, [](QWidget *, const ConditionRequest &) { return QString(); }));
}
