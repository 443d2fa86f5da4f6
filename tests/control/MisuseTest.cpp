// LocateSelRecord, the row and column accessors, and the messages for their misuse.
#include <KOVAVSFDataGrid>

#include "ado/Error.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <gtest/gtest.h>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Misuse : testing::Test
{
    Misuse()
    {
        grid.resize(600, 300);
        grid.show();
        grid.PutConnectionString(database.connectionString());
        grid.PutDBType(KOVAVSFDataGrid::dbAccess);
        grid.PutSQLShow(u"select * from T"_s);
        EXPECT_TRUE(grid.IsLoadData());
    }

    void expectOne(const QString &text, const QString &title)
    {
        ASSERT_EQ(messages.shown().size(), 1u);
        EXPECT_EQ(messages.shown().front().text, text);
        EXPECT_EQ(messages.shown().front().title, title);
        EXPECT_EQ(messages.shown().front().buttons, QMessageBox::Ok);
        EXPECT_EQ(messages.shown().front().icon, QMessageBox::NoIcon);
    }

    TestDatabase database{
        u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name TEXT);"
        "WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 200) INSERT INTO T SELECT n, 'n' || n FROM N;"_s};
    KOVAVSFDataGrid grid;
    MessageAnswers messages;
};

// Runs `act` on the next dialog that shows and lets it end.
void onNextDialog(const std::function<void(QDialog &)> &act)
{
    QMetaObject::invokeMethod(
        qApp,
        [act] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        },
        Qt::QueuedConnection);
}

void clickIn(QDialog &dialog, const QString &name)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
}

} // namespace

TEST_F(Misuse, AWrongColumnIsReported)
{
    grid.SetGridCol(3);
    expectOne(u"Wrong Col Number!"_s, u"Set Grid Col"_s);
    EXPECT_EQ(grid.GetGridCol(), 1);
}

TEST_F(Misuse, AWrongRowIsReported)
{
    grid.SetGridRow(-1);
    expectOne(u"Wrong Row Number!"_s, u"Set Grid Row"_s);
    EXPECT_EQ(grid.GetGridRow(), 1);
}

TEST_F(Misuse, AWrongCellIsReportedAndGivesTheEmptyText)
{
    EXPECT_EQ(grid.CellText(201, 1), QString());
    expectOne(u"The value of row or col is out of range!"_s, u"Get CellText"_s);
}

TEST_F(Misuse, AWrongCellByLongIndexIsReportedUnderItsOwnTitle)
{
    EXPECT_EQ(grid.CellTextL(1, 100000), QString());
    expectOne(u"The value of row or col is out of range!"_s, u"Get CellTextL"_s);
}

TEST_F(Misuse, RowsAndColumnsPassToTheGrid)
{
    grid.SetGridRow(150);
    grid.SetGridCol(2);
    EXPECT_EQ(grid.GetGridRow(), 150);
    EXPECT_EQ(grid.GetGridRowL(), 150);
    EXPECT_EQ(grid.GetGridCol(), 2);
    grid.SetGridRow(0);
    EXPECT_EQ(grid.GetGridRow(), 0);
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(Misuse, LocatingARowMovesGridAndRecordAndIsReported)
{
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    EXPECT_TRUE(grid.LocateSelRecord(120));
    EXPECT_EQ(grid.GetGridRow(), 120);
    EXPECT_EQ(grid.GetGridCol(), 1);
    EXPECT_EQ(grid.CurrPosition(), 120);
    auto *table = grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
    EXPECT_EQ(table->rowAt(0), 119) << "scrolled to the top";
    ASSERT_EQ(moves.count(), 1);
    EXPECT_EQ(moves.at(0), QList<QVariant>({3, 119}));

    EXPECT_TRUE(grid.LocateSelRecord(122));
    EXPECT_EQ(table->rowAt(0), 119) << "already in view";
    EXPECT_EQ(moves.count(), 2);
}

TEST_F(Misuse, LocatingWhatIsCurrentOrTheHeadingMovesNothing)
{
    EXPECT_TRUE(grid.LocateSelRecord(7));
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    EXPECT_TRUE(grid.LocateSelRecord(7));
    EXPECT_TRUE(grid.LocateSelRecord(1));
    EXPECT_TRUE(grid.LocateSelRecord(201)) << "as many as Rows";
    EXPECT_EQ(grid.GetGridRow(), 7);
    EXPECT_EQ(grid.CurrPosition(), 7);
    EXPECT_EQ(moves.count(), 0);
}

TEST_F(Misuse, LocatingOutsideIsRefused)
{
    EXPECT_FALSE(grid.LocateSelRecord(0));
    EXPECT_FALSE(grid.LocateSelRecord(-5));
    EXPECT_FALSE(grid.LocateSelRecord(202)) << "one more than Rows";
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(Misuse, LocatingNeverThrowsWhateverTheHostDidToTheRecordset)
{
    QObject *recordset = grid.RecordSet();
    ASSERT_NE(recordset, nullptr);
    while (!recordset->property("EOF").toBool())
        QMetaObject::invokeMethod(recordset, "MoveNext");
    QTest::mouseClick(grid.findChild<QPushButton *>(u"cmdPgae"_s), Qt::LeftButton);
    EXPECT_NO_THROW(grid.LocateSelRecord(2));
    EXPECT_EQ(grid.CurrPosition(), 2);
    EXPECT_EQ(grid.GetGridRow(), 2);
}

TEST_F(Misuse, BindFieldIndexLooksForTheExactHeading)
{
    EXPECT_EQ(grid.GetBindFieldIndex(u"ID"_s), 1);
    EXPECT_EQ(grid.GetBindFieldIndex(u"Name"_s), 2);
    EXPECT_EQ(grid.GetBindFieldIndex(u"name"_s), -1);
    EXPECT_EQ(grid.GetBindFieldIndex({}), -1);
}

TEST_F(Misuse, RefreshIsSilentUnlessHintsAreWanted)
{
    KOVAVSFDataGrid blank;
    blank.Refresh();
    EXPECT_TRUE(messages.shown().empty());
    blank.PutErrorHint(true);
    blank.Refresh();
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown().front().text,
              u"Please Check YOUR CONNECTIONSTRING & RECORDSOURCE,THEIR DON'T BE ALLOWED EMPTY. "_s);
    EXPECT_EQ(messages.shown().front().title, u"LINK DATA SOURCE ERROR"_s);
    EXPECT_EQ(messages.shown().front().icon, QMessageBox::Critical);
    EXPECT_EQ(messages.shown().front().buttons, QMessageBox::Ok);
}

TEST_F(Misuse, RefreshAfterALoadHasNothingToSayAndLoadsNothing)
{
    grid.PutErrorHint(true);
    database.run(u"DELETE FROM T WHERE ID > 1"_s);
    grid.Refresh();
    EXPECT_TRUE(messages.shown().empty());
    EXPECT_EQ(grid.CellTextL(200, 1), u"200"_s);
}

TEST_F(Misuse, TextsAreShownReadOnly)
{
    const QString statement = u"select * from T"_s;
    onNextDialog([&](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), u"Dialog_SQLST"_s);
        auto *text = dialog.findChild<QLineEdit *>(u"Text_SQL"_s);
        EXPECT_EQ(text->text(), statement);
        EXPECT_TRUE(text->isReadOnly());
        auto *allow = dialog.findChild<QCheckBox *>(u"Check_AllowEd"_s);
        EXPECT_FALSE(allow->isEnabled());
        EXPECT_FALSE(allow->isChecked());
        clickIn(dialog, u"OKButton"_s);
    });
    grid.ShowSQLShow();
    EXPECT_EQ(grid.SQLShow(), statement);
}

TEST_F(Misuse, SQLShowIsEditedOnceEditingIsAllowed)
{
    onNextDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLabel *>(u"Label_what"_s)->text(), u"SQLShow:"_s);
        auto *text = dialog.findChild<QLineEdit *>(u"Text_SQL"_s);
        QTest::keyClicks(text, u"ignored"_s);
        EXPECT_EQ(text->text(), u"select * from T"_s) << "not yet allowed";
        QTest::mouseClick(dialog.findChild<QCheckBox *>(u"Check_AllowEd"_s), Qt::LeftButton, {},
                          QPoint(5, 8));
        text->selectAll();
        QTest::keyClicks(text, u"select Name from T"_s);
        clickIn(dialog, u"OKButton"_s);
    });
    grid.SetSQLShow();
    EXPECT_EQ(grid.SQLShow(), u"select Name from T"_s);
    EXPECT_EQ(grid.SQLPartDisplay(), u"select Name from T"_s);
}

// A host's handler that throws represents any error inside a method.
struct FailingStep : Misuse, testing::WithParamInterface<QMessageBox::StandardButton>
{
};

INSTANTIATE_TEST_SUITE_P(Answers, FailingStep, testing::Values(QMessageBox::Yes, QMessageBox::No));

TEST_P(FailingStep, ShowsItsErrorNumberAndAsksWhetherToContinue)
{
    QObject::connect(&grid, &KOVAVSFDataGrid::PropertyChanged, &grid,
                     [] { throw ADODB::Error(ADODB::adErrNoCurrentRecord, u"no record"_s); });
    MessageAnswers answers({GetParam()});
    onNextDialog([](QDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QCheckBox *>(u"Check_AllowEd"_s), Qt::LeftButton, {},
                          QPoint(5, 8));
        clickIn(dialog, u"OKButton"_s);
    });
    EXPECT_NO_THROW(grid.SetSQLFilter());
    ASSERT_EQ(answers.shown().size(), 1u);
    const ShownMessage &message = answers.shown().front();
    EXPECT_EQ(message.text, QString::number(ADODB::Error::hresult(ADODB::adErrNoCurrentRecord)) +
                                u"\rno recordContinue?"_s);
    EXPECT_EQ(message.title, u"Set SQL Filter"_s);
    EXPECT_EQ(message.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(message.icon, QMessageBox::Critical);
    grid.disconnect();
}

TEST_F(Misuse, ACancelledEditChangesNothing)
{
    grid.PutSQLFilter(u"before"_s);
    onNextDialog([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLabel *>(u"Label_what"_s)->text(), u"SQLFilter:"_s);
        QTest::mouseClick(dialog.findChild<QCheckBox *>(u"Check_AllowEd"_s), Qt::LeftButton, {},
                          QPoint(5, 8));
        QTest::keyClicks(dialog.findChild<QLineEdit *>(u"Text_SQL"_s), u"after"_s);
        clickIn(dialog, u"CancelButton"_s);
    });
    grid.SetSQLFilter();
    EXPECT_EQ(grid.SQLFilter(), u"before"_s);
}
