#pragma once

#include "activex/server/ComObject.h"

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Receives the container's ambient properties: UserMode (False while the form is being designed), UIDead, the
// form's font, text colour and direction, and its language.
class OleControl final : public Part<IOleControl>
{
public:
    explicit OleControl(GridControl &control);

    STDMETHODIMP GetControlInfo(CONTROLINFO *info) override;
    STDMETHODIMP OnMnemonic(MSG *message) override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
    STDMETHODIMP FreezeEvents(BOOL freeze) override;

    // Takes over one of the ambient properties, or all for DISPID_UNKNOWN.
    void readAmbients(DISPID id = DISPID_UNKNOWN);
    // A new control has the form's background colour.
    void readBackColor();

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
