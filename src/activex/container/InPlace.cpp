#include "activex/container/InPlace.h"

#include "activex/GridControl.h"

#include <KOVAVSFDataGrid>

#include <ocidl.h>
#include <utility>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

DWORD pressedModifiers()
{
    constexpr std::pair<int, DWORD> keys[] = {{VK_SHIFT, 1}, {VK_CONTROL, 2}, {VK_MENU, 4}}; // KEYMOD_…
    DWORD pressed = 0;
    for (const auto &[key, bit] : keys) {
        if (GetKeyState(key) < 0)
            pressed |= bit;
    }
    return pressed;
}

HRESULT returnHandle(const EmbeddedWindow &window, HWND *handle)
{
    if (!handle)
        return E_POINTER;
    *handle = window.handle();
    return *handle ? S_OK : E_FAIL;
}

} // namespace

InPlaceObject::InPlaceObject(GridControl &control, InPlace &inPlace)
    : Part(control.identity()), m_inPlace(inPlace)
{
}

STDMETHODIMP InPlaceObject::GetWindow(HWND *window)
{
    return returnHandle(m_inPlace.window(), window);
}

STDMETHODIMP InPlaceObject::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP InPlaceObject::InPlaceDeactivate()
{
    m_inPlace.deactivate();
    return S_OK;
}

STDMETHODIMP InPlaceObject::UIDeactivate()
{
    m_inPlace.deactivateUi();
    return S_OK;
}

STDMETHODIMP InPlaceObject::SetObjectRects(LPCRECT position, LPCRECT clip)
{
    if (!position)
        return E_POINTER;
    m_inPlace.window().place(*position, clip);
    return S_OK;
}

STDMETHODIMP InPlaceObject::ReactivateAndUndo()
{
    return INPLACE_E_NOTUNDOABLE;
}

InPlaceActiveObject::InPlaceActiveObject(GridControl &control, InPlace &inPlace)
    : Part(control.identity()), m_inPlace(inPlace)
{
}

STDMETHODIMP InPlaceActiveObject::GetWindow(HWND *window)
{
    return returnHandle(m_inPlace.window(), window);
}

STDMETHODIMP InPlaceActiveObject::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP InPlaceActiveObject::TranslateAccelerator(LPMSG message)
{
    return message ? m_inPlace.translate(*message) : E_POINTER;
}

STDMETHODIMP InPlaceActiveObject::OnFrameWindowActivate(BOOL)
{
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::OnDocWindowActivate(BOOL)
{
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow *, BOOL)
{
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::EnableModeless(BOOL)
{
    return S_OK;
}

InPlace::InPlace(GridControl &control)
    : m_control(control),
      m_object(control, *this),
      m_activeObject(control, *this),
      m_window(
          control.grid(), [this] { activateUi(); }, [this](bool on) { focusMoved(on); },
          [this](bool on) { dialogOpen(on); })
{
}

HRESULT InPlace::activate(Depth depth)
{
    IOleClientSite *client = m_control.oleObject().site();
    if (!client)
        return E_UNEXPECTED;
    if (m_site && !m_window.handle())
        deactivate(); // the host has destroyed its window, and this one with it
    if (!m_site) {
        ComPtr<IOleInPlaceSite> site;
        HRESULT outcome = client->QueryInterface(IID_PPV_ARGS(&site));
        if (FAILED(outcome))
            return outcome;
        if (site->CanInPlaceActivate() != S_OK)
            return OLE_E_NOT_INPLACEACTIVE;
        HWND parent = nullptr;
        outcome = site->GetWindow(&parent);
        if (FAILED(outcome))
            return outcome;
        site->OnInPlaceActivate();
        RECT position{};
        RECT clip{};
        OLEINPLACEFRAMEINFO frameInfo{};
        frameInfo.cb = sizeof frameInfo;
        outcome = site->GetWindowContext(&m_frame, &m_document, &position, &clip, &frameInfo);
        if (FAILED(outcome)) {
            site->OnInPlaceDeactivate();
            return outcome;
        }
        m_site = site;
        m_window.attach(parent, position, clip);
        client->ShowObject();
    }
    return depth == WithUi ? activateUi() : S_OK;
}

HRESULT InPlace::activateUi()
{
    if (!m_site || m_hasUi)
        return S_OK;
    const HRESULT outcome = m_site->OnUIActivate();
    if (FAILED(outcome))
        return outcome;
    m_hasUi = true;
    if (m_frame)
        m_frame->SetActiveObject(&m_activeObject, L"KOVAVSFDataGrid");
    if (m_document)
        m_document->SetActiveObject(&m_activeObject, L"KOVAVSFDataGrid");
    m_window.setKeyboardFocus();
    return S_OK;
}

void InPlace::deactivateUi()
{
    if (!m_hasUi)
        return;
    m_hasUi = false;
    if (m_frame)
        m_frame->SetActiveObject(nullptr, nullptr);
    if (m_document)
        m_document->SetActiveObject(nullptr, nullptr);
    if (m_site)
        m_site->OnUIDeactivate(FALSE);
}

void InPlace::deactivate()
{
    deactivateUi();
    if (!m_site)
        return;
    m_window.detach();
    const ComPtr<IOleInPlaceSite> site = std::move(m_site);
    m_frame.Reset();
    m_document.Reset();
    site->OnInPlaceDeactivate();
}

void InPlace::end()
{
    m_window.detach();
    m_frame.Reset();
    m_document.Reset();
    m_site.Reset();
}

void InPlace::focusMoved(bool here)
{
    ComPtr<IOleControlSite> site;
    if (m_site && SUCCEEDED(m_site.As(&site)))
        site->OnFocus(here);
}

void InPlace::dialogOpen(bool on)
{
    if (m_frame)
        m_frame->EnableModeless(!on);
}

HRESULT InPlace::translate(MSG &message)
{
    if (!m_hasUi)
        return S_FALSE;
    if (!m_window.wants(message)) {
        // Some containers move the focus only when the control has passed the key on to its site.
        ComPtr<IOleControlSite> site;
        return SUCCEEDED(m_site.As(&site)) ? site->TranslateAccelerator(&message, pressedModifiers())
                                           : S_FALSE;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
