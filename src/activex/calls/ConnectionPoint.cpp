#include "activex/calls/ConnectionPoint.h"

#include "activex/calls/Enumeration.h"

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

struct Connection
{
    DWORD cookie;
    ComPtr<IUnknown> sink;

    static CONNECTDATA copy(const Connection &connection)
    {
        connection.sink->AddRef();
        return {connection.sink.Get(), connection.cookie};
    }
};

using Connections = Enumeration<IEnumConnections, CONNECTDATA, Connection, Connection>;

} // namespace

ConnectionPoint::ConnectionPoint(REFIID outgoing, IConnectionPointContainer &container)
    : m_outgoing(outgoing), m_container(container)
{
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void **object)
{
    if (!object)
        return E_POINTER;
    // A separate object, whose lifetime is that of the container.
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IConnectionPoint)
        return E_NOINTERFACE;
    *object = static_cast<IConnectionPoint *>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID *iid)
{
    if (!iid)
        return E_POINTER;
    *iid = m_outgoing;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer **container)
{
    if (!container)
        return E_POINTER;
    m_container.AddRef();
    *container = &m_container;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown *sink, DWORD *cookie)
{
    if (!sink || !cookie)
        return E_POINTER;
    *cookie = 0;
    ComPtr<IUnknown> listener;
    const auto ask = [&](REFIID iid) {
        return SUCCEEDED(sink->QueryInterface(iid, reinterpret_cast<void **>(listener.GetAddressOf())));
    };
    // A listener to events may implement them through IDispatch only.
    if (!ask(m_outgoing) && (m_outgoing == IID_IPropertyNotifySink || !ask(IID_IDispatch)))
        return CONNECT_E_CANNOTCONNECT;
    *cookie = ++m_lastCookie;
    m_sinks[*cookie] = listener; // ComPtr::Attach adds one reference too many in mingw-w64
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie)
{
    return m_sinks.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections **connections)
{
    if (!connections)
        return E_POINTER;
    std::vector<Connection> copied;
    for (const auto &[cookie, sink] : m_sinks)
        copied.push_back({cookie, sink});
    *connections = new Connections(std::move(copied));
    return S_OK;
}

std::vector<ComPtr<IUnknown>> ConnectionPoint::sinks() const
{
    std::vector<ComPtr<IUnknown>> copied;
    for (const auto &[cookie, sink] : m_sinks)
        copied.push_back(sink);
    return copied;
}

} // namespace KOVAVSFDataGridLib::ActiveX
