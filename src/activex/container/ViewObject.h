#pragma once

#include "activex/server/ComObject.h"

#include <ocidl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Draws the control when it has no window: on a form being designed, and in print.
class ViewObject final : public Part<IViewObjectEx>
{
public:
    explicit ViewObject(GridControl &control);

    STDMETHODIMP Draw(DWORD aspect, LONG index, void *aspectInfo, DVTARGETDEVICE *target, HDC targetContext,
                      HDC context, LPCRECTL bounds, LPCRECTL windowBounds,
                      BOOL(CALLBACK *shouldContinue)(ULONG_PTR), ULONG_PTR continueArgument) override;
    STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void *aspectInfo, DVTARGETDEVICE *target,
                             HDC targetContext, LOGPALETTE **colours) override;
    STDMETHODIMP Freeze(DWORD aspect, LONG index, void *aspectInfo, DWORD *key) override;
    STDMETHODIMP Unfreeze(DWORD key) override;
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink *sink) override;
    STDMETHODIMP GetAdvise(DWORD *aspects, DWORD *flags, IAdviseSink **sink) override;
    STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE *target, LPSIZEL size) override;

    STDMETHODIMP GetRect(DWORD aspect, LPRECTL rectangle) override;
    STDMETHODIMP GetViewStatus(DWORD *status) override;
    STDMETHODIMP QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG closeHint,
                               DWORD *hit) override;
    STDMETHODIMP QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rectangle, LONG closeHint,
                              DWORD *hit) override;
    STDMETHODIMP GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE *target, HDC targetContext,
                                  DVEXTENTINFO *info, LPSIZEL size) override;

    // It is opaque.
    static constexpr DWORD viewStatus = VIEWSTATUS_OPAQUE;

    // Draws with about so many dots, whatever the context has. To save memory, at most 6 times the screen's
    // resolution is used.
    HRESULT draw(HDC context, const RECTL &bounds, SIZE dots);

    // Tells the container that its picture of the control is outdated.
    void viewChanged();

private:
    GridControl &m_control;
    Microsoft::WRL::ComPtr<IAdviseSink> m_sink;
    DWORD m_aspects = 0;
    DWORD m_flags = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
