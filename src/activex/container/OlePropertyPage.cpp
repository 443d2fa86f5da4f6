#include "activex/container/OlePropertyPage.h"

#include "activex/calls/ObjectHolder.h"
#include "activex/calls/Variants.h"
#include "activex/container/Himetric.h"
#include "activex/server/Guids.h"
#include "pages/PropertyPage.h"
#include "pages/PropertyPages.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

LPOLESTR taskText(const QString &text)
{
    const std::size_t bytes = (static_cast<std::size_t>(text.size()) + 1) * sizeof(OLECHAR);
    auto *copy = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
    if (copy)
        std::memcpy(copy, text.utf16(), bytes);
    return copy;
}

} // namespace

template<int Index>
HRESULT OlePropertyPage::create(IUnknown *outer, REFIID iid, void **object)
{
    if (outer)
        return CLASS_E_NOAGGREGATION;
    const QString name = toQString(pageClasses[Index].name);
    auto *page =
        new OlePropertyPage(name, std::unique_ptr<KOVAVSFDataGridLib::PropertyPage>(newPropertyPage(name)));
    const HRESULT offered = page->QueryInterface(iid, object);
    page->Release();
    return offered;
}

ClassFactory::Create OlePropertyPage::creatorOf(REFCLSID id)
{
    constexpr ClassFactory::Create creators[] = {&create<0>, &create<1>, &create<2>, &create<3>};
    static_assert(std::size(creators) == std::size(pageClasses));
    for (std::size_t i = 0; i < std::size(pageClasses); ++i) {
        if (pageClasses[i].id == id)
            return creators[i];
    }
    return nullptr;
}

OlePropertyPage::OlePropertyPage(const QString &title, std::unique_ptr<KOVAVSFDataGridLib::PropertyPage> page)
    : m_page(std::move(page)),
      m_window(
          *m_page, [] {}, [](bool) {}, [](bool) {})
{
    m_page->setWindowTitle(title);
    QObject::connect(m_page.get(), &KOVAVSFDataGridLib::PropertyPage::ChangedChanged, m_page.get(), [this] {
        if (m_site)
            m_site->OnStatusChange(m_page->Changed() ? PROPPAGESTATUS_DIRTY : PROPPAGESTATUS_CLEAN);
    });
}

OlePropertyPage::~OlePropertyPage() = default;

STDMETHODIMP OlePropertyPage::SetPageSite(IPropertyPageSite *site)
{
    m_site = site;
    return S_OK;
}

STDMETHODIMP OlePropertyPage::Activate(HWND parent, LPCRECT position, BOOL)
{
    if (!position)
        return E_POINTER;
    m_window.attach(parent, placeIn(*position), RECT{});
    return S_OK;
}

STDMETHODIMP OlePropertyPage::Deactivate()
{
    m_window.detach();
    return S_OK;
}

STDMETHODIMP OlePropertyPage::GetPageInfo(PROPPAGEINFO *info)
{
    if (!info)
        return E_POINTER;
    *info = {};
    info->cb = sizeof *info;
    info->pszTitle = taskText(m_page->windowTitle());
    info->size = preferredSize();
    return info->pszTitle ? S_OK : E_OUTOFMEMORY;
}

STDMETHODIMP OlePropertyPage::SetObjects(ULONG count, IUnknown **objects)
{
    std::vector<ComPtr<IUnknown>> kept;
    QList<QObject *> controls;
    for (ULONG i = 0; i < count; ++i) {
        ComPtr<ObjectHolder> holder;
        if (!objects || !objects[i] || FAILED(objects[i]->QueryInterface(IID_PPV_ARGS(&holder))))
            return E_NOINTERFACE; // not a control of this server
        kept.push_back(objects[i]);
        controls += holder->held();
    }
    m_page->SetSelectedControls(controls);
    m_objects = std::move(kept);
    return S_OK;
}

STDMETHODIMP OlePropertyPage::Show(UINT command)
{
    m_page->setVisible(command != SW_HIDE);
    if (command == SW_SHOWNORMAL)
        m_window.setKeyboardFocus();
    return S_OK;
}

STDMETHODIMP OlePropertyPage::Move(LPCRECT position)
{
    if (!position)
        return E_POINTER;
    m_window.place(placeIn(*position), nullptr);
    return S_OK;
}

STDMETHODIMP OlePropertyPage::IsPageDirty()
{
    return m_page->Changed() ? S_OK : S_FALSE;
}

STDMETHODIMP OlePropertyPage::Apply()
{
    return m_page->ApplyChanges() ? S_OK : E_FAIL;
}

STDMETHODIMP OlePropertyPage::Help(LPCOLESTR)
{
    return E_NOTIMPL;
}

SIZE OlePropertyPage::preferredSize() const
{
    const QSizeF size = QSizeF(m_page->sizeHint()) * m_page->devicePixelRatioF();
    return {std::lround(size.width()), std::lround(size.height())};
}

RECT OlePropertyPage::placeIn(const RECT &room) const
{
    const SIZE most = preferredSize();
    return {room.left, room.top, std::min(room.right, room.left + most.cx),
            std::min(room.bottom, room.top + most.cy)};
}

STDMETHODIMP OlePropertyPage::TranslateAccelerator(MSG *message)
{
    if (!message || !m_window.wants(*message))
        return S_FALSE;
    TranslateMessage(message);
    DispatchMessageW(message);
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
