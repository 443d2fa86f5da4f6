#pragma once

#include "activex/server/ComObject.h"

namespace KOVAVSFDataGridLib::ActiveX {

// Creates the objects of one class of this server.
class ClassFactory final : public ComObject<IClassFactory>
{
public:
    // Creates an object with one reference, owned by the caller, to the requested interface.
    using Create = HRESULT (*)(IUnknown *outer, REFIID iid, void **object);

    explicit ClassFactory(Create create) : m_create(create) {}
    // The function for a class; null if this server has no such class.
    static Create creatorOf(REFCLSID id);

    STDMETHODIMP CreateInstance(IUnknown *outer, REFIID iid, void **object) override;
    STDMETHODIMP LockServer(BOOL lock) override;

private:
    const Create m_create;
};

} // namespace KOVAVSFDataGridLib::ActiveX
