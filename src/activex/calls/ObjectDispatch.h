#pragma once

#include "activex/calls/ObjectHolder.h"
#include "activex/server/ComObject.h"

#include <QtCore/QPointer>

#include <oaidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

// An object that the control hands out (a recordset, its fields, the data control), for clients that know
// names only. It does not keep the object: once that is gone, calls fail with RPC_E_DISCONNECTED.
class ObjectDispatch final : public ComObject<IDispatch, ObjectHolder>
{
public:
    // The one of an object, with a reference for the caller. Null for null.
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
