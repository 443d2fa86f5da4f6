#pragma once

#include <unknwn.h>

class QObject;

namespace KOVAVSFDataGridLib::ActiveX {

// Lets this server's own code get the QObject of one of its COM objects: for the property pages, and for
// arguments that are objects. In the same process only.
struct ObjectHolder : public IUnknown
{
    // Null after the object was destroyed.
    virtual QObject *STDMETHODCALLTYPE held() = 0;
};

} // namespace KOVAVSFDataGridLib::ActiveX

#ifdef __MINGW32__
__CRT_UUID_DECL(KOVAVSFDataGridLib::ActiveX::ObjectHolder, 0x9a1b1a53, 0x3f0e, 0x4a57, 0x8c, 0x8e, 0x5f, 0x4f,
                0x4f, 0x3f, 0x0c, 0x11)
#endif
