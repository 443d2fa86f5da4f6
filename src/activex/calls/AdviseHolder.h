#pragma once

#include <ole2.h>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// COM's list of those who want to be told something, made when the first one asks. Holder is
// IDataAdviseHolder or IOleAdviseHolder.
template<class Holder>
class AdviseHolder
{
public:
    using Create = HRESULT(WINAPI *)(Holder **);

    explicit AdviseHolder(Create create) : m_create(create) {}

    // With the arguments of the holder's own Advise().
    template<class... Arguments>
    HRESULT advise(Arguments... arguments)
    {
        if (!m_holder) {
            const HRESULT created = m_create(&m_holder);
            if (FAILED(created))
                return created;
        }
        return m_holder->Advise(arguments...);
    }

    HRESULT unadvise(DWORD connection) const
    {
        return m_holder ? m_holder->Unadvise(connection) : OLE_E_NOCONNECTION;
    }

    HRESULT enumerate(IEnumSTATDATA **advises) const
    {
        if (!advises)
            return E_POINTER;
        *advises = nullptr;
        return m_holder ? m_holder->EnumAdvise(advises) : S_OK;
    }

    // Null if nobody has asked.
    Holder *get() const { return m_holder.Get(); }

private:
    const Create m_create;
    Microsoft::WRL::ComPtr<Holder> m_holder;
};

} // namespace KOVAVSFDataGridLib::ActiveX
