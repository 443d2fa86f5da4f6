#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>

#include <functional>
#include <oaidl.h>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

class ConnectionPoint;

// Tells the listeners of a connection point about the signals of an object: each signal that the type library
// knows as an event becomes one Invoke. Arguments by reference point at the signal's own, so what a listener
// writes there is what the control goes on with.
class EventSource : public QObject
{
public:
    EventSource(const QObject &object, ITypeInfo &events, ConnectionPoint &point);

    // While frozen nothing is reported; freezes nest.
    void freeze(bool on);
    // Calls `notifyOne` for each listener of a connection point of the same control. The control, and this
    // with it, may be gone when it returns.
    void notifyAll(ConnectionPoint &point, const std::function<void(IUnknown &)> &notifyOne);
    // Whether a listener is being notified at the moment.
    bool isTelling() const { return m_telling > 0; }

    // Receives every connected signal, so no slot has to be written for any of them.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Event
    {
        DISPID id;
        QMetaMethod signal;
    };
    void notify(const Event &event, void **arguments);

    ConnectionPoint &m_point;
    std::vector<Event> m_events;
    int m_frozen = 0;
    int m_telling = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
