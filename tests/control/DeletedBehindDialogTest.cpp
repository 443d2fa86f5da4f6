// A host deletes the control while one of its dialogs is open: the dialog is cancelled, and its caller no
// longer accesses the control. The asan preset would detect that.
#include "control/face/KOVAVSFDataGrid.h"
#include "support/TestDatabase.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Way
{
    const char *name;
    const char *dialog; // its class
    std::function<void(KOVAVSFDataGrid &)> open;
};

std::function<void(KOVAVSFDataGrid &)> button(const char *key)
{
    return [key](KOVAVSFDataGrid &grid) {
        auto *bar = grid.findChild<QToolBar *>(u"Toolbar1"_s);
        QTest::mouseClick(bar->widgetForAction(bar->findChild<QAction *>(QLatin1StringView(key))),
                          Qt::LeftButton);
    };
}

// Types into the field ID of the record, in the single-record list.
void typeIntoID(KOVAVSFDataGrid &grid, Qt::Key key)
{
    button("SingleRecord")(grid);
    auto *list = grid.findChild<QTableView *>(u"MSFlexGrid1"_s);
    list->setCurrentIndex(list->model()->index(0, 1));
    QTest::keyClick(list, key);
    QTest::keyClick(grid.findChild<QLineEdit *>(u"txtEdit"_s), Qt::Key_Return);
}

class DeletedBehindDialog : public testing::TestWithParam<Way>
{
protected:
    TestDatabase database{u"CREATE TABLE T(ID INTEGER PRIMARY KEY, 名称 TEXT);"
                          "INSERT INTO T VALUES (1,'茶'),(2,'咖啡');"_s};
};

TEST_P(DeletedBehindDialog, EndsTheDialogAsCancelled)
{
    QPointer<KOVAVSFDataGrid> grid = new KOVAVSFDataGrid;
    grid->resize(900, 500);
    grid->show();
    grid->PutConnectionString(database.connectionString());
    grid->PutSQLShow(u"SELECT * FROM T"_s);
    ASSERT_TRUE(grid->IsLoadData());

    QString seen;
    QTimer host;
    QObject::connect(&host, &QTimer::timeout, &host, [&] {
        const QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        host.stop();
        seen = QString::fromLatin1(dialog->metaObject()->className());
        delete grid;
    });
    host.start(0);
    GetParam().open(*grid);
    host.stop();

    EXPECT_FALSE(grid);
    EXPECT_TRUE(seen.endsWith(QLatin1StringView(GetParam().dialog))) << qUtf8Printable(seen);
    EXPECT_FALSE(QApplication::activeModalWidget());
    delete grid;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, DeletedBehindDialog,
    testing::Values(
        Way{"Sort", "frmSelSortFields", button("Sort")},
        Way{"SelField", "frmSelShowFields", button("SelField")},
        Way{"Filter", "frm_Filter", button("Filter")},
        Way{"QuickFilter", "FindDialog", button("QuickFilter")},
        Way{"FullScreen", "frm_FullScreen", button("FullScreen")},
        Way{"Deletion", "QMessageBox",
            [](KOVAVSFDataGrid &grid) { grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger(); }},
        Way{"WrongCell", "QMessageBox", [](KOVAVSFDataGrid &grid) { grid.CellText(99, 99); }},
        Way{"UnreadableFieldList", "QMessageBox",
            [](KOVAVSFDataGrid &grid) { grid.PutSQLShow(u"SELECT ID"_s); }},
        Way{"RefusedValue", "QMessageBox", [](KOVAVSFDataGrid &grid) { typeIntoID(grid, Qt::Key_X); }},
        Way{"RefusedRecord", "QMessageBox",
            [](KOVAVSFDataGrid &grid) {
                typeIntoID(grid, Qt::Key_2); // which another record has
                button("AllRecord")(grid);
            }},
        Way{"RefusedRecordBeforeAnotherPage", "QMessageBox",
            [](KOVAVSFDataGrid &grid) {
                typeIntoID(grid, Qt::Key_2);
                QTest::mouseClick(grid.findChild<QPushButton *>(u"cmdPgae"_s), Qt::LeftButton);
            }},
        Way{"FailedLoad", "QMessageBox",
            [](KOVAVSFDataGrid &grid) {
                grid.PutSQLShow(u"SELECT * FROM Nothing"_s);
                grid.IsLoadData();
            }},
        Way{"ShowSQLShow", "Dialog_SQLST", [](KOVAVSFDataGrid &grid) { grid.ShowSQLShow(); }},
        Way{"SetSQLShow", "Dialog_SQLST", [](KOVAVSFDataGrid &grid) { grid.SetSQLShow(); }},
        Way{"SetSQLFilter", "Dialog_SQLST", [](KOVAVSFDataGrid &grid) { grid.SetSQLFilter(); }},
        Way{"GetConnection", "ConnectDialog", [](KOVAVSFDataGrid &grid) { grid.GetConnection(); }}),
    [](const auto &way) { return std::string(way.param.name); });

} // namespace
