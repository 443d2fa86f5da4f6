#include "Container.h"
#include "SampleFile.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <olectl.h>

using Microsoft::WRL::ComPtr;
using namespace Late;

namespace {

// Where pictures of the windows go; empty: none are made.
std::wstring pictureFolder()
{
    const wchar_t *folder = _wgetenv(L"KOVA_PICTURES");
    return folder ? folder : L"";
}

void picture(const Container &container, const wchar_t *name)
{
    if (pictureFolder().empty())
        return;
    EXPECT_TRUE(container.saveScreen(pictureFolder() + L"\\" + name + L".bmp"));
}

void load(Container &container)
{
    put(container.control(), L"ConnectionString", sampleConnection().c_str());
    put(container.control(), L"DBType", 3);
    put(container.control(), L"SQLShow", L"select id, name, born, big from people order by id");
    ASSERT_TRUE(get(container.control(), L"IsLoadData").isTrue());
    container.run();
}

// Points of the control at 800 x 500 pixels, 96 dots to the inch.
constexpr int rowX = 120; // in the first data row
constexpr int rowY = 63;
constexpr int headingY = 39;
constexpr int toolbarY = 13;
constexpr int singleRecordX = 88;
constexpr int filterX = 117;
constexpr int panelX = 57; // beside the grid
constexpr int panelY = 485;

// The numbers that the first event of this kind carried.
std::vector<double> numbersOf(const Container &container, DISPID id)
{
    for (const Event &event : container.events()) {
        if (event.id == id)
            return event.numbers;
    }
    return {};
}

class MemoryBag final : public IPropertyBag
{
public:
    std::map<std::wstring, long> values;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = this;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP Read(LPCOLESTR name, VARIANT *value, IErrorLog *) override
    {
        const auto found = values.find(name);
        if (found == values.end())
            return E_INVALIDARG;
        value->vt = VT_I4;
        value->lVal = found->second;
        return S_OK;
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT *value) override
    {
        values[name] = value->vt == VT_I4 ? value->lVal : -1;
        return S_OK;
    }
};

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

TEST(ContainerTest, TellsTheEventsOfTheMouse)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.click(rowX, rowY);
    ASSERT_EQ(container.countOf(1), 1); // DataMouseDown
    ASSERT_EQ(container.countOf(2), 1); // DataMouseUp
    EXPECT_GE(container.countOf(3), 1); // DataMouseMove
    EXPECT_EQ(container.countOf(6), 1); // DataClick
    for (const Event &event : container.events()) {
        if (event.id == 1) {
            ASSERT_EQ(event.numbers.size(), 4u);
            EXPECT_EQ(event.numbers[0], 1); // the left button
            EXPECT_EQ(event.numbers[1], 0);
            EXPECT_GT(event.numbers[2], 0); // twips
        }
    }
    EXPECT_TRUE(container.hasUi());

    container.forget();
    container.doubleClick(rowX, rowY);
    EXPECT_EQ(container.countOf(7), 1);
    EXPECT_EQ(container.countOf(14) + container.countOf(15), 1);
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

TEST(ContainerTest, TellsAClickOnAHeading)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.click(rowX, headingY);
    ASSERT_EQ(container.countOf(5), 1);
    EXPECT_GT(numbersOf(container, 5).at(0), 0);
}

TEST(ContainerTest, TellsWhenTheResultAndTheRecordChange)
{
    Container container(800, 500);
    container.forget();
    load(container);
    EXPECT_GE(container.countOf(13), 1); // RecordsetChanged
    container.click(rowX, rowY);
    container.forget();
    container.key(VK_DOWN);
    ASSERT_EQ(container.countOf(12), 1); // RecordChanged
    EXPECT_EQ(numbersOf(container, 12).at(1), 2);
}

TEST(ContainerTest, TellsAMouseButtonThatComesUpBesideTheGrid)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.click(panelX, panelY);
    ASSERT_EQ(container.countOf(9), 1);
    EXPECT_EQ(numbersOf(container, 9).at(0), 1);
    EXPECT_EQ(container.countOf(2), 0);
}

TEST(ContainerTest, AHandlerFiltersWithItsOwnCondition)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.answerQurryFilter(0, L"id > 1");
    container.click(filterX, toolbarY); // no dialog opens
    ASSERT_EQ(container.countOf(11), 1);
    EXPECT_EQ(numbersOf(container, 11), std::vector<double>{1});
    EXPECT_NE(container.events().front().text.find(L"people"), std::wstring::npos);
    EXPECT_EQ(get(get(container.control(), L"RecordSet").object(), L"RecordCount").number(), 2);
    picture(container, L"filtered");
}

TEST(ContainerTest, AHandlerCancelsTheFilter)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.answerQurryFilter(0, L"");
    container.click(filterX, toolbarY);
    ASSERT_EQ(container.countOf(11), 1);
    EXPECT_EQ(get(get(container.control(), L"RecordSet").object(), L"RecordCount").number(), 3);
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

TEST(ContainerTest, AHandlerMayLetGoOfTheControl)
{
    Container container(800, 500);
    load(container);
    container.onEvent([&](DISPID id) {
        if (id == 6)
            container.release();
    });
    container.click(rowX, rowY);
    EXPECT_FALSE(container.control());
    EXPECT_EQ(container.references(), 1u);
}

TEST(ContainerTest, ShowsItsPropertyPagesOnRequest)
{
    Container container(800, 500);
    put(container.control(), L"SQLShow", L"select id from people");
    bool wasOpen = false;
    Container::whenDialogIsOpen([&] {
        wasOpen = true;
        picture(container, L"property-frame");
        const HWND frame = FindWindowW(L"#32770", nullptr); // the system's class of dialogs
        EXPECT_TRUE(frame);
        PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(container.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(get(container.control(), L"SQLShow").text(), L"select id from people");
}

TEST(ContainerTest, FrozenEventsAreNotTold)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.as<IOleControl>()->FreezeEvents(TRUE);
    container.click(rowX, rowY);
    EXPECT_TRUE(container.events().empty());
    container.as<IOleControl>()->FreezeEvents(FALSE);
    container.click(rowX, rowY);
    EXPECT_FALSE(container.events().empty());
}

TEST(ContainerTest, TellsWhichPropertyHasChanged)
{
    Container container(400, 300);
    put(container.control(), L"SQLFilter", L"x");
    EXPECT_EQ(container.changedProperties(), std::vector<DISPID>{16});
}

TEST(ContainerTest, InDesignModeUseModelCanBeWritten)
{
    Container container(400, 300, false);
    EXPECT_EQ(put(container.control(), L"UseModel", 1).outcome, S_OK);
    EXPECT_EQ(get(container.control(), L"UseModel").number(), 1);
    container.setUserMode(true);
    EXPECT_EQ(put(container.control(), L"UseModel", 0).outcome, DISP_E_EXCEPTION);
}

TEST(ContainerTest, KeepsOnlyTheBackgroundColourInAPropertyBag)
{
    MemoryBag bag;
    {
        Container container(400, 300);
        put(container.control(), L"SQLShow", L"select id from people");
        put(container.control(), L"BackColor", 0x00336699);
        EXPECT_EQ(container.as<IPersistStreamInit>()->IsDirty(), S_OK);
        ASSERT_EQ(container.as<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE), S_OK);
        EXPECT_EQ(container.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
    }
    EXPECT_EQ(bag.values, (std::map<std::wstring, long>{{L"BackColor", 0x00336699}}));
    Container restored(400, 300);
    ASSERT_EQ(restored.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
    EXPECT_EQ(get(restored.control(), L"BackColor").number(), 0x00336699);
    EXPECT_EQ(get(restored.control(), L"SQLShow").text(), L"");
}

TEST(ContainerTest, AnAbsentEntryGivesTheButtonFaceColour)
{
    MemoryBag empty;
    Container container(400, 300);
    const long face = get(container.control(), L"BackColor").number();
    put(container.control(), L"BackColor", 0x00010203);
    ASSERT_EQ(container.as<IPersistPropertyBag>()->Load(&empty, nullptr), S_OK);
    EXPECT_EQ(get(container.control(), L"BackColor").number(), face);
}

TEST(ContainerTest, KeepsTheBackgroundColourInAStream)
{
    ComPtr<IStream> stream;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    {
        Container container(400, 300);
        put(container.control(), L"BackColor", 0x00112233);
        ASSERT_EQ(container.as<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
    }
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    Container restored(400, 300);
    ASSERT_EQ(restored.as<IPersistStreamInit>()->Load(stream.Get()), S_OK);
    EXPECT_EQ(get(restored.control(), L"BackColor").number(), 0x00112233);
    EXPECT_TRUE(FAILED(restored.as<IPersistStreamInit>()->Load(stream.Get()))); // at its end
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

TEST(ContainerTest, APropertyPageWritesTheProperty)
{
    Container container(500, 300);
    CAUUID pages{};
    ASSERT_EQ(container.as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    ASSERT_EQ(pages.cElems, 4u);
    ComPtr<IPropertyPage> page;
    ASSERT_EQ(CoCreateInstance(pages.pElems[2], nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page)), S_OK);
    CoTaskMemFree(pages.pElems);
    PROPPAGEINFO info{};
    info.cb = sizeof info;
    ASSERT_EQ(page->GetPageInfo(&info), S_OK);
    EXPECT_STREQ(info.pszTitle, L"SQLShow");
    CoTaskMemFree(info.pszTitle);

    put(container.control(), L"SQLShow", L"select id from people");
    IUnknown *object = container.control().Get();
    ASSERT_EQ(page->SetObjects(1, &object), S_OK);
    const RECT place{10, 10, 480, 200};
    ASSERT_EQ(page->Activate(container.window(), &place, FALSE), S_OK);
    ASSERT_EQ(page->Show(SW_SHOWNORMAL), S_OK);
    container.run();
    EXPECT_EQ(page->IsPageDirty(), S_FALSE);
    container.key(VK_END);
    container.key('1');
    EXPECT_EQ(page->IsPageDirty(), S_OK);
    picture(container, L"page");
    EXPECT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(get(container.control(), L"SQLShow").text(), L"select id from people1");
    page->Deactivate();
    page->SetObjects(0, nullptr);
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

} // namespace
