// A long load: its progress line, cancelling, and
// what the rest of the application may do meanwhile.
#include "GridFixture.h"
#include "support/MessageAnswers.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QShortcut>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct LoadProgressTest : GridFixture
{
    LoadProgressTest()
        : GridFixture(u"CREATE TABLE T (ID INTEGER PRIMARY KEY); INSERT INTO T VALUES (1),(2),(3)"_s)
    {
        EXPECT_TRUE(load(u"select * from T"_s));
        grid.SetGridRow(2);
    }

    // Loads more records than there is time for. `act` runs as soon as the application's events do, and then
    // the load is cancelled if `act` hasn't done so.
    bool loadForever(const std::function<void()> &act)
    {
        QTimer::singleShot(0, &grid, [this, act] {
            EXPECT_TRUE(line()) << "no events run before the line shows";
            act();
            if (line())
                pressEscape();
        });
        return load(endlessStatement());
    }
    // Loads a table that has no end until its line says so much, and returns what it has said. For SQLite,
    // the table has `estimated` records.
    QStringList loadUntil(qint64 estimated,
                          const std::function<bool(qint64 read, const QString &text)> &isEnough)
    {
        database.run(u"CREATE VIEW Endless AS "_s + endlessStatement());
        database.run(u"ANALYZE; INSERT INTO sqlite_stat1 VALUES ('Endless', NULL, '%1')"_s.arg(estimated));
        QStringList said;
        const QDeadlineTimer due(60'000);
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            const auto *bar = grid.findChild<QProgressBar *>();
            if (!bar)
                return;
            said.append(bar->parentWidget()->findChild<QLabel *>()->text());
            if (due.hasExpired() || isEnough(bar->value(), said.constLast()))
                pressEscape();
        });
        user.start(0);
        EXPECT_FALSE(load(u"select * from Endless"_s));
        EXPECT_FALSE(due.hasExpired());
        return said;
    }
    static QString endlessStatement()
    {
        return u"with recursive N(n) as (select 1 union all select n + 1 from N) select n from N"_s;
    }
    bool line() const { return grid.findChild<QProgressBar *>() != nullptr; }
    QPushButton *cancelButton() const
    {
        for (QPushButton *button : grid.findChildren<QPushButton *>()) {
            if (button->text() == u"取消")
                return button;
        }
        return nullptr;
    }
    void pressEscape() { QTest::keyClick(&grid, Qt::Key_Escape); }
    void expectCancelled()
    {
        EXPECT_EQ(messages.texts(), QStringList());
        EXPECT_EQ(QToolTip::text(), u"已取消读取，仍显示原来的记录"_s);
        EXPECT_FALSE(line());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }

    MessageAnswers messages;
};

} // namespace

TEST_F(LoadProgressTest, TheLineShowsHowManyRecordsHaveBeenRead)
{
    int value = 0;
    QString text;
    QRect place;
    bool hasWaitCursor = true;
    EXPECT_FALSE(loadForever([&] {
        const auto *bar = grid.findChild<QProgressBar *>();
        value = bar->value();
        text = bar->parentWidget()->findChild<QLabel *>()->text();
        place = QRect(bar->parentWidget()->mapTo(&grid, QPoint()), bar->parentWidget()->size());
        hasWaitCursor = QApplication::overrideCursor() != nullptr;
        EXPECT_TRUE(bar->isVisible());
        EXPECT_TRUE(cancelButton()->isVisible());
    }));
    EXPECT_GT(value, 1000);
    EXPECT_EQ(text, u"已读取 %1 条记录"_s.arg(QLocale(QLocale::English).toString(value)));
    EXPECT_EQ(place.width(), grid.width());
    EXPECT_EQ(place.bottom(), grid.rect().bottom());
    EXPECT_LT(place.height(), 60) << "a slim line";
    EXPECT_FALSE(hasWaitCursor) << "the pointer shall invite to press the button";
}

TEST_F(LoadProgressTest, TheLineTellsAboutHowManyRecordsThereWillBe)
{
    const QStringList said =
        loadUntil(2'987'654'321, [](qint64, const QString &text) { return text.contains(u"预计"_s); });
    static const QRegularExpression expected(u"^已读取 [\\d,]+ 条记录，预计共约 3,000,000,000 条$"_s);
    EXPECT_TRUE(expected.match(said.value(said.size() - 1)).hasMatch()) << qUtf8Printable(said.join(u'|'));
    expectCancelled();
}

TEST_F(LoadProgressTest, TheBarShowsWhichPartOfThemIsRead)
{
    int percent = -1;
    const QStringList said = loadUntil(4'000'000, [&](qint64, const QString &text) {
        const auto *bar = grid.findChild<QProgressBar *>();
        if (!text.contains(u"预计"_s) || bar->maximum() == 0)
            return false;
        percent = 100 * bar->value() / bar->maximum();
        return true;
    });
    static const QRegularExpression count(u"^已读取 ([\\d,]+) 条"_s);
    const QString read = count.match(said.value(said.size() - 1)).captured(1).remove(u',');
    EXPECT_EQ(percent, read.toInt() / 40'000) << qPrintable(read);
}

TEST_F(LoadProgressTest, TheLineKeepsSilentAboutAMillionRecords)
{
    const QStringList said =
        loadUntil(1'000'000, [](qint64 read, const QString &) { return read > 500'000; });
    EXPECT_EQ(said.filter(u"预计"_s), QStringList());
}

TEST_F(LoadProgressTest, AnEstimateThatIsExceededGoesAway)
{
    const QStringList said =
        loadUntil(1'100'000, [](qint64 read, const QString &) { return read > 1'200'000; });
    EXPECT_FALSE(said.value(said.size() - 1).contains(u"预计"_s)) << qUtf8Printable(said.join(u'|'));
}

TEST_F(LoadProgressTest, InANarrowLineTheNumberTakesTheBarsPlace)
{
    grid.resize(grid.minimumSize());
    EXPECT_FALSE(loadForever([&] {
        const auto *bar = grid.findChild<QProgressBar *>();
        const auto *number = bar->parentWidget()->findChild<QLabel *>();
        EXPECT_GT(number->width(), 3 * bar->width());
        EXPECT_GE(cancelButton()->width(), cancelButton()->fontMetrics().horizontalAdvance(u"取消"_s));
    }));
}

TEST_F(LoadProgressTest, InANarrowLineTheButtonStaysBesideAnEstimate)
{
    grid.resize(grid.minimumSize());
    loadUntil(2'987'654'321, [&](qint64, const QString &text) {
        if (!text.contains(u"预计"_s))
            return false;
        EXPECT_GE(cancelButton()->width(), cancelButton()->fontMetrics().horizontalAdvance(u"取消"_s));
        EXPECT_LE(cancelButton()->geometry().right(), grid.width());
        return true;
    });
}

TEST_F(LoadProgressTest, TheButtonCancelsAndEverythingStays)
{
    EXPECT_FALSE(loadForever([this] { QTest::mouseClick(cancelButton(), Qt::LeftButton); }));
    expectCancelled();
    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_EQ(grid.GetGridRow(), 2);
    EXPECT_EQ(grid.CurrPosition(), 2);
    EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
    EXPECT_TRUE(grid.LocateSelRecord(3));
    EXPECT_EQ(grid.CurrPosition(), 3);
}

TEST_F(LoadProgressTest, EscapeCancelsWhereverTheFocusIs)
{
    QLineEdit elsewhere(u"text"_s);
    elsewhere.show();
    EXPECT_FALSE(loadForever([&] { QTest::keyClick(&elsewhere, Qt::Key_Escape); }));
    expectCancelled();
}

TEST_F(LoadProgressTest, EscapeCancelsAlsoWhereItIsAShortcut)
{
    QLineEdit elsewhere;
    QShortcut shortcut(Qt::Key_Escape, &elsewhere);
    QSignalSpy activations(&shortcut, &QShortcut::activated);
    elsewhere.show();
    elsewhere.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&elsewhere));
    bool isIgnored = false;
    QTimer::singleShot(0, &grid, [&] { QTest::keyClick(&elsewhere, Qt::Key_Escape); });
    QTimer::singleShot(3000, &grid, [&] {
        isIgnored = line();
        shortcut.setEnabled(false);
        pressEscape();
    });
    EXPECT_FALSE(load(endlessStatement()));
    EXPECT_FALSE(isIgnored);
    EXPECT_EQ(activations.count(), 0);
    expectCancelled();
}

TEST_F(LoadProgressTest, CancellingEndsTheOpenAtOnce)
{
    QElapsedTimer sinceCancel;
    EXPECT_FALSE(loadForever([&] {
        sinceCancel.start();
        pressEscape();
    }));
    // With both messages answered. The limit of a second allows for a busy machine.
    const auto milliseconds = static_cast<int>(sinceCancel.elapsed());
    RecordProperty("milliseconds", milliseconds);
    EXPECT_LT(milliseconds, 1000);
}

TEST_F(LoadProgressTest, NothingElseTakesInput)
{
    QLineEdit text;
    QPushButton button;
    text.show();
    button.show();
    QSignalSpy clicks(&button, &QPushButton::clicked);
    EXPECT_FALSE(loadForever([&] {
        QTest::keyClicks(&text, u"abc"_s);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
        QTest::mouseClick(part<QPushButton>("cmdPgae"), Qt::LeftButton);
        click(3, 1);
    }));
    EXPECT_EQ(text.text(), QString());
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(grid.GetGridRow(), 2);
    expectCancelled();

    QTest::keyClicks(&text, u"abc"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(text.text(), u"abc"_s);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(LoadProgressTest, ASecondLoadReturnsFalseAtOnce)
{
    KOVAVSFDataGrid second;
    second.PutConnectionString(database.connectionString());
    second.PutSQLShow(u"select ID from T"_s);
    bool isLoaded = true;
    bool isLoadedAgain = true;
    QStringList told;
    EXPECT_FALSE(loadForever([&] {
        isLoaded = second.IsLoadData();
        isLoadedAgain = grid.IsLoadData();
        told = messages.texts();
    }));
    EXPECT_FALSE(isLoaded);
    EXPECT_FALSE(isLoadedAgain);
    EXPECT_EQ(told, QStringList());
    EXPECT_TRUE(second.IsLoadData());
}

TEST_F(LoadProgressTest, ADialogThatOpensMeanwhileCanBeAnswered)
{
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
    EXPECT_FALSE(loadForever([&] { answer = QMessageBox::question(nullptr, u"title"_s, u"meanwhile"_s); }));
    EXPECT_EQ(answer, QMessageBox::No) << "the one that answers clicks a real button";
    EXPECT_EQ(messages.texts(), QStringList(u"meanwhile"_s));
}

TEST_F(LoadProgressTest, AShortLoadShowsNoLine)
{
    bool isSeen = false;
    QTimer::singleShot(0, &grid, [&] { isSeen = true; });
    EXPECT_TRUE(load(u"select * from T order by ID desc"_s));
    EXPECT_FALSE(isSeen) << "no events run during it";
    EXPECT_FALSE(line());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(LoadProgressTest, TheUserCantCloseTheWindow)
{
    EXPECT_FALSE(loadForever([this] { grid.window()->windowHandle()->close(); }));
    EXPECT_TRUE(grid.isVisible());
    expectCancelled();
    grid.window()->windowHandle()->close();
    EXPECT_FALSE(grid.isVisible()) << "afterwards it closes as ever";
}

TEST_F(LoadProgressTest, DeletingTheControlEndsTheLoadSilently)
{
    for (const bool isWithItsWindow : {false, true}) {
        auto *form = new QWidget;
        auto *second = new KOVAVSFDataGrid(form);
        second->PutConnectionString(database.connectionString());
        second->PutSQLShow(endlessStatement());
        form->show();
        QTimer::singleShot(0, form, [=] { delete (isWithItsWindow ? form : second); });
        EXPECT_FALSE(second->IsLoadData());
        EXPECT_EQ(messages.texts(), QStringList());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        if (!isWithItsWindow)
            delete form;
    }
    EXPECT_TRUE(load(u"select A from (select 1 as A)"_s)) << "another control can load again";
}

TEST_F(LoadProgressTest, ALongLoadThatIsNotCancelledSucceeds)
{
    bool isSeen = false;
    QTimer::singleShot(0, &grid, [&] { isSeen = line(); });
    // Long enough for the line on the fastest of machines, and the aggregate keeps it small.
    EXPECT_TRUE(load(u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 6000000) "
                     "select max(n) as M from N"_s));
    EXPECT_TRUE(isSeen);
    EXPECT_EQ(grid.CellTextL(1, 1), u"6000000"_s);
    EXPECT_FALSE(line());
    EXPECT_EQ(messages.texts(), QStringList());
}
