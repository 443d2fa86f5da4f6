#pragma once

#include "activex/server/ComObject.h"

#include <objidl.h>

namespace KOVAVSFDataGridLib::ActiveX {

class GridControl;

// Saves the control in a storage of a document: what StreamPersistence writes, in a stream "Contents".
class StoragePersistence final : public Part<IPersistStorage>
{
public:
    explicit StoragePersistence(GridControl &control);

    STDMETHODIMP GetClassID(CLSID *id) override;
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP InitNew(IStorage *storage) override;
    STDMETHODIMP Load(IStorage *storage) override;
    STDMETHODIMP Save(IStorage *storage, WINBOOL isTheLoadedOne) override;
    STDMETHODIMP SaveCompleted(IStorage *storage) override;
    STDMETHODIMP HandsOffStorage() override;

private:
    GridControl &m_control;
};

} // namespace KOVAVSFDataGridLib::ActiveX
