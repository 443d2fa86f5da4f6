#include "Scene.h"

#include <array>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;
using namespace Late;

namespace {

// The names of Qt's window classes begin with its own.
BOOL CALLBACK takeQtWindow(HWND window, LPARAM found)
{
    std::array<wchar_t, 100> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (std::wstring(name.data()).starts_with(L"Qt") && IsWindowVisible(window))
        *reinterpret_cast<HWND *>(found) = window;
    return TRUE;
}

// The page's own window inside a property frame.
HWND pageIn(HWND frame)
{
    HWND page = nullptr;
    EnumChildWindows(frame, takeQtWindow, reinterpret_cast<LPARAM>(&page));
    return page;
}

RECT placeOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT *>(&place), 2);
    return place;
}

bool liesInItsParent(HWND window)
{
    RECT room{};
    GetClientRect(GetParent(window), &room);
    const RECT place = placeOf(window);
    RECT both{};
    return IntersectRect(&both, &place, &room) && EqualRect(&both, &place);
}

// Whether nothing is clipped at the right: the last column of pixels is empty.
bool rightEdgeIsFree(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    const HDC screen = GetDC(nullptr);
    const COLORREF background = GetPixel(screen, place.right - 1, place.top);
    bool isFree = background != CLR_INVALID;
    for (int y = place.top; y < place.bottom; ++y)
        isFree = isFree && GetPixel(screen, place.right - 1, y) == background;
    ReleaseDC(nullptr, screen);
    return isFree;
}

ComPtr<IPropertyPage> newPage(const Container &container, std::size_t index)
{
    CAUUID pages{};
    ComPtr<IPropertyPage> page;
    EXPECT_EQ(container.as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    EXPECT_EQ(pages.cElems, 4u);
    EXPECT_EQ(CoCreateInstance(pages.pElems[index], nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page)),
              S_OK);
    CoTaskMemFree(pages.pElems);
    return page;
}

SIZE sizeOf(IPropertyPage &page, std::wstring *title)
{
    PROPPAGEINFO info{};
    info.cb = sizeof info;
    EXPECT_EQ(page.GetPageInfo(&info), S_OK);
    *title = info.pszTitle;
    CoTaskMemFree(info.pszTitle);
    return info.size;
}

class PageSite final : public IPropertyPageSite
{
public:
    std::vector<DWORD> statuses;
    ULONG references = 1;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }
    STDMETHODIMP OnStatusChange(DWORD flags) override
    {
        statuses.push_back(flags);
        return S_OK;
    }
    STDMETHODIMP GetLocaleID(LCID *locale) override
    {
        *locale = LOCALE_USER_DEFAULT;
        return S_OK;
    }
    STDMETHODIMP GetPageContainer(IUnknown **container) override
    {
        *container = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP TranslateAccelerator(MSG *) override { return S_FALSE; }
};

TEST(Pages, EachFitsItsPlaceInTheContainer)
{
    Container container(800, 500);
    put(container.control(), L"SQLShow", L"select id, name from people");
    IUnknown *object = container.control().Get();
    const std::array<const wchar_t *, 4> titles{L"ConnectionString", L"RecordSource", L"SQLShow",
                                                L"PartDisplayField"};
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const ComPtr<IPropertyPage> page = newPage(container, i);
        std::wstring title;
        const SIZE wish = sizeOf(*page.Get(), &title);
        EXPECT_EQ(title, titles[i]);
        ASSERT_EQ(page->SetObjects(1, &object), S_OK);
        // A frame may be narrower than its pages wish.
        for (const LONG width : {wish.cx, wish.cx * 4 / 5}) {
            const RECT place{10, 10, 10 + width, 10 + wish.cy};
            ASSERT_EQ(page->Activate(container.window(), &place, FALSE), S_OK);
            ASSERT_EQ(page->Show(SW_SHOW), S_OK);
            container.run();
            const HWND window = GetTopWindow(container.window());
            const RECT placed = placeOf(window);
            EXPECT_TRUE(EqualRect(&placed, &place)) << i << ": " << placed.right << " x " << placed.bottom;
            EXPECT_TRUE(rightEdgeIsFree(window)) << i;
            picture(container, (L"page-" + title).c_str());
            page->Deactivate();
            container.run();
        }
        page->SetObjects(0, nullptr);
    }
}

TEST(Pages, ShowsItsPropertyPagesOnRequest)
{
    Container container(800, 500);
    put(container.control(), L"SQLShow", L"select id from people");
    bool wasOpen = false;
    Container::whenDialogIsOpen([&] {
        wasOpen = true;
        picture(container, L"property-frame");
        const HWND frame = FindWindowW(L"#32770", nullptr); // the system's class of dialogs
        EXPECT_TRUE(frame);
        const HWND page = pageIn(frame);
        EXPECT_TRUE(page && liesInItsParent(page));
        EXPECT_TRUE(page && rightEdgeIsFree(page));
        PostMessageW(frame, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(container.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(get(container.control(), L"SQLShow").text(), L"select id from people");
}

TEST(Pages, APropertyPageWritesTheProperty)
{
    Container container(500, 300);
    const ComPtr<IPropertyPage> page = newPage(container, 2);
    PageSite site;
    ASSERT_EQ(page->SetPageSite(&site), S_OK);
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
    ASSERT_FALSE(site.statuses.empty());
    EXPECT_EQ(site.statuses.back(), static_cast<DWORD>(PROPPAGESTATUS_DIRTY));
    EXPECT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(get(container.control(), L"SQLShow").text(), L"select id from people1");
    EXPECT_EQ(site.statuses.back(), static_cast<DWORD>(PROPPAGESTATUS_CLEAN));
    page->Deactivate();
    page->SetObjects(0, nullptr);
    page->SetPageSite(nullptr);
    EXPECT_EQ(site.references, 1u);
}

} // namespace
