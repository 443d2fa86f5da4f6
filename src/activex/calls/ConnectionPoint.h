#pragma once

#include "activex/server/ComObject.h"

#include <map>
#include <ocidl.h>
#include <vector>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// One outgoing interface of the control and the clients that listen to it. Part of the control: it lives as
// long, and keeps its container only by the container's own reference.
class ConnectionPoint final : public IConnectionPoint
{
public:
    ConnectionPoint(REFIID outgoing, IConnectionPointContainer &container);
    ConnectionPoint(const ConnectionPoint &) = delete;
    ConnectionPoint &operator=(const ConnectionPoint &) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void **object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return m_container.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_container.Release(); }
    STDMETHODIMP GetConnectionInterface(IID *iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer **container) override;
    STDMETHODIMP Advise(IUnknown *sink, DWORD *cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections **connections) override;

    REFIID outgoing() const { return m_outgoing; }
    // Those who listen now; a copy, because a listener may leave while it is notified.
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> sinks() const;
    void clear() { m_sinks.clear(); }

private:
    const IID m_outgoing;
    IConnectionPointContainer &m_container;
    std::map<DWORD, Microsoft::WRL::ComPtr<IUnknown>> m_sinks;
    DWORD m_lastCookie = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
