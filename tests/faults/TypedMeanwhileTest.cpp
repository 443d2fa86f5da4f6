// What the user types in the first half second of a wait for a server, on the keyboard of an X server: the
// program's events wait until the line shows, but Esc ends the wait at once.
#include "FrozenServer.h"
#include "XInput.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtGui/QShortcut>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <chrono>
#include <functional>
#include <thread>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

class TypedMeanwhile : public FrozenServer
{
protected:
    TypedMeanwhile()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&text);
        layout->addWidget(&button);
        window.move(950, 10); // beside the grid
    }
    void SetUp() override
    {
        if (QGuiApplication::platformName() != u"xcb"_s)
            GTEST_SKIP() << "not on an X server";
        QIcon::hasThemeIcon(u"dialog-cancel"_s); // opens files that stay open
        FrozenServer::SetUp();
        if (IsSkipped())
            return;
        hands->grid.resize(900, 500);
        window.show();
        window.activateWindow();
        text.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(loadKept());
    }
    void TearDown() override
    {
        keyboard.release(XInput::escape);
        FrozenServer::TearDown();
    }

    // Loads while a user types, who begins 50 ms later. Notes whether the host's timers and slots run.
    bool loadAndType(const QString &statement, const std::function<void()> &type)
    {
        bool isLoading = true;
        const auto host = [&] { isHostCalled |= isLoading; };
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, host);
        timer.start(0);
        QMetaObject::invokeMethod(&timer, host, Qt::QueuedConnection);
        std::thread user([&] {
            std::this_thread::sleep_for(50ms);
            type();
        });
        const bool isLoaded = load(statement);
        loaded = Clock::now();
        isLoading = false;
        user.join();
        return isLoaded;
    }
    // As long as a finger does, which the load may not last.
    void pressEscape()
    {
        keyboard.press(XInput::escape);
        escaped = Clock::now();
        std::this_thread::sleep_for(80ms);
        keyboard.release(XInput::escape);
    }
    qint64 untilLoaded() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(loaded - escaped).count();
    }

    const QString shortLoad = u"SELECT 1 AS one FROM pg_sleep(0.2)"_s; // shorter than the line is hidden
    XInput keyboard;
    QWidget window;
    QLineEdit text;
    QPushButton button;
    bool isHostCalled = false;
    Clock::time_point escaped;
    Clock::time_point loaded;
};

INSTANTIATE_TEST_SUITE_P(Servers, TypedMeanwhile, testing::Values(faultEngines[0]),
                         [](const auto &engine) { return std::string(engine.param.name); });

} // namespace

TEST_P(TypedMeanwhile, EscEndsAWaitBeforeItsLineShows)
{
    QShortcut shortcut(Qt::Key_Escape, &window);
    QSignalSpy later(&shortcut, &QShortcut::activated);
    freeze();
    EXPECT_FALSE(loadAndType(u"SELECT * FROM kept ORDER BY id"_s, [this] { pressEscape(); }));
    RecordProperty("milliseconds", static_cast<int>(untilLoaded()));
    // About 0.2 s. The line would show 0.45 s after the key, and the wait end 0.15 s later.
    EXPECT_LT(untilLoaded(), 450);
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    EXPECT_EQ(progressLine(), nullptr);
    expectKept();
    QTest::qWait(50);
    EXPECT_EQ(later.count(), 0) << "the key was for the wait alone";
    thaw();
    EXPECT_TRUE(loadKept());
}

TEST_P(TypedMeanwhile, OtherInputArrivesAfterAShortWait)
{
    const QPoint place = button.mapToGlobal(button.rect().center());
    QStringList happened;
    QObject::connect(&text, &QLineEdit::textEdited, &text, [&](const QString &now) { happened += now; });
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { happened += u"clicked"_s; });
    EXPECT_TRUE(loadAndType(shortLoad, [&] {
        keyboard.type("ab");
        keyboard.click(place);
        keyboard.type("c"); // the button ignores it
    }));
    EXPECT_FALSE(isHostCalled);
    EXPECT_EQ(happened, QStringList());
    EXPECT_TRUE(QTest::qWaitFor([&] { return happened.size() >= 3; }));
    QTest::qWait(50);
    EXPECT_EQ(happened, QStringList({u"a"_s, u"ab"_s, u"clicked"_s}));
    EXPECT_EQ(progressLine(), nullptr);
}

// The key that closed a dialog must not end the load that follows.
TEST_P(TypedMeanwhile, EscThatIsStillDownEndsNoWait)
{
    QShortcut shortcut(Qt::Key_Escape, &window);
    QSignalSpy earlier(&shortcut, &QShortcut::activated);
    keyboard.press(XInput::escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return earlier.count() == 1; }));
    EXPECT_TRUE(loadAndType(shortLoad, [] {}));
    EXPECT_FALSE(isHostCalled);
}

TEST_P(TypedMeanwhile, EscForAnotherProgramEndsNoWait)
{
    window.hide();
    hands->grid.hide();
    ASSERT_TRUE(QTest::qWaitFor([] { return !QGuiApplication::focusWindow(); }));
    EXPECT_TRUE(loadAndType(shortLoad, [this] { pressEscape(); }));
    EXPECT_FALSE(isHostCalled);
}
