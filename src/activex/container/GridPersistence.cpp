#include "activex/container/GridPersistence.h"

#include "activex/GridControl.h"
#include "activex/calls/Variants.h"
#include "control/face/PropertyBag.h"

#include <KOVAVSFDataGrid>

#include <array>
#include <map>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

// Adapts the container's property bag to the control's.
class ContainerBag final : public PropertyBag
{
public:
    ContainerBag(IPropertyBag &bag, IErrorLog *log, bool saveAll) : m_bag(bag), m_log(log), m_saveAll(saveAll)
    {
    }

    QVariant ReadProperty(const QString &name, const QVariant &byDefault) const override
    {
        // A form's file can contain the number as a Visual Basic literal: &H8000000F&.
        for (const VARTYPE wanted : {VT_I4, VT_BSTR}) {
            Variant value;
            value->vt = wanted;
            QVariant number;
            if (FAILED(m_bag.Read(wide(name), value.get(), m_log)))
                continue;
            if (value->vt == VT_BSTR &&
                isHexadecimal(toQString(value->bstrVal ? value->bstrVal : L""), &number))
                return number;
            if (SUCCEEDED(toQt(*value, QMetaType(QMetaType::Int), &number)))
                return number;
        }
        return byDefault;
    }
    void WriteProperty(const QString &name, const QVariant &value, const QVariant &byDefault) override
    {
        if (!m_saveAll && value == byDefault)
            return;
        Variant number;
        number->vt = VT_I4;
        number->lVal = static_cast<LONG>(value.toUInt());
        m_outcome = m_bag.Write(wide(name), number.get());
    }
    HRESULT outcome() const { return m_outcome; }

private:
    static bool isHexadecimal(const QString &text, QVariant *number)
    {
        if (!text.startsWith("&H"_L1, Qt::CaseInsensitive))
            return false;
        bool isNumber = false;
        const QString digits = text.endsWith(u'&') ? text.sliced(2).chopped(1) : text.sliced(2);
        *number = static_cast<qint32>(digits.toUInt(&isNumber, 16));
        return isNumber;
    }
    static LPCOLESTR wide(const QString &text) { return reinterpret_cast<const OLECHAR *>(text.utf16()); }

    IPropertyBag &m_bag;
    IErrorLog *m_log;
    bool m_saveAll;
    HRESULT m_outcome = S_OK;
};

// Contains the single value of a stream.
class MemoryBag final : public PropertyBag
{
public:
    QVariant ReadProperty(const QString &name, const QVariant &byDefault) const override
    {
        const auto found = values.find(name);
        return found != values.end() ? found->second : byDefault;
    }
    void WriteProperty(const QString &name, const QVariant &value, const QVariant &) override
    {
        values[name] = value;
    }

    std::map<QString, QVariant> values;
};

// A stream contains this number and then the colour, each as four bytes in little-endian order.
constexpr quint32 streamVersion = 1;
constexpr ULONG streamSize = 8;

} // namespace

StreamPersistence::StreamPersistence(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP StreamPersistence::GetClassID(CLSID *id)
{
    if (!id)
        return E_POINTER;
    *id = controlId;
    return S_OK;
}

STDMETHODIMP StreamPersistence::IsDirty()
{
    return m_dirty ? S_OK : S_FALSE;
}

STDMETHODIMP StreamPersistence::Load(IStream *stream)
{
    if (!stream)
        return E_POINTER;
    std::array<quint32, 2> content{};
    ULONG read = 0;
    const HRESULT outcome = stream->Read(content.data(), streamSize, &read);
    if (FAILED(outcome))
        return outcome;
    if (read != streamSize || content[0] != streamVersion)
        return STG_E_READFAULT;
    putBackColor(content[1]);
    m_dirty = false;
    return S_OK;
}

STDMETHODIMP StreamPersistence::Save(IStream *stream, BOOL clearDirty)
{
    if (!stream)
        return E_POINTER;
    const std::array<quint32, 2> content{streamVersion, backColor()};
    ULONG written = 0;
    const HRESULT outcome = stream->Write(content.data(), streamSize, &written);
    if (FAILED(outcome))
        return outcome;
    if (written != streamSize)
        return STG_E_WRITEFAULT;
    if (clearDirty)
        m_dirty = false;
    return S_OK;
}

STDMETHODIMP StreamPersistence::GetSizeMax(ULARGE_INTEGER *size)
{
    if (!size)
        return E_POINTER;
    size->QuadPart = streamSize;
    return S_OK;
}

STDMETHODIMP StreamPersistence::InitNew()
{
    m_control.grid().InitProperties();
    m_control.oleControl().readBackColor();
    m_dirty = false;
    return S_OK;
}

quint32 StreamPersistence::backColor() const
{
    MemoryBag bag;
    m_control.grid().WriteProperties(bag);
    return bag.values[u"BackColor"_s].toUInt();
}

void StreamPersistence::putBackColor(quint32 number)
{
    MemoryBag bag;
    bag.values[u"BackColor"_s] = number;
    m_control.grid().ReadProperties(bag);
}

void StreamPersistence::propertyChanged(const QString &name)
{
    m_dirty = m_dirty || name == u"BackColor";
}

BagPersistence::BagPersistence(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP BagPersistence::GetClassID(CLSID *id)
{
    return m_control.persistence().GetClassID(id);
}

STDMETHODIMP BagPersistence::InitNew()
{
    return m_control.persistence().InitNew();
}

STDMETHODIMP BagPersistence::Load(IPropertyBag *bag, IErrorLog *log)
{
    if (!bag)
        return E_POINTER;
    m_control.grid().ReadProperties(ContainerBag(*bag, log, false));
    m_control.persistence().saved();
    return S_OK;
}

STDMETHODIMP BagPersistence::Save(IPropertyBag *bag, BOOL clearDirty, BOOL saveAll)
{
    if (!bag)
        return E_POINTER;
    ContainerBag target(*bag, nullptr, saveAll != FALSE);
    m_control.grid().WriteProperties(target);
    if (SUCCEEDED(target.outcome()) && clearDirty)
        m_control.persistence().saved();
    return target.outcome();
}

} // namespace KOVAVSFDataGridLib::ActiveX
