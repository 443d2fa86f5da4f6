#pragma once

#include "activex/server/ComObject.h"

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Connects a control with its container in one call instead of ten.
class QuickStart final : public Part<IQuickActivate>
{
public:
    explicit QuickStart(GridControl &control);

    STDMETHODIMP QuickActivate(QACONTAINER *container, QACONTROL *control) override;
    STDMETHODIMP SetContentExtent(LPSIZEL size) override;
    STDMETHODIMP GetContentExtent(LPSIZEL size) override;

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
