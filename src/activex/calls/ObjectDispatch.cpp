#include "activex/calls/ObjectDispatch.h"

#include "activex/calls/Enumeration.h"
#include "activex/calls/MemberTable.h"
#include "activex/calls/MetaCall.h"
#include "activex/calls/Variants.h"

#include <unordered_map>
#include <vector>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;
using namespace Qt::StringLiterals;

namespace {

// Those that clients currently hold, so that one object always has the same COM identity.
std::unordered_map<const QObject *, ObjectDispatch *> &dispatchObjects()
{
    static std::unordered_map<const QObject *, ObjectDispatch *> objects;
    return objects;
}

struct ItemCopy
{
    static VARIANT copy(const ComPtr<IDispatch> &item)
    {
        VARIANT given;
        VariantInit(&given);
        given.vt = VT_DISPATCH;
        item.CopyTo(&given.pdispVal);
        return given;
    }
};

using Items = Enumeration<IEnumVARIANT, VARIANT, ComPtr<IDispatch>, ItemCopy>;

// The items for `For Each`: those of an object with ADO's members Count and Item.
HRESULT enumerate(QObject &collection, VARIANT *result)
{
    const MemberTable &members = MemberTable::of(*collection.metaObject());
    const Member *item = members.member(members.idOf(u"Item"_s));
    const QVariant count = collection.property("Count");
    if (!item || !count.isValid() || !result)
        return DISP_E_MEMBERNOTFOUND;
    std::vector<ComPtr<IDispatch>> items;
    for (qint32 i = 0; i < count.toInt(); ++i) {
        VARIANT index{};
        index.vt = VT_I4;
        index.lVal = i;
        DISPPARAMS arguments{&index, nullptr, 1, 0};
        Variant found;
        const HRESULT outcome =
            metaCall(collection, *item, DISPATCH_METHOD, arguments, found.get(), nullptr, nullptr);
        if (FAILED(outcome))
            return outcome;
        items.emplace_back(found->pdispVal);
    }
    VariantInit(result);
    result->vt = VT_UNKNOWN;
    result->punkVal = new Items(std::move(items));
    return S_OK;
}

} // namespace

IDispatch *ObjectDispatch::of(QObject *object)
{
    if (!object)
        return nullptr;
    const auto known = dispatchObjects().find(object);
    // A new object can have the address of a destroyed one that a client still holds.
    if (known != dispatchObjects().end() && known->second->m_object) {
        known->second->AddRef();
        return known->second;
    }
    return new ObjectDispatch(*object);
}

ObjectDispatch::ObjectDispatch(QObject &object) : m_object(&object), m_key(&object)
{
    dispatchObjects()[m_key] = this;
}

ObjectDispatch::~ObjectDispatch()
{
    const auto known = dispatchObjects().find(m_key);
    if (known != dispatchObjects().end() && known->second == this)
        dispatchObjects().erase(known);
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
    // Named arguments are not supported.
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
    if (id == DISPID_NEWENUM)
        return enumerate(*object, result);
    const Member *member = MemberTable::of(*object->metaObject()).member(id);
    return member ? metaCall(*object, *member, flags, *parameters, result, exception, badArgument)
                  : DISP_E_MEMBERNOTFOUND;
}

} // namespace KOVAVSFDataGridLib::ActiveX
