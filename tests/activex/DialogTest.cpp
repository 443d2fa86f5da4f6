#include "Scene.h"

#include <functional>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <oleidl.h>

using namespace Late;

namespace {

// What is in front of the user while a dialog waits.
struct Seen
{
    bool wasOpen = false;
    HWND dialog = nullptr;
    HWND owner = nullptr;
};

bool overlap(HWND one, HWND other)
{
    RECT first{};
    RECT second{};
    RECT both{};
    GetWindowRect(one, &first);
    GetWindowRect(other, &second);
    return IntersectRect(&both, &first, &second);
}

} // namespace

TEST(DialogTest, TheHostsWindowOwnsADialogAndStaysBehindIt)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    Seen seen;
    bool isBehind = false;
    Container::whenDialogIsOpen([&] {
        seen.wasOpen = true;
        seen.dialog = GetForegroundWindow();
        seen.owner = GetWindow(seen.dialog, GW_OWNER);
        BringWindowToTop(container.window());
        for (HWND next = seen.dialog; next; next = GetWindow(next, GW_HWNDNEXT))
            isBehind = isBehind || next == container.window();
        SetForegroundWindow(seen.dialog); // as a click does; the form had become the active window
        Container::press(VK_ESCAPE);
    });
    container.key('L', {VK_CONTROL});
    container.run([&] { return seen.wasOpen && IsWindowEnabled(container.window()); });
    ASSERT_TRUE(seen.wasOpen);
    EXPECT_NE(seen.dialog, container.window());
    EXPECT_EQ(seen.owner, container.window());
    EXPECT_TRUE(isBehind);
    EXPECT_EQ(GetForegroundWindow(), container.window());
}

TEST(DialogTest, ABoxOfALoadBeforeAnyMessageIsOverTheForm)
{
    Container container(400, 300);
    SetWindowPos(container.window(), nullptr, 600, 420, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    put(container.control(), L"ErrorHint", true);
    put(container.control(), L"ConnectionString", L"Provider=SQLite;Data Source=Z:\\nowhere.db");
    put(container.control(), L"SQLShow", L"select id from people");
    int boxes = 0;
    const std::function<void()> lookAndCancel = [&] {
        ++boxes;
        const HWND box = GetForegroundWindow();
        EXPECT_EQ(GetWindow(box, GW_OWNER), container.window());
        EXPECT_TRUE(overlap(box, container.window()));
        Container::whenDialogIsOpen(lookAndCancel); // there is one more, with the load's outcome
        Container::press(VK_ESCAPE);
    };
    Container::whenDialogIsOpen(lookAndCancel);
    EXPECT_FALSE(get(container.control(), L"IsLoadData").isTrue());
    EXPECT_GE(boxes, 2);
}

TEST(DialogTest, TheEndOfTheProcessReachesTheHostThroughADialog)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    bool wasOpen = false;
    Container::whenDialogIsOpen([&] {
        wasOpen = true;
        PostQuitMessage(7);
    });
    container.key('L', {VK_CONTROL});
    int exitCode = 0;
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    exitCode = static_cast<int>(message.wParam);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(exitCode, 7);
    EXPECT_TRUE(IsWindowEnabled(container.window()));
}

TEST(DialogTest, ClosingTheControlEndsItsDialog)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    HWND dialog = nullptr;
    Container::whenDialogIsOpen([&] {
        dialog = GetForegroundWindow();
        container.as<IOleObject>()->Close(OLECLOSE_NOSAVE);
    });
    container.key('L', {VK_CONTROL});
    container.run([&] { return dialog && !IsWindowVisible(dialog); });
    ASSERT_NE(dialog, nullptr);
    EXPECT_NE(dialog, container.window());
    EXPECT_FALSE(IsWindowVisible(dialog));
    EXPECT_TRUE(IsWindowEnabled(container.window()));
}
