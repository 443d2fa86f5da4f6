#include "activex/server/ClassFactory.h"

#include "activex/GridControl.h"
#include "activex/container/OlePropertyPage.h"
#include "activex/server/Guids.h"
#include "activex/server/QtRuntime.h"
#include "activex/server/TypeLibrary.h"

#include <QtCore/QDebug>

#include <exception>
#include <new>

namespace KOVAVSFDataGridLib::ActiveX {

ClassFactory::Create ClassFactory::creatorOf(REFCLSID id)
{
    return id == controlId ? &GridControl::create : OlePropertyPage::creatorOf(id);
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown *outer, REFIID iid, void **object)
try {
    if (!object)
        return E_POINTER;
    *object = nullptr;
    // An aggregating object must hold the inner IUnknown.
    if (outer && iid != IID_IUnknown)
        return CLASS_E_NOAGGREGATION;
    const HRESULT started = startQt();
    return FAILED(started) ? started : m_create(outer, iid, object);
} catch (const std::bad_alloc &) {
    return E_OUTOFMEMORY;
} catch (const std::exception &error) {
    qWarning("The object could not be made: %s", error.what());
    return E_UNEXPECTED;
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock)
{
    ModuleUse::lock(lock != FALSE);
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
