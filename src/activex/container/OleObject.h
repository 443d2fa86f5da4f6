#pragma once

#include "activex/calls/AdviseHolder.h"
#include "activex/server/ComObject.h"

#include <oleidl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// How a container holds the control: its site, its size, and the verbs that activate it.
class OleObject final : public Part<IOleObject>
{
public:
    explicit OleObject(GridControl &control);

    STDMETHODIMP SetClientSite(IOleClientSite *site) override;
    STDMETHODIMP GetClientSite(IOleClientSite **site) override;
    STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
    STDMETHODIMP Close(DWORD saveOption) override;
    STDMETHODIMP SetMoniker(DWORD which, IMoniker *moniker) override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker **moniker) override;
    STDMETHODIMP InitFromData(IDataObject *data, BOOL creation, DWORD reserved) override;
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject **data) override;
    STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite *site, LONG index, HWND parent,
                        LPCRECT position) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB **verbs) override;
    STDMETHODIMP Update() override;
    STDMETHODIMP IsUpToDate() override;
    STDMETHODIMP GetUserClassID(CLSID *id) override;
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR *name) override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL *size) override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL *size) override;
    STDMETHODIMP Advise(IAdviseSink *sink, DWORD *connection) override;
    STDMETHODIMP Unadvise(DWORD connection) override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA **advises) override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD *status) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE *palette) override;

    // What the control requires of a container; also registered.
    static constexpr DWORD miscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_ACTIVATEWHENVISIBLE |
                                        OLEMISC_INSIDEOUT | OLEMISC_CANTLINKINSIDE |
                                        OLEMISC_SETCLIENTSITEFIRST;

    // The verbs that the registry lists.
    static constexpr LONG editVerb = OLEIVERB_PRIMARY;
    static constexpr LONG propertiesVerb = 1;

    IOleClientSite *site() const { return m_site.Get(); }

private:
    HRESULT showPropertyPages(HWND parent);

    GridControl &m_control;
    Microsoft::WRL::ComPtr<IOleClientSite> m_site;
    AdviseHolder<IOleAdviseHolder> m_advises{CreateOleAdviseHolder};
};

// The control runs from its creation on; containers of documents ask.
class Running final : public Part<IRunnableObject>
{
public:
    explicit Running(GridControl &control);

    STDMETHODIMP GetRunningClass(CLSID *id) override;
    STDMETHODIMP Run(IBindCtx *context) override;
    STDMETHODIMP_(WINBOOL) IsRunning() override;
    STDMETHODIMP LockRunning(WINBOOL lock, WINBOOL lastUnlockCloses) override;
    STDMETHODIMP SetContainedObject(WINBOOL contained) override;
};

} // namespace KOVAVSFDataGridLib::ActiveX
