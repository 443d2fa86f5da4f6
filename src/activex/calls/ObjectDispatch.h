#pragma once

#include "activex/calls/ObjectHolder.h"
#include "activex/server/ComObject.h"

#include <QtCore/QPointer>

#include <oaidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

// The dispatch interface of an object that the control returns (a recordset, its fields, the data control),
// for late-bound clients. Does not keep the object alive: after its end, calls fail with RPC_E_DISCONNECTED.
class ObjectDispatch final : public ComObject<IDispatch, ObjectHolder>
{
public:
    // Returns the interface of an object, with a reference for the caller. Null for null.
    static IDispatch *of(QObject *object);

    STDMETHODIMP GetTypeInfoCount(UINT *count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo **info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR *names, UINT count, LCID locale, DISPID *ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS *parameters,
                        VARIANT *result, EXCEPINFO *exception, UINT *badArgument) override;
    QObject *STDMETHODCALLTYPE held() override { return m_object; }

private:
    explicit ObjectDispatch(QObject &object);
    ~ObjectDispatch() override;

    QPointer<QObject> m_object;
    QObject *const m_key;
};

} // namespace KOVAVSFDataGridLib::ActiveX
