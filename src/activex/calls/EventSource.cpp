#include "activex/calls/EventSource.h"

#include "activex/calls/ConnectionPoint.h"
#include "activex/calls/Variants.h"

#include <QtCore/QPointer>

#include <algorithm>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

// An argument for a listener: by reference if the signal's argument is a reference.
void putArgument(const QMetaMethod &signal, int index, void *value, VARIANT *argument)
{
    const QByteArray type = signal.parameterTypeName(index);
    if (type == "qint16&") {
        argument->vt = VT_BYREF | VT_I2;
        argument->piVal = static_cast<SHORT *>(value);
    } else if (type == "qint32&") {
        argument->vt = VT_BYREF | VT_I4;
        argument->plVal = static_cast<LONG *>(value);
    } else if (type == "float&") {
        argument->vt = VT_BYREF | VT_R4;
        argument->pfltVal = static_cast<FLOAT *>(value);
    } else {
        fromQt(QVariant(signal.parameterMetaType(index), value), argument);
    }
}

} // namespace

EventSource::EventSource(const QObject &object, ITypeInfo &events, ConnectionPoint &point) : m_point(point)
{
    const QMetaObject &type = *object.metaObject();
    const int firstId = QObject::staticMetaObject.methodCount();
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod signal = type.method(i);
        if (signal.methodType() != QMetaMethod::Signal)
            continue;
        const QString name = QString::fromLatin1(signal.name());
        auto *wide = const_cast<LPOLESTR>(reinterpret_cast<const OLECHAR *>(name.utf16()));
        MEMBERID id = MEMBERID_NIL;
        if (FAILED(events.GetIDsOfNames(&wide, 1, &id)))
            continue;
        QMetaObject::connect(&object, i, this, firstId + static_cast<int>(m_events.size()),
                             Qt::DirectConnection);
        m_events.push_back({id, signal});
    }
}

void EventSource::freeze(bool on)
{
    m_frozen = std::max(0, m_frozen + (on ? 1 : -1));
}

int EventSource::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    if (m_frozen == 0)
        notify(m_events[static_cast<std::size_t>(id)], arguments);
    return -1;
}

void EventSource::notify(const Event &event, void **arguments)
{
    const auto count = static_cast<std::size_t>(event.signal.parameterCount());
    notifyAll(m_point, [&event, arguments, count](IUnknown &sink) {
        ComPtr<IDispatch> listener;
        if (FAILED(sink.QueryInterface(IID_PPV_ARGS(&listener))))
            return;
        // From right to left, as Invoke requires.
        std::vector<Variant> values(count);
        std::vector<VARIANT> passed(count);
        for (std::size_t i = 0; i < count; ++i) {
            putArgument(event.signal, static_cast<int>(i), arguments[i + 1], values[i].get());
            passed[count - 1 - i] = *values[i];
        }
        DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(count), 0};
        // An error in a listener must not affect the control or the other listeners.
        listener->Invoke(event.id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                         nullptr, nullptr);
    });
}

void EventSource::notifyAll(ConnectionPoint &point, const std::function<void(IUnknown &)> &notifyOne)
{
    // A listener may release the control; the others must still be notified.
    ComPtr<IConnectionPoint> alive(&point);
    const QPointer<EventSource> self(this);
    ++m_telling;
    for (const ComPtr<IUnknown> &sink : point.sinks())
        notifyOne(*sink.Get());
    alive.Reset();
    if (self)
        --m_telling;
}

} // namespace KOVAVSFDataGridLib::ActiveX
