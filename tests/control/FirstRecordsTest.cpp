// The first records of a long load are visible and can be scrolled before the last one is read, and disappear
// if the load fails.
#include "GridFixture.h"
#include "support/MessageAnswers.h"
#include "support/OpeningView.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QMetaMethod>
#include <QtCore/QTimer>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FirstRecords : GridFixture
{
    FirstRecords()
        : GridFixture(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name TEXT);"
                      "INSERT INTO T VALUES (1,'a'),(2,'b'),(3,'c')"_s)
    {
        grid.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        EXPECT_TRUE(load(u"select * from T"_s));
        grid.SetGridRow(2);
    }

    // Each record costs some microseconds: on a fast machine the first page would otherwise be full before
    // the test sees it the first time.
    static QString endless(const QString &fields = u"n, 'name ' || n as name"_s)
    {
        return u"with recursive N(n) as (select 1 union all select n + 1 from N "
               "where length(hex(zeroblob(2000 + n % 2))) > 0) select %1 from N"_s.arg(fields);
    }
    // Calls `act` whenever the application's events run, until it returns true; then cancels the load, unless
    // `act` has done that. Fails if it does not return true within a minute.
    bool loadUntil(const std::function<bool()> &act, const QString &statement = endless())
    {
        bool isDone = false;
        const QDeadlineTimer deadline(60'000);
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            if (!grid.findChild<QProgressBar *>() || isDone)
                return;
            EXPECT_FALSE(deadline.hasExpired());
            if (!act() && !deadline.hasExpired())
                return;
            isDone = true;
            press(Qt::Key_Escape);
        });
        user.start(0);
        const bool isLoaded = load(statement);
        EXPECT_TRUE(isDone || isLoaded) << qUtf8Printable(messages.texts().join(u'|'));
        return isLoaded;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&grid, key, modifiers); }
    void turnWheel(int notches) const
    {
        QWidget &cells = *opening.view()->viewport();
        const QPoint middle = cells.rect().center();
        QWheelEvent event(middle, cells.mapToGlobal(middle), {}, QPoint(0, -120 * notches), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&cells, &event);
    }
    int firstRow() const { return opening.view()->verticalScrollBar()->value(); }
    QString cell(int row, int column) const
    {
        return opening.view()->model()->index(row, column).data().toString();
    }
    void expectAsBefore()
    {
        EXPECT_EQ(opening.view(), nullptr);
        EXPECT_EQ(table->model()->rowCount(), 3);
        EXPECT_EQ(table->model()->columnCount(), 2);
        EXPECT_EQ(grid.GetGridRow(), 2);
        EXPECT_EQ(grid.CurrPosition(), 2);
        EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
        EXPECT_TRUE(table->isEnabled());
    }

    MessageAnswers messages;
    OpeningView opening;
};

} // namespace

TEST_F(FirstRecords, ArePaintedOverTheGridBeforeAnyEventRuns)
{
    EXPECT_FALSE(loadUntil([this] {
        EXPECT_GT(opening.paintings(), 0) << "painted only with the events of the application";
        EXPECT_EQ(cell(0, 0), u"1"_s);
        EXPECT_EQ(cell(0, 1), u"name 1"_s);
        EXPECT_GT(opening.view()->model()->rowCount(), table->model()->rowCount());
        EXPECT_EQ(opening.view()->geometry(), table->geometry());
        EXPECT_EQ(opening.view()->parentWidget(), table->parentWidget());
        EXPECT_EQ(table->model()->rowCount(), 3) << "the host's grid is another one";
        return true;
    }));
    expectAsBefore();
}

TEST_F(FirstRecords, ReplaceTheHintOfAnEmptyGrid)
{
    KOVAVSFDataGrid second;
    second.resize(900, 500);
    second.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&second));
    second.PutConnectionString(database.connectionString());
    second.PutSQLShow(endless());
    QTimer::singleShot(0, &second, [&] {
        ASSERT_TRUE(opening.view());
        const QWidget *const cells = opening.view()->viewport();
        EXPECT_TRUE(cells->isAncestorOf(second.childAt(cells->mapTo(&second, cells->rect().center()))) ||
                    cells == second.childAt(cells->mapTo(&second, cells->rect().center())));
        QTest::keyClick(&second, Qt::Key_Escape);
    });
    EXPECT_FALSE(second.IsLoadData());
    EXPECT_GT(opening.paintings(), 0);
    EXPECT_EQ(opening.view(), nullptr);
}

TEST_F(FirstRecords, BecomeMoreAndCanBeScrolled)
{
    int rowsAtFirst = 0;
    EXPECT_FALSE(loadUntil([&] {
        if (!opening.view()) // on a busy machine, the progress is there first
            return false;
        const int rows = opening.view()->model()->rowCount();
        if (rowsAtFirst == 0) {
            rowsAtFirst = rows;
            turnWheel(1);
            EXPECT_GT(firstRow(), 0);
            const int scrolled = firstRow();
            press(Qt::Key_PageDown);
            press(Qt::Key_PageDown);
            EXPECT_GT(firstRow(), scrolled);
            press(Qt::Key_End, Qt::ControlModifier);
            EXPECT_GE(firstRow(), rowsAtFirst - 100);
            press(Qt::Key_Home, Qt::ControlModifier);
            EXPECT_EQ(firstRow(), 0);
            QTest::mouseClick(opening.view()->viewport(), Qt::LeftButton, {}, QPoint(20, 20));
            return false;
        }
        return rows > rowsAtFirst;
    }));
    expectAsBefore();
}

TEST_F(FirstRecords, AreNoResultYetForTheHost)
{
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    const QMetaObject &meta = *grid.metaObject();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        // The test itself writes properties.
        if (meta.method(i).methodType() == QMetaMethod::Signal && meta.method(i).name() != "PropertyChanged")
            spies.push_back(std::make_unique<QSignalSpy>(&grid, meta.method(i)));
    }
    EXPECT_FALSE(loadUntil([&] {
        press(Qt::Key_PageDown);
        turnWheel(3);
        QTest::mouseDClick(opening.view()->viewport(), Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseClick(opening.view()->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
        EXPECT_EQ(grid.GetGridRow(), 2);
        EXPECT_EQ(grid.CurrPosition(), 2);
        EXPECT_EQ(grid.RecordSource(), u"select * from T"_s);
        EXPECT_EQ(field(u"Name"_s)->property("Value").toString(), u"b"_s);
        return true;
    }));
    for (const auto &spy : spies)
        EXPECT_EQ(spy->count(), 0) << spy->signal().constData();
    expectAsBefore();
}

TEST_F(FirstRecords, GoAwayWhenTheStatementFailsMidway)
{
    EXPECT_FALSE(load(endless(u"abs(case n when 60000 then -9223372036854775807 - 1 else n end) as n"_s)));
    EXPECT_GT(opening.paintings(), 0) << "there was something to take away";
    EXPECT_EQ(messages.texts().size(), 2) << qUtf8Printable(messages.texts().join(u'|'));
    expectAsBefore();
}

TEST_F(FirstRecords, StayWhereTheUserHasScrolledThemWhenTheLoadIsDone)
{
    bool isScrolled = false;
    EXPECT_TRUE(loadUntil(
        [&] {
            if (!isScrolled) {
                opening.view()->verticalScrollBar()->setValue(500);
                isScrolled = true;
            }
            return false;
        },
        u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 6000000) select n from N"_s));
    EXPECT_TRUE(isScrolled);
    EXPECT_EQ(opening.view(), nullptr);
    EXPECT_EQ(table->verticalScrollBar()->value(), 500);
    EXPECT_EQ(grid.GetGridRow(), 1) << "the first record is current as after any load";
    EXPECT_EQ(grid.CurrPosition(), 1);
}

TEST_F(FirstRecords, OfTheSameFieldsHaveTheWidthsOfTheGrid)
{
    ASSERT_TRUE(load(u"select ID as n, Name as name from T"_s));
    table->setColumnWidth(0, 222);
    table->horizontalHeader()->moveSection(1, 0);
    EXPECT_FALSE(loadUntil([this] {
        EXPECT_EQ(opening.view()->columnWidth(0), 222);
        EXPECT_EQ(opening.view()->columnWidth(1), table->columnWidth(1));
        EXPECT_EQ(opening.view()->horizontalHeader()->visualIndex(1), 0);
        return true;
    }));
}

TEST_F(FirstRecords, AreNotShownForAShortLoad)
{
    EXPECT_TRUE(load(u"select * from T order by ID desc"_s));
    EXPECT_EQ(opening.paintings(), 0);
}
