// The first records of a long result from a server are visible while the rest is being read. If the server
// fails, the previous result is shown again.
#include "FaultFixture.h"

#include "../support/OpeningView.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// MariaDB's driver returns no record before it has read all.
class FirstRecordsOfServer : public FaultFixture
{
protected:
    // Reads an endless result; calls `act` when the user sees the first records and the progress line,
    // repeatedly until it returns true.
    bool loadEndless(const std::function<bool()> &act)
    {
        bool isDone = false;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            isDone = isDone || (opening.view() && hands->grid.findChild<QProgressBar *>() && act());
        });
        user.start(0);
        // A series after FROM would be generated completely before its first record.
        const bool isLoaded = load(u"SELECT id, 'name ' || id AS name FROM "
                                   "(SELECT generate_series(1, 2000000000) AS id) AS endless"_s);
        EXPECT_TRUE(isDone) << "nothing was seen";
        return isLoaded;
    }
    QString cell(int row, int column) const
    {
        return opening.view()->model()->index(row, column).data().toString();
    }
    void cancel() { QTest::keyClick(&hands->grid, Qt::Key_Escape); }
    void expectNothingLeft() const
    {
        EXPECT_EQ(opening.view(), nullptr);
        EXPECT_GT(opening.paintings(), 0);
        expectAsLoaded();
    }

    OpeningView opening;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Servers, FirstRecordsOfServer, testing::Values(faultEngines[0]),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(FirstRecordsOfServer, AreSeenAndScrolledWhileTheRestIsRead)
{
    ASSERT_TRUE(load());
    int rows = 0;
    EXPECT_FALSE(loadEndless([&] {
        if (rows == 0) {
            rows = opening.view()->model()->rowCount();
            EXPECT_GE(rows, 1000);
            EXPECT_EQ(cell(0, 0), u"1"_s);
            EXPECT_EQ(cell(999, 1), u"name 1000"_s);
            QTest::keyClick(&hands->grid, Qt::Key_PageDown);
            QTest::keyClick(&hands->grid, Qt::Key_PageDown);
            EXPECT_GT(opening.view()->verticalScrollBar()->value(), 0);
        }
        if (opening.view()->model()->rowCount() == rows)
            return false;
        const int last = opening.view()->model()->rowCount();
        EXPECT_EQ(cell(last - 1, 1), u"name %1"_s.arg(last));
        cancel();
        return true;
    }));
    EXPECT_TRUE(hands->messages.texts().isEmpty()) << "the user knows what he did";
    expectNothingLeft();
}

TEST_P(FirstRecordsOfServer, AreCountedBesideTheEstimateOfTheServer)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(loadEndless([this] {
        const auto *line = hands->grid.findChild<QProgressBar *>()->parentWidget();
        if (!line->findChild<QLabel *>()->text().endsWith(u" 条记录，预计共约 2,000,000,000 条"_s))
            return false;
        cancel();
        return true;
    }));
    expectNothingLeft();
}

TEST_P(FirstRecordsOfServer, GoAwayWithTheServer)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(loadEndless([this] {
        controlServer("kill", engine.server);
        return true;
    }));
    EXPECT_TRUE(loadError().contains(u"连接已断开"));
    expectNothingLeft();
}

TEST_P(FirstRecordsOfServer, GoAwayWhenTheUserGivesAFrozenServerUp)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(loadEndless([this] {
        controlServer("freeze", engine.server);
        cancel();
        return true;
    }));
    controlServer("thaw", engine.server);
    EXPECT_TRUE(hands->messages.texts().isEmpty()) << "the user knows what he did";
    expectNothingLeft();
}
