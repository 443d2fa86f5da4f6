#include "activex/container/StoragePersistence.h"

#include "activex/GridControl.h"

#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

constexpr wchar_t streamName[] = L"Contents";

} // namespace

StoragePersistence::StoragePersistence(GridControl &control) : Part(control.identity()), m_control(control) {}

STDMETHODIMP StoragePersistence::GetClassID(CLSID *id)
{
    return m_control.persistence().GetClassID(id);
}

STDMETHODIMP StoragePersistence::IsDirty()
{
    return m_control.persistence().IsDirty();
}

STDMETHODIMP StoragePersistence::InitNew(IStorage *storage)
{
    return storage ? m_control.persistence().InitNew() : E_POINTER;
}

STDMETHODIMP StoragePersistence::Load(IStorage *storage)
{
    if (!storage)
        return E_POINTER;
    ComPtr<IStream> stream;
    const HRESULT opened =
        storage->OpenStream(streamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream);
    return FAILED(opened) ? opened : m_control.persistence().Load(stream.Get());
}

STDMETHODIMP StoragePersistence::Save(IStorage *storage, WINBOOL)
{
    if (!storage)
        return E_POINTER;
    ComPtr<IStream> stream;
    const HRESULT created =
        storage->CreateStream(streamName, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0, &stream);
    return FAILED(created) ? created : m_control.persistence().Save(stream.Get(), TRUE);
}

// No storage is kept between these calls, so there is nothing to let go of and nothing to take up.
STDMETHODIMP StoragePersistence::SaveCompleted(IStorage *)
{
    return S_OK;
}

STDMETHODIMP StoragePersistence::HandsOffStorage()
{
    return S_OK;
}

} // namespace KOVAVSFDataGridLib::ActiveX
