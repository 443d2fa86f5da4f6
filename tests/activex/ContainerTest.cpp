#include "Scene.h"

#include <array>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <oleidl.h>

using namespace Late;

namespace {

class ViewSink final : public IAdviseSink
{
public:
    int changes = 0;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = this;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP_(void) OnDataChange(FORMATETC *, STGMEDIUM *) override {}
    STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { ++changes; }
    STDMETHODIMP_(void) OnRename(IMoniker *) override {}
    STDMETHODIMP_(void) OnSave() override {}
    STDMETHODIMP_(void) OnClose() override {}
};

BOOL CALLBACK countWindow(HWND, LPARAM counter)
{
    ++*reinterpret_cast<int *>(counter);
    return TRUE;
}

int windowsOfThisThread()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

// Whether the control handles a key that the container offers it.
bool takes(Container &container, WPARAM virtualKey)
{
    MSG message{container.controlWindow(), WM_KEYDOWN, virtualKey, 1, 0, {}};
    const HRESULT outcome = container.as<IOleInPlaceActiveObject>()->TranslateAccelerator(&message);
    container.run();
    return outcome == S_OK;
}

TEST(ContainerTest, ShowsTheControlInItsWindow)
{
    Container container(800, 500);
    const HWND window = container.controlWindow();
    ASSERT_TRUE(IsWindow(window));
    EXPECT_EQ(GetAncestor(window, GA_PARENT), container.window());
    RECT inside{};
    GetClientRect(window, &inside);
    EXPECT_EQ(inside.right, 800);
    EXPECT_EQ(inside.bottom, 500);
    load(container);
    picture(container, L"loaded");

    const RECT smaller{10, 20, 610, 420};
    ASSERT_EQ(container.as<IOleInPlaceObject>()->SetObjectRects(&smaller, &smaller), S_OK);
    container.run();
    RECT placed{};
    GetWindowRect(window, &placed);
    MapWindowPoints(nullptr, container.window(), reinterpret_cast<POINT *>(&placed), 2);
    EXPECT_TRUE(EqualRect(&placed, &smaller));
    picture(container, L"moved");
}

TEST(ContainerTest, HandsKeysToTheGrid)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    const long before = get(container.control(), L"GetGridRowL").number();
    container.forget();
    container.key(VK_DOWN);
    ASSERT_EQ(container.countOf(8), 1);
    EXPECT_EQ(container.events().front().numbers[0], VK_DOWN);
    EXPECT_EQ(get(container.control(), L"GetGridRowL").number(), before + 1);
}

TEST(ContainerTest, ADialogOfTheControlKeepsTheContainerFromTheUser)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    container.forget();
    bool wasOpen = false;
    Container::whenDialogIsOpen([&] {
        wasOpen = true;
        EXPECT_FALSE(IsWindowEnabled(container.window()));
        EXPECT_FALSE(container.isModeless());
        picture(container, L"dialog");
        for (const WORD key : std::array<WORD, 3>{VK_HOME, VK_SPACE, VK_RETURN}) // another choice, accepted
            Container::press(key);
    });
    container.key('L', {VK_CONTROL});
    container.run([&] { return wasOpen && IsWindowEnabled(container.window()); });
    EXPECT_TRUE(wasOpen);
    EXPECT_TRUE(IsWindowEnabled(container.window()));
    EXPECT_TRUE(container.isModeless());
    EXPECT_EQ(container.countOf(10), 1); // ShowFieldsChange
    EXPECT_EQ(GetForegroundWindow(), container.window());
    picture(container, L"fields-chosen");
}

TEST(ContainerTest, ToolbarCommandsWorkInPlace)
{
    Container container(800, 500);
    load(container);
    container.click(singleRecordX, toolbarY);
    picture(container, L"single-record");
    container.forget();
    container.doubleClick(rowX, rowY); // now in the list of one record's fields
    EXPECT_EQ(container.countOf(7), 1);
    EXPECT_EQ(container.countOf(1), 0);
}

TEST(ContainerTest, InDesignModeUseModelCanBeWritten)
{
    Container container(400, 300, false);
    EXPECT_EQ(put(container.control(), L"UseModel", 1).outcome, S_OK);
    EXPECT_EQ(get(container.control(), L"UseModel").number(), 1);
    container.setUserMode(true);
    EXPECT_EQ(put(container.control(), L"UseModel", 0).outcome, DISP_E_EXCEPTION);
}

TEST(ContainerTest, DrawsItselfWithoutAWindow)
{
    Container container(400, 300);
    container.doVerb(OLEIVERB_HIDE);
    SIZEL extent{};
    ASSERT_EQ(container.as<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
    EXPECT_GT(extent.cx, 0);
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 400, 300);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    PatBlt(memory, 0, 0, 400, 300, BLACKNESS);
    const RECTL bounds{0, 0, 400, 300};
    EXPECT_EQ(container.as<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, memory,
                                                 &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_NE(GetPixel(memory, 200, 150), RGB(0, 0, 0));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

TEST(ContainerTest, LeavesNothingBehind)
{
    Container container(400, 300);
    load(container);
    container.click(rowX, rowY);
    EXPECT_TRUE(container.release());
    // What is left is the container's own reference to itself.
    EXPECT_EQ(container.references(), 1u);
}

TEST(ContainerTest, TwoControlsLiveBesideEachOther)
{
    Container first(400, 300);
    Container second(400, 300);
    put(first.control(), L"STR_SQLTEMP", L"one");
    put(second.control(), L"STR_SQLTEMP", L"two");
    EXPECT_EQ(get(first.control(), L"STR_SQLTEMP").text(), L"one");
    EXPECT_TRUE(second.release());
    EXPECT_EQ(get(first.control(), L"STR_SQLTEMP").text(), L"one");
}

TEST(ContainerTest, TakesTheKeysOfTheGridFromTheContainersDialogKeys)
{
    Container container(800, 500);
    load(container);
    EXPECT_EQ(GetFocus(), container.window()); // showing the control moved nothing
    EXPECT_FALSE(takes(container, VK_DOWN));   // the user does not work in it yet
    container.click(rowX, rowY);
    const long before = get(container.control(), L"GetGridRowL").number();
    EXPECT_TRUE(takes(container, VK_DOWN));
    EXPECT_EQ(get(container.control(), L"GetGridRowL").number(), before + 1);
    EXPECT_FALSE(takes(container, VK_F5));
    EXPECT_EQ(container.passedKey(), (std::pair<WPARAM, DWORD>(VK_F5, 0)));
    ASSERT_EQ(container.as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_FALSE(container.hasUi());
    EXPECT_FALSE(takes(container, VK_DOWN));
}

TEST(ContainerTest, TabGoesThroughTheControlAndThenOn)
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    constexpr int many = 50;
    int stops = 0;
    while (stops < many && takes(container, VK_TAB))
        ++stops;
    EXPECT_GT(stops, 0);
    EXPECT_LT(stops, many);
}

TEST(ContainerTest, AChangedPropertyChangesTheView)
{
    Container container(400, 300);
    ViewSink sink;
    ASSERT_EQ(container.as<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, &sink), S_OK);
    put(container.control(), L"BackColor", 0x00112233);
    EXPECT_EQ(sink.changes, 1);
    container.as<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
}

// The control in a form that was opened after its first one: seen, clicked, and in front of its dialog.
void tryReopened(Container &container)
{
    const HWND window = container.controlWindow();
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetParent(window), container.window());
    RECT inner{};
    RECT outer{};
    GetClientRect(window, &inner);
    GetClientRect(container.window(), &outer);
    EXPECT_TRUE(EqualRect(&inner, &outer));
    container.forget();
    container.click(rowX, rowY);
    EXPECT_EQ(container.countOf(6), 1); // DataClick
    const double row = get(container.control(), L"GetGridRowL").number();
    container.key(VK_DOWN);
    EXPECT_EQ(get(container.control(), L"GetGridRowL").number(), row + 1);
    HWND owner = nullptr;
    Container::whenDialogIsOpen([&] {
        owner = GetWindow(GetForegroundWindow(), GW_OWNER);
        Container::press(VK_ESCAPE);
    });
    container.key('L', {VK_CONTROL});
    container.run([&] { return owner && IsWindowEnabled(container.window()); });
    EXPECT_EQ(owner, container.window());
}

TEST(ContainerTest, MovesToAnotherFormAfterItsOwnIsGone)
{
    Container container(800, 500);
    load(container);
    container.closeForm();
    EXPECT_EQ(container.controlWindow(), nullptr);
    ASSERT_EQ(container.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    ASSERT_EQ(container.openForm(700, 400), S_OK);
    tryReopened(container);
}

TEST(ContainerTest, MovesToAnotherFormThatIsTheFirstToTellIt)
{
    Container container(800, 500);
    load(container);
    for (int width : {700, 600}) {
        container.closeForm();
        ASSERT_EQ(container.openForm(width, 400), S_OK);
        tryReopened(container);
    }
}

TEST(ContainerTest, LeavesNoWindowsBehind)
{
    const auto useOne = [] {
        Container container(800, 500);
        load(container);
        container.click(singleRecordX, toolbarY);
    };
    useOne(); // what is made once stays
    const int windows = windowsOfThisThread();
    useOne();
    useOne();
    EXPECT_EQ(windowsOfThisThread(), windows);
}

} // namespace
