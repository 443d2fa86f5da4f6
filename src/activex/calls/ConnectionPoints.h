#pragma once

#include "activex/calls/ConnectionPoint.h"
#include "activex/calls/EventSource.h"
#include "activex/server/ComObject.h"

#include <memory>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// The control's two outgoing interfaces: its events and the notifications of property changes.
class ConnectionPoints final : public Part<IConnectionPointContainer>
{
public:
    explicit ConnectionPoints(GridControl &control);

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints **points) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint **point) override;

    EventSource &events() { return *m_source; }
    // Stops notifying the listeners.
    void end();

private:
    void notifyChanged(const QString &property);

    GridControl &m_control;
    ConnectionPoint m_events;
    ConnectionPoint m_properties;
    std::unique_ptr<EventSource> m_source;
};

} // namespace KOVAVSFDataGridLib::ActiveX
