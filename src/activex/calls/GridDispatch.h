#pragma once

#include "activex/calls/LiveFont.h"
#include "activex/calls/MemberTable.h"
#include "activex/calls/ObjectHolder.h"
#include "activex/server/ComObject.h"
#include "activex/server/Guids.h"

#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// The dispatch interface, IKOVAVSFDataGrid. Its numbers and argument names are those of the type library; its
// behaviour is that of the widget's meta-object.
class GridDispatch final : public Part<IDispatch>
{
public:
    explicit GridDispatch(GridControl &control);

    STDMETHODIMP GetTypeInfoCount(UINT *count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo **info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR *names, UINT count, LCID locale, DISPID *ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS *parameters,
                        VARIANT *result, EXCEPINFO *exception, UINT *badArgument) override;

    DISPID idOf(const QString &name) const { return m_members.idOf(name); }

private:
    // The widget's property is the colour shown now; automation's can be a system colour.
    HRESULT backColor(WORD flags, const DISPPARAMS &parameters, VARIANT *result);

    HRESULT dataFont(WORD flags, const DISPPARAMS &parameters, VARIANT *result);

    GridControl &m_control;
    const Microsoft::WRL::ComPtr<ITypeInfo> m_info;
    const MemberTable m_members;
    LiveFont m_dataFont;
};

// Gives this server's own code access to the widget.
class GridHolder final : public Part<ObjectHolder>
{
public:
    explicit GridHolder(GridControl &control);
    QObject *STDMETHODCALLTYPE held() override;

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
