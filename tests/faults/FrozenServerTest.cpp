// A server that is there and answers nothing: its process is stopped, its connections stand.
#include "FaultFixture.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QProgressBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FrozenServer : public FaultFixture
{
protected:
    void TearDown() override
    {
        if (!IsSkipped())
            controlServer("thaw", engine.server);
        FaultFixture::TearDown();
    }
    // Loads from the frozen server; the user presses Esc as soon as there is something to cancel.
    void loadAndCancel()
    {
        QElapsedTimer sinceEscape;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            if (sinceEscape.isValid() || !hands->grid.findChild<QProgressBar *>())
                return;
            sinceEscape.start();
            QTest::keyClick(&hands->grid, Qt::Key_Escape);
        });
        user.start(10);
        EXPECT_FALSE(load());
        ASSERT_TRUE(sinceEscape.isValid()) << "nothing could be cancelled";
        RecordProperty("milliseconds", static_cast<int>(sinceEscape.elapsed()));
        EXPECT_LT(sinceEscape.elapsed(), 3000) << "the rest is for a machine that is busy with other things";
        EXPECT_EQ(loadError(), QString()) << "the user knows what he did";
    }
};

} // namespace

KOVA_ON_FAULT_ENGINES(FrozenServer);

TEST_P(FrozenServer, LetsTheUserCancelALoadInItsSession)
{
    ASSERT_TRUE(load());
    controlServer("freeze", engine.server);
    loadAndCancel();
    expectAsLoaded();
    controlServer("thaw", engine.server);
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_P(FrozenServer, LetsTheUserCancelWhileItConnects)
{
    controlServer("freeze", engine.server);
    loadAndCancel();
    controlServer("thaw", engine.server);
    EXPECT_TRUE(load());
    expectAsLoaded();
}
