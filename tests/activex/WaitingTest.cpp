#include "Scene.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

using namespace Late;
using namespace std::chrono_literals;

namespace {

// The user's key, as long as a finger does it.
void pressEscape()
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = VK_ESCAPE;
    SendInput(1, &input, sizeof input);
    std::this_thread::sleep_for(80ms);
    input.ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

} // namespace

// The line that a load shows, and with it all events, begin after half a second.
TEST(Waiting, EscEndsALoadBeforeItsLineShows)
{
    using Clock = std::chrono::steady_clock;
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    put(container.control(), L"SQLShow",
        L"with recursive n(i) as (select 1 union all select i + 1 from n) select i from n");
    Clock::time_point pressed;
    std::thread user([&] {
        std::this_thread::sleep_for(50ms);
        pressed = Clock::now();
        pressEscape();
    });
    EXPECT_FALSE(call(container.control(), L"IsLoadData").value.isTrue());
    const Clock::duration wait = Clock::now() - pressed;
    user.join();
    EXPECT_LT(wait, 400ms);
    RecordProperty("milliseconds",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(wait).count()));
    container.run();
    EXPECT_GT(get(container.control(), L"GetGridRowL").number(), 0) << "as it was shown before";
}
