#pragma once

#include <QtCore/QVariant>

#include <oaidl.h>
#include <ocidl.h>
#include <optional>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// The ambient properties of a container: what it says of the form around the control.
class Ambients
{
public:
    // Null for a control without a container.
    explicit Ambients(IOleClientSite *site);

    // Whether there is anybody to ask.
    bool areKnown() const { return m_properties; }

    // Empty if the container does not have the property.
    template<class Value>
    std::optional<Value> value(DISPID id) const
    {
        const QVariant found = read(id, QMetaType::fromType<Value>());
        return found.isValid() ? std::optional(found.value<Value>()) : std::nullopt;
    }

private:
    QVariant read(DISPID id, QMetaType type) const;

    Microsoft::WRL::ComPtr<IDispatch> m_properties;
};

} // namespace KOVAVSFDataGridLib::ActiveX
