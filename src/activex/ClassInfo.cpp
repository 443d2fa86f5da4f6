#include "activex/ClassInfo.h"

#include "activex/GridControl.h"
#include "activex/Guids.h"
#include "activex/TypeLibrary.h"

#include <algorithm>
#include <array>

namespace KOVAVSFDataGridLib::ActiveX {

ClassInfo::ClassInfo(GridControl &control) : Part(control.identity()) {}

STDMETHODIMP ClassInfo::GetClassInfo(ITypeInfo **info)
{
    if (!info)
        return E_POINTER;
    return typeInfo(ControlId).CopyTo(info);
}

STDMETHODIMP ClassInfo::GetGUID(DWORD kind, GUID *id)
{
    if (!id)
        return E_POINTER;
    *id = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    *id = EventsId;
    return S_OK;
}

PropertyPageList::PropertyPageList(GridControl &control) : Part(control.identity()) {}

STDMETHODIMP PropertyPageList::GetPages(CAUUID *pages)
{
    if (!pages)
        return E_POINTER;
    constexpr std::array ids{ConnectionStringPageId, RecordSourcePageId, SQLShowPageId, PartDisplayFieldPageId};
    pages->cElems = 0;
    pages->pElems = static_cast<GUID *>(CoTaskMemAlloc(sizeof ids));
    if (!pages->pElems)
        return E_OUTOFMEMORY;
    std::ranges::copy(ids, pages->pElems);
    pages->cElems = static_cast<ULONG>(ids.size());
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
