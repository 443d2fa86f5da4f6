#include "Canvas.h"
#include "SampleControl.h"
#include "SampleFile.h"
#include "Scene.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>
#include <oleidl.h>

// What containers of documents and form designers ask of a control.

using namespace Late;
using Microsoft::WRL::ComPtr;

namespace {

DISPID idOf(const Object &object, const wchar_t *name)
{
    DISPID id = DISPID_UNKNOWN;
    auto *writable = const_cast<wchar_t *>(name);
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    return id;
}

FORMATETC metafile(CLIPFORMAT format, DWORD tymed)
{
    return {format, nullptr, DVASPECT_CONTENT, -1, tymed};
}

// In a file that goes away with it.
ComPtr<IStorage> newStorage()
{
    ComPtr<IStorage> storage;
    StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                     &storage);
    return storage;
}

TEST(Embedding, KeepsTheBackgroundColourInAStorage)
{
    const ComPtr<IStorage> storage = newStorage();
    ASSERT_TRUE(storage);
    {
        Container saved(400, 300);
        put(saved.control(), L"BackColor", 0x00112233);
        const auto persist = saved.as<IPersistStorage>();
        ASSERT_TRUE(persist);
        EXPECT_EQ(persist->IsDirty(), S_OK);
        ASSERT_EQ(persist->Save(storage.Get(), FALSE), S_OK);
        EXPECT_EQ(persist->SaveCompleted(nullptr), S_OK);
        EXPECT_EQ(persist->IsDirty(), S_FALSE);
    }
    Container loaded(400, 300);
    ASSERT_EQ(loaded.as<IPersistStorage>()->Load(storage.Get()), S_OK);
    EXPECT_EQ(get(loaded.control(), L"BackColor").number(), 0x00112233);
}

TEST(Embedding, AStorageWithoutTheControlIsRefused)
{
    const ComPtr<IStorage> storage = newStorage();
    ASSERT_TRUE(storage);
    Container container(400, 300);
    EXPECT_TRUE(FAILED(container.as<IPersistStorage>()->Load(storage.Get())));
}

TEST(Embedding, GivesItsPictureAsAnEnhancedMetafile)
{
    Container container(400, 300);
    load(container);
    const auto data = container.as<IDataObject>();
    ASSERT_TRUE(data);
    FORMATETC format = metafile(CF_ENHMETAFILE, TYMED_ENHMF);
    STGMEDIUM medium{};
    ASSERT_EQ(data->GetData(&format, &medium), S_OK);
    ENHMETAHEADER header{};
    header.nSize = sizeof header;
    ASSERT_NE(GetEnhMetaFileHeader(medium.hEnhMetaFile, sizeof header, &header), 0u);
    SIZEL extent{};
    container.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_NEAR(header.rclFrame.right - header.rclFrame.left, extent.cx, 60);
    EXPECT_NEAR(header.rclFrame.bottom - header.rclFrame.top, extent.cy, 60);
    // Finer than the screen: a picture of 400 x 300 dots has 480,000 bytes.
    EXPECT_GT(header.nBytes, 4u * 480000u);
    const Canvas canvas(400, 300);
    const RECT whole{0, 0, 400, 300};
    EXPECT_TRUE(PlayEnhMetaFile(canvas.context(), medium.hEnhMetaFile, &whole));
    EXPECT_NE(canvas.at(200, 200), RGB(0, 0, 0));
    EXPECT_NE(canvas.at(2, 2), RGB(0, 0, 0));
    ReleaseStgMedium(&medium);
}

TEST(Embedding, GivesItsPictureAsAMetafile)
{
    Container container(400, 300);
    FORMATETC format = metafile(CF_METAFILEPICT, TYMED_MFPICT);
    STGMEDIUM medium{};
    ASSERT_EQ(container.as<IDataObject>()->GetData(&format, &medium), S_OK);
    const auto *picture = static_cast<METAFILEPICT *>(GlobalLock(medium.hMetaFilePict));
    ASSERT_NE(picture, nullptr);
    SIZEL extent{};
    container.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(picture->mm, MM_ANISOTROPIC);
    EXPECT_EQ(picture->xExt, extent.cx);
    EXPECT_EQ(picture->yExt, extent.cy);
    const Canvas canvas(400, 300);
    SetMapMode(canvas.context(), MM_ANISOTROPIC);
    SetViewportExtEx(canvas.context(), 400, 300, nullptr);
    EXPECT_TRUE(PlayMetaFile(canvas.context(), picture->hMF));
    SetMapMode(canvas.context(), MM_TEXT);
    EXPECT_NE(canvas.at(200, 150), RGB(0, 0, 0));
    GlobalUnlock(medium.hMetaFilePict);
    ReleaseStgMedium(&medium);
}

TEST(Embedding, ListsTheFormatsThatItHas)
{
    Container container(400, 300);
    const auto data = container.as<IDataObject>();
    ComPtr<IEnumFORMATETC> formats;
    ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, &formats), S_OK);
    FORMATETC format{};
    int count = 0;
    while (formats->Next(1, &format, nullptr) == S_OK) {
        ++count;
        EXPECT_EQ(data->QueryGetData(&format), S_OK);
    }
    EXPECT_EQ(count, 2);
    FORMATETC text = metafile(CF_UNICODETEXT, TYMED_HGLOBAL);
    EXPECT_EQ(data->QueryGetData(&text), DV_E_FORMATETC);
    FORMATETC file = metafile(CF_ENHMETAFILE, TYMED_FILE);
    EXPECT_EQ(data->QueryGetData(&file), DV_E_TYMED);
}

TEST(Embedding, ConnectsInOneCall)
{
    Container container(400, 300);
    const Object second = newControl();
    ASSERT_TRUE(second);
    ComPtr<IQuickActivate> quick;
    ASSERT_EQ(second.As(&quick), S_OK);
    QACONTAINER from{};
    from.cbSize = sizeof from;
    from.pClientSite = &container;
    from.pPropertyNotifySink = &container;
    from.pUnkEventSink = static_cast<IDispatch *>(&container);
    QACONTROL to{};
    to.cbSize = sizeof to;
    ASSERT_EQ(quick->QuickActivate(&from, &to), S_OK);
    EXPECT_NE(to.dwEventCookie, 0u);
    EXPECT_NE(to.dwPropNotifyCookie, 0u);
    EXPECT_TRUE(to.dwMiscStatus & OLEMISC_INSIDEOUT);
    EXPECT_TRUE(to.dwViewStatus & VIEWSTATUS_OPAQUE);
    ComPtr<IOleObject> object;
    second.As(&object);
    ComPtr<IOleClientSite> site;
    ASSERT_EQ(object->GetClientSite(&site), S_OK);
    EXPECT_EQ(site.Get(), &container);

    put(second, L"ConnectionString", sampleConnection().c_str());
    put(second, L"SQLShow", L"select id from people");
    ASSERT_TRUE(get(second, L"IsLoadData").isTrue());
    EXPECT_EQ(container.countOf(13), 1); // RecordsetChanged
    const auto &changed = container.changedProperties();
    EXPECT_NE(std::ranges::find(changed, idOf(second, L"SQLShow")), changed.end());

    SIZEL size{5080, 2540};
    EXPECT_EQ(quick->SetContentExtent(&size), S_OK);
    SIZEL measured{};
    EXPECT_EQ(quick->GetContentExtent(&measured), S_OK);
    EXPECT_NEAR(measured.cx, 5080, 30);

    ComPtr<IConnectionPointContainer> points;
    second.As(&points);
    ComPtr<IConnectionPoint> point;
    points->FindConnectionPoint(IID_IDispatch, &point);
    EXPECT_EQ(point->Unadvise(to.dwEventCookie), S_OK);
    points->FindConnectionPoint(IID_IPropertyNotifySink, &point);
    EXPECT_EQ(point->Unadvise(to.dwPropNotifyCookie), S_OK);
    object->SetClientSite(nullptr);
}

TEST(Embedding, TellsWhereItIs)
{
    Container container(400, 300);
    const auto view = container.as<IViewObjectEx>();
    ASSERT_TRUE(view);
    DWORD status = 0;
    EXPECT_EQ(view->GetViewStatus(&status), S_OK);
    EXPECT_TRUE(status & VIEWSTATUS_OPAQUE);
    SIZEL extent{};
    view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent);
    RECTL rectangle{};
    EXPECT_EQ(view->GetRect(DVASPECT_CONTENT, &rectangle), S_OK);
    EXPECT_EQ(rectangle.right, extent.cx);
    EXPECT_EQ(rectangle.bottom, extent.cy);
    EXPECT_EQ(view->GetRect(DVASPECT_ICON, &rectangle), DV_E_DVASPECT);
    const RECT bounds{10, 10, 410, 310};
    const RECT beside{0, 0, 10, 10};
    const RECT over{0, 0, 20, 20};
    DWORD hit = HITRESULT_CLOSE;
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {20, 20}, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
    EXPECT_EQ(view->QueryHitPoint(DVASPECT_CONTENT, &bounds, {5, 20}, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
    EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &bounds, &over, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_HIT));
    EXPECT_EQ(view->QueryHitRect(DVASPECT_CONTENT, &bounds, &beside, 0, &hit), S_OK);
    EXPECT_EQ(hit, static_cast<DWORD>(HITRESULT_OUTSIDE));
}

TEST(Embedding, RunsFromTheStart)
{
    Container container(400, 300);
    const auto running = container.as<IRunnableObject>();
    ASSERT_TRUE(running);
    EXPECT_TRUE(running->IsRunning());
    EXPECT_EQ(running->Run(nullptr), S_OK);
    CLSID id{};
    EXPECT_EQ(running->GetRunningClass(&id), S_OK);
    EXPECT_EQ(id, controlId());
}

TEST(Embedding, TheRegistryListsItsVerbs)
{
    Container container(400, 300);
    ComPtr<IEnumOLEVERB> verbs;
    EXPECT_EQ(container.as<IOleObject>()->EnumVerbs(&verbs), OLE_S_USEREG);
    ASSERT_EQ(OleRegEnumVerbs(controlId(), &verbs), S_OK);
    std::vector<LONG> numbers;
    OLEVERB verb{};
    while (verbs->Next(1, &verb, nullptr) == S_OK) {
        numbers.push_back(verb.lVerb);
        CoTaskMemFree(verb.lpszVerbName);
    }
    std::ranges::sort(numbers);
    EXPECT_EQ(numbers, (std::vector<LONG>{0, 1}));
    EXPECT_EQ(container.doVerb(0), S_OK);
    EXPECT_TRUE(container.hasUi());
}

TEST(Embedding, TellsWhichPageShowsAProperty)
{
    Container container(400, 300);
    const auto browsing = container.as<IPerPropertyBrowsing>();
    ASSERT_TRUE(browsing);
    CAUUID pages{};
    ASSERT_EQ(container.as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    const std::array<const wchar_t *, 4> properties{L"ConnectionString", L"RecordSource", L"SQLShow",
                                                    L"SQLPartDisplay"};
    ASSERT_EQ(pages.cElems, properties.size());
    for (ULONG i = 0; i < pages.cElems; ++i) {
        CLSID page{};
        EXPECT_EQ(browsing->MapPropertyToPage(idOf(container.control(), properties[i]), &page), S_OK);
        EXPECT_EQ(page, pages.pElems[i]);
    }
    CoTaskMemFree(pages.pElems);
    CLSID page{};
    EXPECT_EQ(browsing->MapPropertyToPage(idOf(container.control(), L"Enabled"), &page),
              PERPROP_E_NOPAGEAVAILABLE);
}

TEST(Embedding, ListsTheLanguages)
{
    Container container(400, 300);
    const auto browsing = container.as<IPerPropertyBrowsing>();
    const DISPID language = idOf(container.control(), L"Language");
    CALPOLESTR texts{};
    CADWORD cookies{};
    ASSERT_EQ(browsing->GetPredefinedStrings(language, &texts, &cookies), S_OK);
    ASSERT_EQ(texts.cElems, 2u);
    ASSERT_EQ(cookies.cElems, 2u);
    for (ULONG i = 0; i < texts.cElems; ++i) {
        Value value;
        EXPECT_EQ(browsing->GetPredefinedValue(language, cookies.pElems[i], value.get()), S_OK);
        EXPECT_EQ(value.text(), texts.pElems[i]);
        EXPECT_EQ(put(container.control(), L"Language", value).outcome, S_OK);
        EXPECT_EQ(get(container.control(), L"Language").text(), texts.pElems[i]);
        CoTaskMemFree(texts.pElems[i]);
    }
    CoTaskMemFree(texts.pElems);
    CoTaskMemFree(cookies.pElems);
    put(container.control(), L"Language", L"zh-CN");
    EXPECT_EQ(browsing->GetPredefinedStrings(idOf(container.control(), L"SQLShow"), &texts, &cookies),
              S_FALSE);
}

TEST(Embedding, TakesTheFormsFont)
{
    Container container(400, 300);
    auto name = std::wstring(L"Tahoma");
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    description.cySize.int64 = 200000; // 20 points
    description.sWeight = FW_BOLD;
    ComPtr<IDispatch> font;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_PPV_ARGS(&font)), S_OK);
    container.setAmbient(DISPID_AMBIENT_FONT, font.Get());
    const Object shown = get(container.control(), L"DataFont").object();
    EXPECT_NEAR(get(shown, L"Size").real(), 20, 0.5);
    EXPECT_TRUE(get(shown, L"Bold").isTrue());
}

TEST(Embedding, ANewControlHasTheFormsColour)
{
    Container container(400, 300);
    container.setAmbient(DISPID_AMBIENT_BACKCOLOR, 0x00445566);
    EXPECT_NE(get(container.control(), L"BackColor").number(), 0x00445566); // this one is not new
    ASSERT_EQ(container.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_EQ(get(container.control(), L"BackColor").number(), 0x00445566);
}

TEST(Embedding, FollowsTheFormsLanguage)
{
    Container container(400, 300);
    container.setAmbient(DISPID_AMBIENT_LOCALEID, 0x0409);
    EXPECT_EQ(get(container.control(), L"Language").text(), L"en");
    container.setAmbient(DISPID_AMBIENT_LOCALEID, 0x0804);
    EXPECT_EQ(get(container.control(), L"Language").text(), L"zh-CN");
}

TEST(Embedding, ShowsItsTextsInAnotherLanguageAtOnce)
{
    constexpr int width = 1100; // room for the captions of all buttons
    constexpr int height = 500;
    const auto setLanguage = [](Container &container, const wchar_t *name) {
        put(container.control(), L"Language", name);
        container.run();
    };
    std::vector<COLORREF> changed;
    {
        Container container(width, height);
        load(container);
        const std::vector<COLORREF> chinese = Canvas(width, height).drawn(container);
        setLanguage(container, L"en");
        changed = Canvas(width, height).drawn(container);
        picture(container, L"another-language");
        setLanguage(container, L"zh-CN");
        EXPECT_TRUE(Canvas(width, height).drawn(container) == chinese);
        setLanguage(container, L"en");
    }
    Container english(width, height); // from the beginning
    load(english);
    EXPECT_TRUE(Canvas(width, height).drawn(english) == changed);
    picture(english, L"english");
    setLanguage(english, L"zh-CN");
}

TEST(Embedding, WhileTheFormIsDeadSoIsTheControl)
{
    Container container(800, 500);
    load(container);
    container.setAmbient(DISPID_AMBIENT_UIDEAD, true);
    EXPECT_FALSE(IsWindowEnabled(container.controlWindow()));
    container.forget();
    container.click(rowX, rowY);
    EXPECT_EQ(container.countOf(6), 0); // DataClick
    container.setAmbient(DISPID_AMBIENT_UIDEAD, false);
    container.click(rowX, rowY);
    EXPECT_EQ(container.countOf(6), 1);
}

TEST(Embedding, IsReversedOnAFormFromRightToLeft)
{
    Container container(800, 500);
    load(container);
    container.setAmbient(DISPID_AMBIENT_RIGHTTOLEFT, true);
    container.run();
    picture(container, L"right-to-left");
    container.click(800 - singleRecordX, toolbarY);
    container.forget();
    container.doubleClick(800 - rowX, rowY); // now in the list of one record's fields
    EXPECT_EQ(container.countOf(7), 1);      // DataDblClick
    EXPECT_EQ(container.countOf(1), 0);
}

} // namespace
