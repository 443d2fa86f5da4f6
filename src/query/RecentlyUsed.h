#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <utility>

namespace KOVAVSFDataGridLib {

// A cache for a few entries, which forgets those that were not used for the longest time.
template<typename Key, typename Value>
class RecentlyUsed
{
public:
    using const_iterator = typename std::list<std::pair<Key, Value>>::const_iterator;

    explicit RecentlyUsed(std::size_t longest) : m_longest(longest) {}

    // Null if there is none. The pointer is valid until the next insert() or clear(). `key` can be anything
    // that compares with a key.
    template<typename Sought>
    const Value *find(const Sought &key)
    {
        const auto found =
            std::ranges::find_if(m_entries, [&](const auto &entry) { return entry.first == key; });
        if (found == m_entries.end())
            return nullptr;
        m_entries.splice(m_entries.begin(), m_entries, found);
        return &m_entries.front().second;
    }

    // Replaces an entry with this key.
    const Value &insert(Key key, Value value)
    {
        std::erase_if(m_entries, [&](const auto &entry) { return entry.first == key; });
        m_entries.emplace_front(std::move(key), std::move(value));
        if (m_entries.size() > m_longest)
            m_entries.pop_back();
        return m_entries.front().second;
    }

    void clear() { m_entries.clear(); }
    std::size_t size() const { return m_entries.size(); }

    // The last used one first.
    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    std::size_t m_longest;
    std::list<std::pair<Key, Value>> m_entries;
};

} // namespace KOVAVSFDataGridLib
