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

// … its property pages…
class PropertyPageList final : public Part<ISpecifyPropertyPages>
{
public:
    explicit PropertyPageList(GridControl &control);
    STDMETHODIMP GetPages(CAUUID *pages) override;
};

// … which of them shows a property, and which values a property has.
class PropertyTexts final : public Part<IPerPropertyBrowsing>
{
public:
    explicit PropertyTexts(GridControl &control);
    STDMETHODIMP GetDisplayString(DISPID id, BSTR *text) override;
    STDMETHODIMP MapPropertyToPage(DISPID id, CLSID *page) override;
    STDMETHODIMP GetPredefinedStrings(DISPID id, CALPOLESTR *texts, CADWORD *cookies) override;
    STDMETHODIMP GetPredefinedValue(DISPID id, DWORD cookie, VARIANT *value) override;

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
