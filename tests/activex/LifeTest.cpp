#include "SampleControl.h"
#include "Scene.h"

#include <array>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <objbase.h>
#include <olectl.h>
#include <string>
#include <thread>

using Microsoft::WRL::ComPtr;

namespace {

// An object that aggregates the control.
class Aggregating final : public IUnknown
{
public:
    ComPtr<IUnknown> inner;
    ULONG references = 1;

    STDMETHODIMP QueryInterface(REFIID iid, void **object) override
    {
        if (iid != IID_IUnknown)
            return inner->QueryInterface(iid, object);
        *object = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }
};

TEST(Life, CanBeAggregated)
{
    Aggregating outer;
    ASSERT_EQ(CoCreateInstance(controlId(), &outer, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&outer.inner)), S_OK);
    {
        Late::Object control;
        ASSERT_EQ(outer.QueryInterface(IID_PPV_ARGS(&control)), S_OK);
        EXPECT_EQ(outer.references, 2u);
        ComPtr<IUnknown> identity;
        ASSERT_EQ(control.As(&identity), S_OK);
        EXPECT_EQ(identity.Get(), &outer);
        EXPECT_EQ(Late::put(control, L"STR_SQLTEMP", L"x").outcome, S_OK);
        EXPECT_EQ(Late::get(control, L"STR_SQLTEMP").text(), L"x");
    }
    EXPECT_EQ(outer.references, 1u);
    EXPECT_EQ(outer.inner.Reset(), 0u);
    EXPECT_EQ(outer.references, 1u);
}

TEST(Life, AnAggregatingObjectMustAskForTheInnerIdentity)
{
    Aggregating outer;
    ComPtr<IDispatch> control;
    EXPECT_TRUE(FAILED(CoCreateInstance(controlId(), &outer, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control))));
    EXPECT_FALSE(control);
}

TEST(Life, ControlsOfAnotherThreadAreRefused)
{
    const Late::Object first = newControl();
    ASSERT_TRUE(first);
    HRESULT elsewhere = S_OK;
    std::thread([&] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        {
            ComPtr<IUnknown> second;
            elsewhere = CoCreateInstance(controlId(), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&second));
        }
        CoUninitialize();
    }).join();
    EXPECT_EQ(elsewhere, RPC_E_WRONG_THREAD);
}

// Processes messages until `done` returns true.
void processMessages(const std::function<bool()> &done)
{
    while (!done()) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

// A form on this thread, with a dialog over it: it needs all that Qt does for its main thread.
void useAForm()
{
    Container container(800, 500);
    load(container);
    container.click(rowX, rowY);
    HWND owner = nullptr;
    Container::whenDialogIsOpen([&] {
        owner = GetWindow(GetForegroundWindow(), GW_OWNER);
        Container::press(VK_ESCAPE);
    });
    container.key('L', {VK_CONTROL});
    container.run([&] { return owner && IsWindowEnabled(container.window()); });
    EXPECT_EQ(owner, container.window());
    EXPECT_GT(Late::get(container.control(), L"GetGridRowL").number(), 0);
}

TEST(Life, OneThreadAfterTheOtherCanHaveForms)
{
    useAForm();
    for (int i = 0; i < 2; ++i) {
        std::atomic<bool> done = false;
        std::thread worker([&] {
            CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            useAForm();
            CoUninitialize();
            done = true;
        });
        processMessages([&] { return done.load(); });
        worker.join(); // the thread has ended, without a word to Qt
        useAForm();
    }
}

TEST(Life, AClientOfTheMultithreadedApartmentLeavesQtToForms)
{
    std::atomic<bool> isReleased = false;
    std::atomic<bool> isFormDone = false;
    HRESULT made = E_FAIL;
    std::wstring text;
    std::thread client([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            Late::Object control; // on a thread that COM has made for it
            made = CoCreateInstance(controlId(), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control));
            if (control) {
                Late::put(control, L"STR_SQLTEMP", L"x");
                text = Late::get(control, L"STR_SQLTEMP").text();
            }
        }
        isReleased = true;
        while (!isFormDone)
            Sleep(10);
        CoUninitialize();
    });
    processMessages([&] { return isReleased.load(); });
    useAForm();
    isFormDone = true;
    client.join();
    EXPECT_EQ(made, S_OK);
    EXPECT_EQ(text, L"x");
    useAForm();
}

// Runs one test in a process of its own. Returns how that process ended; STILL_ACTIVE if it did not within a
// minute.
DWORD exitCodeOf(const wchar_t *test)
{
    std::array<wchar_t, MAX_PATH> program{};
    GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    std::wstring command =
        std::wstring(L"activex_test --gtest_also_run_disabled_tests --gtest_filter=") + test;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program.data(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process))
        return GetLastError();
    CloseHandle(process.hThread);
    const DWORD begin = GetTickCount();
    DWORD code = STILL_ACTIVE;
    processMessages([&] {
        return !GetExitCodeProcess(process.hProcess, &code) || code != STILL_ACTIVE ||
               GetTickCount() - begin > 60'000;
    });
    TerminateProcess(process.hProcess, 1);
    CloseHandle(process.hProcess);
    return code;
}

TEST(Life, DISABLED_AThreadWithAFormEnds)
{
    std::thread([] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        useAForm();
        CoUninitialize();
    }).join();
}

TEST(Life, AProcessEndsAfterAThreadWithAFormHasEnded)
{
    EXPECT_EQ(exitCodeOf(L"Life.DISABLED_AThreadWithAFormEnds"), 0u);
}

TEST(Life, DISABLED_TheHostEndsAtOnce)
{
    Container container(800, 500);
    load(container);
    ExitProcess(testing::Test::HasFailure() ? 1 : 0);
}

TEST(Life, AProcessEndsWhileAFormIsOpen)
{
    EXPECT_EQ(exitCodeOf(L"Life.DISABLED_TheHostEndsAtOnce"), 0u);
}

TEST(Life, AConnectionPointKeepsItsControl)
{
    ComPtr<IConnectionPointContainer> container;
    ASSERT_EQ(newControl().As(&container), S_OK);
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(container->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
    EXPECT_NE(container.Reset(), 0u);
    IID outgoing{};
    EXPECT_EQ(point->GetConnectionInterface(&outgoing), S_OK);
    EXPECT_TRUE(outgoing == IID_IPropertyNotifySink);
    EXPECT_EQ(point.Reset(), 0u);
}

} // namespace
