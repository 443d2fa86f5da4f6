#include "activex/container/DataObject.h"

#include "activex/GridControl.h"
#include "activex/calls/Enumeration.h"

#include <KOVAVSFDataGrid>

#include <algorithm>
#include <array>
#include <ole2.h>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

constexpr std::array<FORMATETC, 2> formats{{
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
}};

struct FormatCopy
{
    static FORMATETC copy(const FORMATETC &format) { return format; }
};

using Formats = Enumeration<IEnumFORMATETC, FORMATETC, FORMATETC, FormatCopy>;

// Dots of the picture for each of the screen's, so that it stays sharp in print.
constexpr LONG fineness = 3;

HENHMETAFILE enhancedMetafile(ViewObject &view, SIZEL extent, SIZE pixels)
{
    const RECT frame{0, 0, extent.cx, extent.cy}; // in 0.01 mm, as GDI measures too
    const HDC context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    if (!context)
        return nullptr;
    view.draw(context, {0, 0, pixels.cx, pixels.cy}, {pixels.cx * fineness, pixels.cy * fineness});
    return CloseEnhMetaFile(context);
}

HGLOBAL metafilePicture(ViewObject &view, SIZEL extent, SIZE pixels)
{
    const HDC context = CreateMetaFileW(nullptr);
    if (!context)
        return nullptr;
    SetMapMode(context, MM_ANISOTROPIC);
    SetWindowOrgEx(context, 0, 0, nullptr);
    SetWindowExtEx(context, pixels.cx, pixels.cy, nullptr);
    view.draw(context, {0, 0, pixels.cx, pixels.cy}, {pixels.cx * fineness, pixels.cy * fineness});
    const HMETAFILE file = CloseMetaFile(context);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
    auto *picture = static_cast<METAFILEPICT *>(memory ? GlobalLock(memory) : nullptr);
    if (!picture) {
        DeleteMetaFile(file);
        return nullptr;
    }
    *picture = {MM_ANISOTROPIC, extent.cx, extent.cy, file};
    GlobalUnlock(memory);
    return memory;
}

} // namespace

DataObject::DataObject(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP DataObject::GetData(FORMATETC *format, STGMEDIUM *medium)
{
    if (!medium)
        return E_POINTER;
    const HRESULT possible = QueryGetData(format);
    if (possible != S_OK)
        return possible;
    *medium = {};
    SIZEL extent{};
    m_control.oleObject().GetExtent(DVASPECT_CONTENT, &extent);
    const SIZE pixels{m_control.grid().width(), m_control.grid().height()};
    if (format->cfFormat == CF_ENHMETAFILE) {
        medium->tymed = TYMED_ENHMF;
        medium->hEnhMetaFile = enhancedMetafile(m_control.view(), extent, pixels);
        return medium->hEnhMetaFile ? S_OK : E_OUTOFMEMORY;
    }
    medium->tymed = TYMED_MFPICT;
    medium->hMetaFilePict = metafilePicture(m_control.view(), extent, pixels);
    return medium->hMetaFilePict ? S_OK : E_OUTOFMEMORY;
}

STDMETHODIMP DataObject::GetDataHere(FORMATETC *, STGMEDIUM *)
{
    return E_NOTIMPL;
}

STDMETHODIMP DataObject::QueryGetData(FORMATETC *format)
{
    if (!format)
        return E_POINTER;
    const auto known = std::ranges::find(formats, format->cfFormat, &FORMATETC::cfFormat);
    if (known == formats.end())
        return DV_E_FORMATETC;
    if (!(format->tymed & known->tymed))
        return DV_E_TYMED;
    return format->dwAspect == known->dwAspect ? S_OK : DV_E_DVASPECT;
}

STDMETHODIMP DataObject::GetCanonicalFormatEtc(FORMATETC *format, FORMATETC *same)
{
    if (!format || !same)
        return E_POINTER;
    *same = *format;
    same->ptd = nullptr; // the picture is the same for all devices
    return format->ptd ? S_OK : DATA_S_SAMEFORMATETC;
}

STDMETHODIMP DataObject::SetData(FORMATETC *, STGMEDIUM *, WINBOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC **enumeration)
{
    if (!enumeration)
        return E_POINTER;
    *enumeration = nullptr;
    if (direction != DATADIR_GET)
        return E_NOTIMPL;
    *enumeration = new Formats({formats.begin(), formats.end()});
    return S_OK;
}

STDMETHODIMP DataObject::DAdvise(FORMATETC *format, DWORD flags, IAdviseSink *sink, DWORD *connection)
{
    const HRESULT possible = QueryGetData(format);
    return possible == S_OK ? m_advises.advise(this, format, flags, sink, connection) : possible;
}

STDMETHODIMP DataObject::DUnadvise(DWORD connection)
{
    return m_advises.unadvise(connection);
}

STDMETHODIMP DataObject::EnumDAdvise(IEnumSTATDATA **advises)
{
    return m_advises.enumerate(advises);
}

void DataObject::dataChanged()
{
    if (IDataAdviseHolder *advises = m_advises.get())
        advises->SendOnDataChange(this, 0, 0);
}

} // namespace KOVAVSFDataGridLib::ActiveX
