#pragma once

#include "activex/server/ComObject.h"

#include <utility>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

// A COM enumerator over a copy of a list. `Traits` defines how an item is copied for the client: `static Item
// copy(const Kept &)`.
template<class Interface, class Item, class Kept, class Traits>
class Enumeration final : public ComObject<Interface>
{
public:
    explicit Enumeration(std::vector<Kept> items, std::size_t next = 0)
        : m_items(std::move(items)), m_next(next)
    {
    }

    STDMETHODIMP Next(ULONG count, Item *items, ULONG *fetched) override
    {
        if (!items || (count > 1 && !fetched))
            return E_POINTER;
        ULONG given = 0;
        while (given < count && m_next < m_items.size())
            items[given++] = Traits::copy(m_items[m_next++]);
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override
    {
        const std::size_t left = m_items.size() - m_next;
        m_next += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override
    {
        m_next = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(Interface **copy) override
    {
        if (!copy)
            return E_POINTER;
        *copy = new Enumeration(m_items, m_next);
        return S_OK;
    }

private:
    std::vector<Kept> m_items;
    std::size_t m_next;
};

} // namespace KOVAVSFDataGridLib::ActiveX
