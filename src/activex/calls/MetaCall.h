#pragma once

#include <oaidl.h>

class QObject;

namespace KOVAVSFDataGridLib::ActiveX {

struct Member;

// Performs IDispatch::Invoke on a member of an object; the arguments and results are those of Invoke. An
// error reported by the object's signal HostError, or an exception, is returned in `exception`.
HRESULT metaCall(QObject &object, const Member &member, WORD flags, DISPPARAMS &parameters, VARIANT *result,
                 EXCEPINFO *exception, UINT *badArgument);

// The error of a call on a destroyed object.
HRESULT objectGone(EXCEPINFO *exception);

} // namespace KOVAVSFDataGridLib::ActiveX
