#pragma once

#include "activex/server/ComObject.h"

#include <ocidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Tells a container about the control: its class in the type library…
class ClassInfo final : public Part<IProvideClassInfo2>
{
public:
    explicit ClassInfo(GridControl &control);
    STDMETHODIMP GetClassInfo(ITypeInfo **info) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID *id) override;
};

// … and its property pages.
class PropertyPageList final : public Part<ISpecifyPropertyPages>
{
public:
    explicit PropertyPageList(GridControl &control);
    STDMETHODIMP GetPages(CAUUID *pages) override;
};

} // namespace KOVAVSFDataGridLib::ActiveX
