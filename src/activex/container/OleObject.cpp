#include "activex/container/OleObject.h"

#include "activex/GridControl.h"
#include "activex/container/Himetric.h"

#include <KOVAVSFDataGrid>

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

OleObject::OleObject(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP OleObject::SetClientSite(IOleClientSite *site)
{
    if (site != m_site.Get())
        m_control.inPlace().deactivate(); // its window belongs to the old site
    m_site = site;
    if (site)
        m_control.oleControl().readAmbients();
    return S_OK;
}

STDMETHODIMP OleObject::GetClientSite(IOleClientSite **site)
{
    if (!site)
        return E_POINTER;
    return m_site.CopyTo(site);
}

STDMETHODIMP OleObject::SetHostNames(LPCOLESTR, LPCOLESTR)
{
    return S_OK;
}

STDMETHODIMP OleObject::Close(DWORD saveOption)
{
    m_control.inPlace().deactivate();
    if (m_site && saveOption != OLECLOSE_NOSAVE && m_control.persistence().IsDirty() == S_OK)
        m_site->SaveObject();
    if (IOleAdviseHolder *advises = m_advises.get())
        advises->SendOnClose();
    return S_OK;
}

STDMETHODIMP OleObject::SetMoniker(DWORD, IMoniker *)
{
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::GetMoniker(DWORD, DWORD, IMoniker **moniker)
{
    if (moniker)
        *moniker = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::InitFromData(IDataObject *, BOOL, DWORD)
{
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::GetClipboardData(DWORD, IDataObject **data)
{
    if (data)
        *data = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::DoVerb(LONG verb, LPMSG, IOleClientSite *, LONG, HWND parent, LPCRECT)
{
    switch (verb) {
    case editVerb:
    case OLEIVERB_SHOW:
    case OLEIVERB_OPEN: // it has no window of its own
    case OLEIVERB_UIACTIVATE:
        return m_control.inPlace().activate(InPlace::WithUi);
    case OLEIVERB_INPLACEACTIVATE:
        return m_control.inPlace().activate(InPlace::WithoutUi);
    case OLEIVERB_HIDE:
        m_control.inPlace().deactivate();
        return S_OK;
    case OLEIVERB_DISCARDUNDOSTATE:
        return S_OK; // it keeps none
    case propertiesVerb:
    case OLEIVERB_PROPERTIES:
        return showPropertyPages(parent);
    default:
        return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
    }
}

STDMETHODIMP OleObject::EnumVerbs(IEnumOLEVERB **verbs)
{
    if (verbs)
        *verbs = nullptr;
    return OLE_S_USEREG;
}

STDMETHODIMP OleObject::Update()
{
    return S_OK;
}

STDMETHODIMP OleObject::IsUpToDate()
{
    return S_OK;
}

STDMETHODIMP OleObject::GetUserClassID(CLSID *id)
{
    return m_control.persistence().GetClassID(id);
}

STDMETHODIMP OleObject::GetUserType(DWORD form, LPOLESTR *name)
{
    return OleRegGetUserType(controlId, form, name);
}

STDMETHODIMP OleObject::SetExtent(DWORD aspect, SIZEL *size)
{
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!size)
        return E_POINTER;
    // While active in place, the container's rectangle decides.
    if (!m_control.inPlace().isActive())
        m_control.grid().resize(fromHimetric(*size, m_control.grid()));
    m_control.view().viewChanged();
    return S_OK;
}

STDMETHODIMP OleObject::GetExtent(DWORD aspect, SIZEL *size)
{
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!size)
        return E_POINTER;
    *size = toHimetric(m_control.grid().size(), m_control.grid());
    return S_OK;
}

STDMETHODIMP OleObject::Advise(IAdviseSink *sink, DWORD *connection)
{
    return m_advises.advise(sink, connection);
}

STDMETHODIMP OleObject::Unadvise(DWORD connection)
{
    return m_advises.unadvise(connection);
}

STDMETHODIMP OleObject::EnumAdvise(IEnumSTATDATA **advises)
{
    return m_advises.enumerate(advises);
}

STDMETHODIMP OleObject::GetMiscStatus(DWORD, DWORD *status)
{
    if (!status)
        return E_POINTER;
    *status = miscStatus;
    return S_OK;
}

STDMETHODIMP OleObject::SetColorScheme(LOGPALETTE *)
{
    return E_NOTIMPL;
}

HRESULT OleObject::showPropertyPages(HWND parent)
{
    // A container with its own property pages shows ours together with them.
    ComPtr<IOleControlSite> controlSite;
    if (m_site && SUCCEEDED(m_site.As(&controlSite)) && SUCCEEDED(controlSite->ShowPropertyFrame()))
        return S_OK;

    ComPtr<ISpecifyPropertyPages> specify;
    CAUUID pages{};
    HRESULT outcome = m_control.identity().QueryInterface(IID_PPV_ARGS(&specify));
    if (SUCCEEDED(outcome))
        outcome = specify->GetPages(&pages);
    if (FAILED(outcome))
        return outcome;
    IUnknown *object = &m_control.identity();
    outcome = OleCreatePropertyFrame(parent, 0, 0, L"KOVAVSFDataGrid", 1, &object, pages.cElems, pages.pElems,
                                     LOCALE_USER_DEFAULT, 0, nullptr);
    CoTaskMemFree(pages.pElems);
    return outcome;
}

Running::Running(GridControl &control) : Part(control.identity()) {}

STDMETHODIMP Running::GetRunningClass(CLSID *id)
{
    if (!id)
        return E_POINTER;
    *id = controlId;
    return S_OK;
}

STDMETHODIMP Running::Run(IBindCtx *)
{
    return S_OK;
}

STDMETHODIMP_(WINBOOL) Running::IsRunning()
{
    return TRUE;
}

STDMETHODIMP Running::LockRunning(WINBOOL, WINBOOL)
{
    return S_OK;
}

STDMETHODIMP Running::SetContainedObject(WINBOOL)
{
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
