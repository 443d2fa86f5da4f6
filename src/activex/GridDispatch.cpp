#include "activex/GridDispatch.h"

#include "activex/GridControl.h"
#include "activex/MetaCall.h"
#include "activex/TypeLibrary.h"

#include <KOVAVSFDataGrid>

namespace KOVAVSFDataGridLib::ActiveX {

GridDispatch::GridDispatch(GridControl &control)
    : Part(control.identity()),
      m_control(control),
      m_info(typeInfo(InterfaceId)),
      m_members(KOVAVSFDataGrid::staticMetaObject, *m_info.Get())
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
    // A member can lead to anything, also to the end of the control.
    const Microsoft::WRL::ComPtr<IUnknown> alive(&m_control.identity());
    return metaCall(m_control.grid(), *member, flags, *parameters, result, exception, badArgument);
}

GridHolder::GridHolder(GridControl &control) : Part(control.identity()), m_control(control) {}

QObject *STDMETHODCALLTYPE GridHolder::held()
{
    return &m_control.grid();
}

} // namespace KOVAVSFDataGridLib::ActiveX
