#pragma once

#include "activex/server/ComObject.h"

#include <oleidl.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Draws the control when it has no window: on a form being designed, and in print.
class ViewObject final : public Part<IViewObject2>
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

    // Tells the container that its picture of the control is outdated.
    void viewChanged();

private:
    GridControl &m_control;
    Microsoft::WRL::ComPtr<IAdviseSink> m_sink;
    DWORD m_aspects = 0;
    DWORD m_flags = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX
