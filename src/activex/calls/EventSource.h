#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>

#include <functional>
#include <oaidl.h>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

class ConnectionPoint;

// Forwards the signals of an object to the listeners of a connection point: each signal that is an event in
// the type library becomes one Invoke. Arguments by reference point to those of the signal, so the control
// continues with the values that a listener writes.
class EventSource : public QObject
{
public:
    EventSource(const QObject &object, ITypeInfo &events, ConnectionPoint &point);

    // While frozen, no events are sent. Calls can be nested.
    void freeze(bool on);
    // Calls `notifyOne` for each listener of a connection point of the same control. The control may have
    // been destroyed when it returns, and this object with it.
    void notifyAll(ConnectionPoint &point, const std::function<void(IUnknown &)> &notifyOne);
    // Whether a listener is currently being notified.
    bool isTelling() const { return m_telling > 0; }

    // Receives all connected signals, so no slots need to be written for them.
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
