#include "activex/server/ClassInfo.h"

#include "activex/GridControl.h"
#include "activex/server/Guids.h"
#include "activex/server/TypeLibrary.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <olectl.h>
#include <utility>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

constexpr const wchar_t *languages[] = {L"zh-CN", L"en"};

} // namespace

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

PropertyTexts::PropertyTexts(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP PropertyTexts::GetDisplayString(DISPID, BSTR *text)
{
    if (!text)
        return E_POINTER;
    *text = nullptr;
    return S_FALSE; // the value itself
}

STDMETHODIMP PropertyTexts::MapPropertyToPage(DISPID id, CLSID *page)
{
    if (!page)
        return E_POINTER;
    for (const PageClass &known : pageClasses) {
        if (m_control.dispatch().idOf(QString::fromWCharArray(known.property)) == id) {
            *page = known.id;
            return S_OK;
        }
    }
    *page = CLSID_NULL;
    return PERPROP_E_NOPAGEAVAILABLE;
}

// A cookie is the index in this list. Containers read the enumerations from the type library.
STDMETHODIMP PropertyTexts::GetPredefinedStrings(DISPID id, CALPOLESTR *texts, CADWORD *cookies)
{
    if (!texts || !cookies)
        return E_POINTER;
    *texts = {};
    *cookies = {};
    if (id != m_control.dispatch().idOf(u"Language"_s))
        return S_FALSE;
    constexpr ULONG count = static_cast<ULONG>(std::size(languages));
    texts->pElems = static_cast<LPOLESTR *>(CoTaskMemAlloc(count * sizeof(LPOLESTR)));
    cookies->pElems = static_cast<DWORD *>(CoTaskMemAlloc(count * sizeof(DWORD)));
    if (!texts->pElems || !cookies->pElems) {
        CoTaskMemFree(std::exchange(texts->pElems, nullptr));
        CoTaskMemFree(std::exchange(cookies->pElems, nullptr));
        return E_OUTOFMEMORY;
    }
    for (ULONG i = 0; i < count; ++i) {
        const std::size_t bytes = (std::wcslen(languages[i]) + 1) * sizeof(wchar_t);
        texts->pElems[i] = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
        if (texts->pElems[i])
            std::memcpy(texts->pElems[i], languages[i], bytes);
        cookies->pElems[i] = i;
    }
    texts->cElems = cookies->cElems = count;
    return S_OK;
}

STDMETHODIMP PropertyTexts::GetPredefinedValue(DISPID id, DWORD cookie, VARIANT *value)
{
    if (!value)
        return E_POINTER;
    VariantInit(value);
    if (id != m_control.dispatch().idOf(u"Language"_s) || cookie >= std::size(languages))
        return E_INVALIDARG;
    value->vt = VT_BSTR;
    value->bstrVal = SysAllocString(languages[cookie]);
    return value->bstrVal ? S_OK : E_OUTOFMEMORY;
}

} // namespace KOVAVSFDataGridLib::ActiveX
