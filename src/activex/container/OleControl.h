#pragma once

#include "activex/server/ComObject.h"

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Receives the container's ambient properties. Only
// UserMode is used: False while the form is being designed.
class OleControl final : public Part<IOleControl>
{
public:
    explicit OleControl(GridControl &control);

    STDMETHODIMP GetControlInfo(CONTROLINFO *info) override;
    STDMETHODIMP OnMnemonic(MSG *message) override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
    STDMETHODIMP FreezeEvents(BOOL freeze) override;

    void readAmbients();

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
