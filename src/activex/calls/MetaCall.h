#pragma once

#include <oaidl.h>

class QObject;

namespace KOVAVSFDataGridLib::ActiveX {

struct Member;

// Carries out one IDispatch::Invoke on a member of an object, with Invoke's own meaning of the arguments and
// results. What the object tells through its signal HostError, and every exception, becomes `exception`.
HRESULT metaCall(QObject &object, const Member &member, WORD flags, DISPPARAMS &parameters, VARIANT *result,
                 EXCEPINFO *exception, UINT *badArgument);

// The failure of a call on an object that is gone.
HRESULT objectGone(EXCEPINFO *exception);

} // namespace KOVAVSFDataGridLib::ActiveX
