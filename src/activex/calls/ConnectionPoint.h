#pragma once

#include "activex/server/ComObject.h"

#include <map>
#include <ocidl.h>
#include <vector>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// One outgoing interface of the control, with its listeners. Part of the control: it has the same lifetime,
// and holds its container only through the container's own references.
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
    // The current listeners. A copy, because a listener may disconnect while it is notified.
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> sinks() const;
    void clear() { m_sinks.clear(); }

private:
    const IID m_outgoing;
    IConnectionPointContainer &m_container;
    std::map<DWORD, Microsoft::WRL::ComPtr<IUnknown>> m_sinks;
    DWORD m_lastCookie = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
