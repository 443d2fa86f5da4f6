#include "activex/server/ClassInfo.h"

#include "activex/GridControl.h"
#include "activex/server/Guids.h"
#include "activex/server/TypeLibrary.h"

#include <algorithm>
#include <iterator>

namespace KOVAVSFDataGridLib::ActiveX {

ClassInfo::ClassInfo(GridControl &control) : Part(control.identity()) {}

STDMETHODIMP ClassInfo::GetClassInfo(ITypeInfo **info)
{
    if (!info)
        return E_POINTER;
    return typeInfo(controlId).CopyTo(info);
}

STDMETHODIMP ClassInfo::GetGUID(DWORD kind, GUID *id)
{
    if (!id)
        return E_POINTER;
    *id = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    *id = eventsId;
    return S_OK;
}

PropertyPageList::PropertyPageList(GridControl &control) : Part(control.identity()) {}

STDMETHODIMP PropertyPageList::GetPages(CAUUID *pages)
{
    if (!pages)
        return E_POINTER;
    constexpr std::size_t count = std::size(pageClasses);
    pages->cElems = 0;
    pages->pElems = static_cast<GUID *>(CoTaskMemAlloc(count * sizeof(GUID)));
    if (!pages->pElems)
        return E_OUTOFMEMORY;
    std::ranges::transform(pageClasses, pages->pElems, &PageClass::id);
    pages->cElems = static_cast<ULONG>(count);
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
