#include "activex/container/ViewObject.h"

#include "activex/GridControl.h"

#include <KOVAVSFDataGrid>

#include <QtGui/QImage>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

// The size of the rectangle in device dots: a printer's page often uses other units.
SIZE dotsIn(const RECTL &bounds, HDC context)
{
    std::array<POINT, 2> corners{{{bounds.left, bounds.top}, {bounds.right, bounds.bottom}}};
    LPtoDP(context, corners.data(), static_cast<int>(corners.size()));
    return {std::abs(corners[1].x - corners[0].x), std::abs(corners[1].y - corners[0].y)};
}

// Paints at the device's resolution, so that texts and lines are sharp in print. To save memory, at most 6
// times the screen's resolution is used.
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

} // namespace

ViewObject::ViewObject(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP ViewObject::Draw(DWORD aspect, LONG, void *, DVTARGETDEVICE *, HDC, HDC context, LPCRECTL bounds,
                              LPCRECTL, BOOL(CALLBACK *)(ULONG_PTR), ULONG_PTR)
{
    if (aspect != DVASPECT_CONTENT && aspect != DVASPECT_DOCPRINT)
        return DV_E_DVASPECT;
    if (!context || !bounds)
        return E_INVALIDARG;
    const QImage picture = painted(m_control.grid(), dotsIn(*bounds, context));

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width();
    info.bmiHeader.biHeight = -picture.height(); // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    SetStretchBltMode(context, HALFTONE);
    const int lines = StretchDIBits(context, bounds->left, bounds->top, bounds->right - bounds->left,
                                    bounds->bottom - bounds->top, 0, 0, picture.width(), picture.height(),
                                    picture.constBits(), &info, DIB_RGB_COLORS, SRCCOPY);
    return lines > 0 || picture.isNull() ? S_OK : E_FAIL;
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

void ViewObject::viewChanged()
{
    if (!m_sink)
        return;
    const Microsoft::WRL::ComPtr<IAdviseSink> sink = m_sink;
    if (m_flags & ADVF_ONLYONCE)
        m_sink.Reset();
    sink->OnViewChange(m_aspects, -1);
}

} // namespace KOVAVSFDataGridLib::ActiveX
