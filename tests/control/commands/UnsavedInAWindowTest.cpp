// The user's changes to a record are not lost when the parent of the control or the program is closed.
#include "control/face/KOVAVSFDataGrid.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// A control of one record on the heap, with a value that is typed and not confirmed.
class UnsavedInAWindow : public testing::Test
{
protected:
    UnsavedInAWindow()
    {
        grid->PutConnectionString(database.connectionString());
        grid->PutSQLShow(u"select * from T"_s);
    }
    ~UnsavedInAWindow() override { delete there; }
    // Where the control has its place by now.
    void type()
    {
        grid->show();
        ASSERT_TRUE(grid->IsLoadData());
        auto *single = grid->findChild<QAction *>(u"SingleRecord"_s);
        auto *list = grid->findChild<QTableView *>(u"MSFlexGrid1"_s);
        auto *edit = grid->findChild<QLineEdit *>(u"txtEdit"_s);
        ASSERT_TRUE(single && list && edit);
        single->trigger();
        list->setCurrentIndex(list->model()->index(1, 1));
        QTest::keyClick(list, Qt::Key_F2);
        edit->setText(u"b"_s);
    }
    void refuse()
    {
        database.run(u"CREATE TRIGGER No BEFORE UPDATE ON T BEGIN SELECT RAISE(ABORT, 'never'); END"_s);
    }
    QString stored() const { return database.ask(u"SELECT A FROM T"_s); }
    // What closes is asked about, and stays.
    void expectToStay(QWidget &closed)
    {
        const QPointer<QWidget> shown(&closed);
        refuse();
        messages.answerNext(QMessageBox::Cancel);
        EXPECT_FALSE(closed.close());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(messages.shown().size(), 1U);
        ASSERT_TRUE(shown && there);
        EXPECT_TRUE(grid->isVisible());
        database.run(u"DROP TRIGGER No"_s);
        EXPECT_TRUE(closed.close());
        EXPECT_EQ(stored(), u"b"_s);
    }

    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT); INSERT INTO T VALUES (1,'a')"_s};
    MessageAnswers messages;
    KOVAVSFDataGrid *const grid = new KOVAVSFDataGrid;
    const QPointer<KOVAVSFDataGrid> there{grid}; // as long as no window has deleted it
};

} // namespace

TEST_F(UnsavedInAWindow, KeepsASubWindowOpen)
{
    QMdiArea area;
    QMdiSubWindow *const window = area.addSubWindow(grid);
    window->setAttribute(Qt::WA_DeleteOnClose);
    area.show();
    type();
    expectToStay(*window);
}

TEST_F(UnsavedInAWindow, KeepsADockOpen)
{
    QMainWindow window;
    auto *const dock = new QDockWidget;
    dock->setAttribute(Qt::WA_DeleteOnClose);
    dock->setWidget(grid);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.show();
    type();
    expectToStay(*dock);
}

TEST_F(UnsavedInAWindow, KeepsTheWindowBehindAFloatingDockOpen)
{
    QMainWindow window;
    auto *const dock = new QDockWidget;
    dock->setWidget(grid);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.show();
    dock->setFloating(true);
    type();
    expectToStay(window);
}

TEST_F(UnsavedInAWindow, IsSavedWhenADialogIsFinished)
{
    for (const auto finish : {&QDialog::accept, &QDialog::reject}) {
        database.run(u"UPDATE T SET A = 'a'"_s);
        QDialog dialog;
        auto *const layout = new QVBoxLayout(&dialog);
        layout->addWidget(grid);
        dialog.show();
        type();
        (dialog.*finish)();
        EXPECT_EQ(stored(), u"b"_s);
        EXPECT_TRUE(messages.texts().isEmpty());
        grid->setParent(nullptr);
    }
}

TEST_F(UnsavedInAWindow, IsReportedWhereAFinishedDialogCannotSaveIt)
{
    QDialog dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    layout->addWidget(grid);
    dialog.show();
    type();
    refuse();
    dialog.accept();
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_TRUE(messages.texts().front().startsWith(u"记录没有保存："_s));
    database.run(u"DROP TRIGGER No"_s);
    dialog.show();
    const auto *edit = grid->findChild<QLineEdit *>(u"txtEdit"_s);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), u"b"_s) << "it is not lost";
    dialog.accept();
    EXPECT_EQ(stored(), u"b"_s);
}

TEST_F(UnsavedInAWindow, IsSavedWhenTheProgramEnds)
{
    type();
    grid->hide(); // a visible one would be closed
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    EXPECT_EQ(stored(), u"b"_s);
    EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(UnsavedInAWindow, IsReportedWhereItCannotBeSavedAtTheEnd)
{
    type();
    refuse();
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_TRUE(messages.texts().front().startsWith(u"记录没有保存："_s));
    database.run(u"DROP TRIGGER No"_s);
}
