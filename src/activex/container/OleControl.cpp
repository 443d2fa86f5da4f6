#include "activex/container/OleControl.h"

#include "activex/GridControl.h"
#include "activex/calls/Variants.h"

#include <KOVAVSFDataGrid>

#include <olectl.h>

namespace KOVAVSFDataGridLib::ActiveX {

OleControl::OleControl(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP OleControl::GetControlInfo(CONTROLINFO *info)
{
    if (!info)
        return E_POINTER;
    *info = {};
    info->cb = sizeof *info;
    return S_OK;
}

STDMETHODIMP OleControl::OnMnemonic(MSG *)
{
    return S_OK;
}

STDMETHODIMP OleControl::OnAmbientPropertyChange(DISPID id)
{
    if (id == DISPID_AMBIENT_USERMODE || id == DISPID_UNKNOWN)
        readAmbients();
    return S_OK;
}

STDMETHODIMP OleControl::FreezeEvents(BOOL freeze)
{
    m_control.connectionPoints().events().freeze(freeze != FALSE);
    return S_OK;
}

void OleControl::readAmbients()
{
    Microsoft::WRL::ComPtr<IDispatch> ambients;
    if (!m_control.oleObject().site() ||
        FAILED(m_control.oleObject().site()->QueryInterface(IID_PPV_ARGS(&ambients))))
        return;
    DISPPARAMS none{};
    Variant value;
    QVariant userMode;
    // A container that does not know the property has no design mode.
    if (FAILED(ambients->Invoke(DISPID_AMBIENT_USERMODE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                &none, value.get(), nullptr, nullptr)) ||
        FAILED(toQt(*value, QMetaType(QMetaType::Bool), &userMode)))
        userMode = true;
    m_control.grid().PutUserMode(userMode.toBool());
}

} // namespace KOVAVSFDataGridLib::ActiveX
