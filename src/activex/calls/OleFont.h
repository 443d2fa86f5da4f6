#pragma once

#include <oaidl.h>

class QFont;

namespace KOVAVSFDataGridLib::ActiveX {

// A new font object (IFontDisp) for a client.
HRESULT fontObject(const QFont &font, IDispatch **object);
// The font that a client's font object describes. Null, or something else than a font, is
// DISP_E_TYPEMISMATCH.
HRESULT fontFromObject(IUnknown *object, QFont *font);

} // namespace KOVAVSFDataGridLib::ActiveX
