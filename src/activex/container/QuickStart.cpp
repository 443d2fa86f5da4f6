#include "activex/container/QuickStart.h"

#include "activex/GridControl.h"
#include "activex/server/Guids.h"

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

// Returns the connection's number; 0 if there is none.
DWORD advise(IConnectionPointContainer &points, REFIID iid, IUnknown *sink)
{
    Microsoft::WRL::ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
    const bool isConnected =
        sink && SUCCEEDED(points.FindConnectionPoint(iid, &point)) && SUCCEEDED(point->Advise(sink, &cookie));
    return isConnected ? cookie : 0;
}

} // namespace

QuickStart::QuickStart(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP QuickStart::QuickActivate(QACONTAINER *container, QACONTROL *control)
{
    if (!container || !control)
        return E_POINTER;
    if (container->cbSize < sizeof *container || control->cbSize < sizeof *control)
        return E_INVALIDARG;
    // The ambient properties come with the site; containers fill in only some of those in the structure.
    HRESULT outcome = m_control.oleObject().SetClientSite(container->pClientSite);
    if (SUCCEEDED(outcome))
        outcome = m_control.view().SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
    IConnectionPointContainer &points = m_control.connectionPoints();
    control->dwPropNotifyCookie = advise(points, IID_IPropertyNotifySink, container->pPropertyNotifySink);
    control->dwEventCookie = advise(points, eventsId, container->pUnkEventSink);
    control->dwMiscStatus = OleObject::miscStatus;
    control->dwViewStatus = ViewObject::viewStatus;
    control->dwPointerActivationPolicy = 0; // it has a window whenever it is active
    return outcome;
}

STDMETHODIMP QuickStart::SetContentExtent(LPSIZEL size)
{
    return m_control.oleObject().SetExtent(DVASPECT_CONTENT, size);
}

STDMETHODIMP QuickStart::GetContentExtent(LPSIZEL size)
{
    return m_control.oleObject().GetExtent(DVASPECT_CONTENT, size);
}

} // namespace KOVAVSFDataGridLib::ActiveX
