#include "activex/calls/ConnectionPoints.h"

#include "activex/GridControl.h"
#include "activex/calls/Enumeration.h"
#include "activex/server/TypeLibrary.h"

#include <KOVAVSFDataGrid>

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

struct PointCopy
{
    static IConnectionPoint *copy(const ComPtr<IConnectionPoint> &point)
    {
        point->AddRef();
        return point.Get();
    }
};

using Points = Enumeration<IEnumConnectionPoints, IConnectionPoint *, ComPtr<IConnectionPoint>, PointCopy>;

} // namespace

ConnectionPoints::ConnectionPoints(GridControl &control)
    : Part(control.identity()),
      m_control(control),
      m_events(eventsId, *this),
      m_properties(IID_IPropertyNotifySink, *this),
      m_source(std::make_unique<EventSource>(control.grid(), *typeInfo(eventsId).Get(), m_events))
{
    QObject::connect(&control.grid(), &KOVAVSFDataGrid::PropertyChanged, m_source.get(),
                     [this](const QString &name) { notifyChanged(name); });
}

STDMETHODIMP ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints **points)
{
    if (!points)
        return E_POINTER;
    *points = new Points({&m_events, &m_properties});
    return S_OK;
}

STDMETHODIMP ConnectionPoints::FindConnectionPoint(REFIID iid, IConnectionPoint **point)
{
    if (!point)
        return E_POINTER;
    *point = nullptr;
    // Late-bound clients ask for IDispatch and mean the events.
    if (iid == eventsId || iid == IID_IDispatch)
        *point = &m_events;
    else if (iid == IID_IPropertyNotifySink)
        *point = &m_properties;
    else
        return CONNECT_E_NOCONNECTION;
    (*point)->AddRef();
    return S_OK;
}

void ConnectionPoints::end()
{
    m_source.reset();
    m_events.clear();
    m_properties.clear();
}

void ConnectionPoints::notifyChanged(const QString &property)
{
    const DISPID id = m_control.dispatch().idOf(property);
    m_control.persistence().propertyChanged(property);
    m_control.view().viewChanged();
    // Last: a listener may release the control.
    m_source->notifyAll(m_properties, [id](IUnknown &sink) {
        ComPtr<IPropertyNotifySink> listener;
        if (SUCCEEDED(sink.QueryInterface(IID_PPV_ARGS(&listener))))
            listener->OnChanged(id);
    });
}

} // namespace KOVAVSFDataGridLib::ActiveX
