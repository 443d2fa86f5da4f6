#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <utility>
#include <vector>

namespace KOVAVSFDataGridLib {

// A list of values in insertion order, each with a unique key. Positions start at 1. Finding by key takes
// constant time; removing takes time proportional to the number of values after the removed one.
template<typename T>
class KeyedList
{
public:
    using iterator = typename std::vector<T>::iterator;
    using const_iterator = typename std::vector<T>::const_iterator;

    // A generated key is a running number followed by `keySuffix`.
    explicit KeyedList(QString keySuffix) : m_keySuffix(std::move(keySuffix)) {}

    // Adds the value under `key`, or under a generated key if that is empty; `key` is set to the key used.
    // Returns false if the key exists already; the number of a generated key is then still used up.
    bool Append(T value, QString T::*keyMember, QString &key)
    {
        if (key.isEmpty())
            key = QString::number(m_nextNumber++) + m_keySuffix;
        if (m_positions.contains(key))
            return false;
        value.*keyMember = key;
        m_values.push_back(std::move(value));
        m_keys.push_back(key);
        m_positions.insert(key, Count());
        return true;
    }

    qsizetype Count() const { return static_cast<qsizetype>(m_values.size()); }

    // 0 if there is no such key.
    qsizetype PositionOf(const QString &key) const { return m_positions.value(key, 0); }

    // Null if there is no such position. The pointer is valid until the list changes.
    const T *Item(qsizetype position) const { return Has(position) ? &m_values[Index(position)] : nullptr; }
    T *Item(qsizetype position) { return Has(position) ? &m_values[Index(position)] : nullptr; }

    // Returns false if there is no such position.
    bool Remove(qsizetype position)
    {
        if (!Has(position))
            return false;
        m_positions.remove(m_keys[Index(position)]);
        m_values.erase(m_values.begin() + (position - 1));
        m_keys.erase(m_keys.begin() + (position - 1));
        for (auto behind = position; behind <= Count(); ++behind)
            m_positions[m_keys[Index(behind)]] = behind;
        return true;
    }

    // Also restarts the numbering.
    void Clear() { *this = KeyedList(m_keySuffix); }

    const_iterator begin() const { return m_values.cbegin(); }
    const_iterator end() const { return m_values.cend(); }
    iterator begin() { return m_values.begin(); }
    iterator end() { return m_values.end(); }

private:
    static std::size_t Index(qsizetype position) { return static_cast<std::size_t>(position - 1); }
    bool Has(qsizetype position) const { return position >= 1 && position <= Count(); }

    QString m_keySuffix;
    std::vector<T> m_values;
    std::vector<QString> m_keys; // the key of each value, even if the value's own member changes later
    QHash<QString, qsizetype> m_positions;
    qint32 m_nextNumber = 0;
};

} // namespace KOVAVSFDataGridLib
