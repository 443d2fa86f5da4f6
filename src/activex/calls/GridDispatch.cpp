#include "activex/calls/GridDispatch.h"

#include "activex/GridControl.h"
#include "activex/calls/MetaCall.h"
#include "activex/calls/Variants.h"
#include "activex/server/TypeLibrary.h"

#include <KOVAVSFDataGrid>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

GridDispatch::GridDispatch(GridControl &control)
    : Part(control.identity()),
      m_control(control),
      m_info(typeInfo(interfaceId)),
      m_members(KOVAVSFDataGrid::staticMetaObject, *m_info.Get()),
      m_dataFont(control.grid())
{
}

STDMETHODIMP GridDispatch::GetTypeInfoCount(UINT *count)
{
    if (!count)
        return E_POINTER;
    *count = 1;
    return S_OK;
}

STDMETHODIMP GridDispatch::GetTypeInfo(UINT index, LCID, ITypeInfo **info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    if (index != 0)
        return DISP_E_BADINDEX;
    return m_info.CopyTo(info);
}

STDMETHODIMP GridDispatch::GetIDsOfNames(REFIID, LPOLESTR *names, UINT count, LCID, DISPID *ids)
{
    return m_info->GetIDsOfNames(names, count, ids);
}

STDMETHODIMP GridDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS *parameters,
                                  VARIANT *result, EXCEPINFO *exception, UINT *badArgument)
{
    if (!parameters)
        return E_POINTER;
    const Member *member = m_members.member(id);
    if (!member)
        return DISP_E_MEMBERNOTFOUND;
    // A call can have any effect, including the destruction of the control.
    const Microsoft::WRL::ComPtr<IUnknown> alive(&m_control.identity());
    if (member->name == u"BackColor")
        return backColor(flags, *parameters, result);
    if (member->name == u"DataFont")
        return dataFont(flags, *parameters, result);
    return metaCall(m_control.grid(), *member, flags, *parameters, result, exception, badArgument);
}

HRESULT GridDispatch::backColor(WORD flags, const DISPPARAMS &parameters, VARIANT *result)
{
    const bool isPut = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    if (parameters.cArgs != (isPut ? 1u : 0u))
        return DISP_E_BADPARAMCOUNT;
    if (!isPut)
        return result ? fromQt(static_cast<qint32>(m_control.persistence().backColor()), result) : S_OK;
    QVariant number;
    const HRESULT fits = toQt(parameters.rgvarg[0], QMetaType(QMetaType::LongLong), &number);
    if (FAILED(fits))
        return fits;
    m_control.persistence().putBackColor(static_cast<quint32>(number.toLongLong()));
    Q_EMIT m_control.grid().PropertyChanged(u"BackColor"_s);
    return S_OK;
}

HRESULT GridDispatch::dataFont(WORD flags, const DISPPARAMS &parameters, VARIANT *result)
{
    const bool isPut = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    if (parameters.cArgs != (isPut ? 1u : 0u))
        return DISP_E_BADPARAMCOUNT;
    if (isPut) {
        Variant given;
        const HRESULT copied = VariantCopyInd(given.get(), &parameters.rgvarg[0]);
        if (FAILED(copied))
            return copied;
        const bool isObject = given->vt == VT_DISPATCH || given->vt == VT_UNKNOWN;
        return isObject ? m_dataFont.put(given->punkVal) : DISP_E_TYPEMISMATCH;
    }
    if (!result)
        return S_OK;
    VariantInit(result);
    const HRESULT outcome = m_dataFont.get(&result->pdispVal);
    if (SUCCEEDED(outcome))
        result->vt = VT_DISPATCH;
    return outcome;
}

GridHolder::GridHolder(GridControl &control) : Part(control.identity()), m_control(control) {}

QObject *STDMETHODCALLTYPE GridHolder::held()
{
    return &m_control.grid();
}

} // namespace KOVAVSFDataGridLib::ActiveX
