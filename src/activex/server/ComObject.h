#pragma once

#include "activex/server/ModuleUse.h"

#include <unknwn.h>

namespace KOVAVSFDataGridLib::ActiveX {

// A COM object with these interfaces. It starts with one reference, owned by the caller of `new`, and deletes
// itself when the last one is released.
template<class First, class... Others>
class ComObject : public First, public Others...
{
public:
    ComObject() = default;
    ComObject(const ComObject &) = delete;
    ComObject &operator=(const ComObject &) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void **object) override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (iid == __uuidof(IUnknown))
            *object = static_cast<First *>(this);
        else if (!((offer<First>(iid, object)) || ... || offer<Others>(iid, object)))
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_references)); }
    STDMETHODIMP_(ULONG) Release() override
    {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

protected:
    virtual ~ComObject() = default;

private:
    template<class Interface>
    bool offer(REFIID iid, void **object)
    {
        if (iid != __uuidof(Interface))
            return false;
        *object = static_cast<Interface *>(this);
        return true;
    }

    ModuleUse m_use;
    LONG m_references = 1;
};

// One interface of a larger COM object, implemented separately. Shares that object's identity and lifetime.
template<class Interface>
class Part : public Interface
{
public:
    explicit Part(IUnknown &whole) : m_whole(whole) {}
    Part(const Part &) = delete;
    Part &operator=(const Part &) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void **object) override
    {
        return m_whole.QueryInterface(iid, object);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return m_whole.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_whole.Release(); }

protected:
    ~Part() = default;

private:
    IUnknown &m_whole;
};

} // namespace KOVAVSFDataGridLib::ActiveX
