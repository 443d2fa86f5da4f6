#include "activex/container/ViewObject.h"

#include "activex/GridControl.h"

#include <KOVAVSFDataGrid>

#include <QtGui/QImage>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

// The size of the rectangle in device dots: a printer's page often uses other units.
SIZE dotsIn(const RECTL &bounds, HDC context)
{
    std::array<POINT, 2> corners{{{bounds.left, bounds.top}, {bounds.right, bounds.bottom}}};
    LPtoDP(context, corners.data(), static_cast<int>(corners.size()));
    return {std::abs(corners[1].x - corners[0].x), std::abs(corners[1].y - corners[0].y)};
}

// Paints at the device's resolution, so that texts and lines are sharp in print.
QImage painted(KOVAVSFDataGrid &grid, SIZE dots)
{
    constexpr qreal most = 6;
    const QSizeF size = grid.size();
    const qreal wanted = size.isEmpty() ? 1 : std::max(dots.cx / size.width(), dots.cy / size.height());
    const qreal scale = std::clamp(wanted, 1.0, most);
    QImage picture((size * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    grid.render(&picture);
    return picture;
}

BITMAPINFO formatOf(const QImage &picture, WORD bits)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width();
    info.bmiHeader.biHeight = picture.height(); // bottom row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

bool drawDirectly(HDC context, const RECTL &bounds, const QImage &picture)
{
    BITMAPINFO info = formatOf(picture, 32);
    info.bmiHeader.biHeight *= -1; // top row first
    SetStretchBltMode(context, HALFTONE);
    return StretchDIBits(context, bounds.left, bounds.top, bounds.right - bounds.left,
                         bounds.bottom - bounds.top, 0, 0, picture.width(), picture.height(),
                         picture.constBits(), &info, DIB_RGB_COLORS, SRCCOPY) > 0;
}

// Metafiles of the old kind know bitmaps of 24 bits, and Wine plays only those that come from a bitmap.
bool drawInMetafile(HDC context, const RECTL &bounds, const QImage &picture)
{
    const QImage flipped = picture.convertToFormat(QImage::Format_BGR888).mirrored();
    const BITMAPINFO info = formatOf(flipped, 24);
    void *bits = nullptr;
    const HDC memory = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    bool isDrawn = false;
    if (bitmap) {
        std::memcpy(bits, flipped.constBits(), static_cast<std::size_t>(flipped.sizeInBytes()));
        const HGDIOBJ before = SelectObject(memory, bitmap);
        isDrawn =
            StretchBlt(context, bounds.left, bounds.top, bounds.right - bounds.left,
                       bounds.bottom - bounds.top, memory, 0, 0, flipped.width(), flipped.height(), SRCCOPY);
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    return isDrawn;
}

} // namespace

ViewObject::ViewObject(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP ViewObject::Draw(DWORD aspect, LONG, void *, DVTARGETDEVICE *, HDC, HDC context, LPCRECTL bounds,
                              LPCRECTL, BOOL(CALLBACK *)(ULONG_PTR), ULONG_PTR)
{
    if (aspect != DVASPECT_CONTENT && aspect != DVASPECT_DOCPRINT)
        return DV_E_DVASPECT;
    if (!context || !bounds)
        return E_INVALIDARG;
    return draw(context, *bounds, dotsIn(*bounds, context));
}

HRESULT ViewObject::draw(HDC context, const RECTL &bounds, SIZE dots)
{
    const QImage picture = painted(m_control.grid(), dots);
    const bool isDrawn = GetObjectType(context) == OBJ_METADC ? drawInMetafile(context, bounds, picture)
                                                              : drawDirectly(context, bounds, picture);
    return isDrawn || picture.isNull() ? S_OK : E_FAIL;
}

STDMETHODIMP ViewObject::GetColorSet(DWORD, LONG, void *, DVTARGETDEVICE *, HDC, LOGPALETTE **colours)
{
    if (colours)
        *colours = nullptr;
    return S_FALSE;
}

STDMETHODIMP ViewObject::Freeze(DWORD, LONG, void *, DWORD *)
{
    return E_NOTIMPL;
}

STDMETHODIMP ViewObject::Unfreeze(DWORD)
{
    return E_NOTIMPL;
}

STDMETHODIMP ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink *sink)
{
    m_aspects = aspects;
    m_flags = flags;
    m_sink = sink;
    if (flags & ADVF_PRIMEFIRST)
        viewChanged();
    return S_OK;
}

STDMETHODIMP ViewObject::GetAdvise(DWORD *aspects, DWORD *flags, IAdviseSink **sink)
{
    if (aspects)
        *aspects = m_aspects;
    if (flags)
        *flags = m_flags;
    return sink ? m_sink.CopyTo(sink) : S_OK;
}

STDMETHODIMP ViewObject::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE *, LPSIZEL size)
{
    return m_control.oleObject().GetExtent(aspect, size);
}

STDMETHODIMP ViewObject::GetRect(DWORD aspect, LPRECTL rectangle)
{
    if (!rectangle)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT && aspect != DVASPECT_OPAQUE)
        return DV_E_DVASPECT;
    SIZEL size{};
    const HRESULT outcome = GetExtent(DVASPECT_CONTENT, -1, nullptr, &size);
    *rectangle = {0, 0, size.cx, size.cy};
    return outcome;
}

STDMETHODIMP ViewObject::GetViewStatus(DWORD *status)
{
    if (!status)
        return E_POINTER;
    *status = viewStatus;
    return S_OK;
}

STDMETHODIMP ViewObject::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG, DWORD *hit)
{
    if (!bounds || !hit)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    *hit = PtInRect(bounds, point) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    return S_OK;
}

STDMETHODIMP ViewObject::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rectangle, LONG, DWORD *hit)
{
    if (!bounds || !rectangle || !hit)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    RECT common{};
    *hit = IntersectRect(&common, bounds, rectangle) ? HITRESULT_HIT : HITRESULT_OUTSIDE;
    return S_OK;
}

// A grid looks right at any size.
STDMETHODIMP ViewObject::GetNaturalExtent(DWORD, LONG, DVTARGETDEVICE *, HDC, DVEXTENTINFO *, LPSIZEL)
{
    return E_NOTIMPL;
}

void ViewObject::viewChanged()
{
    m_control.data().dataChanged();
    if (!m_sink)
        return;
    const Microsoft::WRL::ComPtr<IAdviseSink> sink = m_sink;
    if (m_flags & ADVF_ONLYONCE)
        m_sink.Reset();
    sink->OnViewChange(m_aspects, -1);
}

} // namespace KOVAVSFDataGridLib::ActiveX
