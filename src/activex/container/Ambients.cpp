#include "activex/container/Ambients.h"

#include "activex/calls/Variants.h"

namespace KOVAVSFDataGridLib::ActiveX {

Ambients::Ambients(IOleClientSite *site)
{
    if (site)
        site->QueryInterface(IID_PPV_ARGS(&m_properties));
}

QVariant Ambients::read(DISPID id, QMetaType type) const
{
    if (!m_properties)
        return {};
    DISPPARAMS none{};
    Variant given;
    QVariant value;
    if (FAILED(m_properties->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                    given.get(), nullptr, nullptr)) ||
        given->vt == VT_EMPTY || FAILED(toQt(*given, type, &value)))
        return {};
    return value;
}

} // namespace KOVAVSFDataGridLib::ActiveX
