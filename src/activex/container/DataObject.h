#pragma once

#include "activex/calls/AdviseHolder.h"
#include "activex/server/ComObject.h"

#include <objidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// The control's picture as data, for containers that keep one to show and print while the control is not
// running: a metafile, enhanced or not.
class DataObject final : public Part<IDataObject>
{
public:
    explicit DataObject(GridControl &control);

    STDMETHODIMP GetData(FORMATETC *format, STGMEDIUM *medium) override;
    STDMETHODIMP GetDataHere(FORMATETC *format, STGMEDIUM *medium) override;
    STDMETHODIMP QueryGetData(FORMATETC *format) override;
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC *format, FORMATETC *same) override;
    STDMETHODIMP SetData(FORMATETC *format, STGMEDIUM *medium, WINBOOL release) override;
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC **formats) override;
    STDMETHODIMP DAdvise(FORMATETC *format, DWORD flags, IAdviseSink *sink, DWORD *connection) override;
    STDMETHODIMP DUnadvise(DWORD connection) override;
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA **advises) override;

    // Tells those who asked that their picture is outdated.
    void dataChanged();

private:
    GridControl &m_control;
    AdviseHolder<IDataAdviseHolder> m_advises{CreateDataAdviseHolder};
};

} // namespace KOVAVSFDataGridLib::ActiveX
