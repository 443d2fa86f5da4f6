#include "activex/ObjectDispatch.h"

#include "activex/MemberTable.h"
#include "activex/MetaCall.h"
#include "activex/Variants.h"

#include <unordered_map>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

// Those that clients hold at present, so that one object always has the same COM identity.
std::unordered_map<const QObject *, ObjectDispatch *> &handedOut()
{
    static std::unordered_map<const QObject *, ObjectDispatch *> objects;
    return objects;
}

} // namespace

IDispatch *ObjectDispatch::of(QObject *object)
{
    if (!object)
        return nullptr;
    const auto known = handedOut().find(object);
    // An address can come to a new object while a client still holds the old one's.
    if (known != handedOut().end() && known->second->m_object) {
        known->second->AddRef();
        return known->second;
    }
    return new ObjectDispatch(*object);
}

ObjectDispatch::ObjectDispatch(QObject &object) : m_object(&object), m_key(&object)
{
    handedOut()[m_key] = this;
}

ObjectDispatch::~ObjectDispatch()
{
    const auto known = handedOut().find(m_key);
    if (known != handedOut().end() && known->second == this)
        handedOut().erase(known);
}

STDMETHODIMP ObjectDispatch::GetTypeInfoCount(UINT *count)
{
    if (!count)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP ObjectDispatch::GetTypeInfo(UINT, LCID, ITypeInfo **info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP ObjectDispatch::GetIDsOfNames(REFIID, LPOLESTR *names, UINT count, LCID, DISPID *ids)
{
    if (!names || !ids)
        return E_POINTER;
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    if (!m_object || count == 0)
        return DISP_E_UNKNOWNNAME;
    ids[0] = MemberTable::of(*m_object->metaObject()).idOf(toQString(names[0]));
    // Arguments have no names here.
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

STDMETHODIMP ObjectDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS *parameters,
                                    VARIANT *result, EXCEPINFO *exception, UINT *badArgument)
{
    if (!parameters)
        return E_POINTER;
    QObject *const object = m_object;
    if (!object)
        return objectGone(exception);
    const Member *member = MemberTable::of(*object->metaObject()).member(id);
    return member ? metaCall(*object, *member, flags, *parameters, result, exception, badArgument)
                  : DISP_E_MEMBERNOTFOUND;
}

} // namespace KOVAVSFDataGridLib::ActiveX
