#pragma once

#include <oaidl.h>

class QFont;

namespace KOVAVSFDataGridLib::ActiveX {

// Creates a font object (IFontDisp) for a client.
HRESULT fontObject(const QFont &font, IDispatch **object);
// The font of a client's font object. Returns
// DISP_E_TYPEMISMATCH for null or anything but a font.
HRESULT fontFromObject(IUnknown *object, QFont *font);

} // namespace KOVAVSFDataGridLib::ActiveX
