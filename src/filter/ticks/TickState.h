#pragma once

#include "filter/conditions/TickedValues.h"

#include <QtCore/QHash>

namespace KOVAVSFDataGridLib {

// The ticked values while the user works with a list of which he may see only a part.
class TickState
{
public:
    TickState() = default;
    explicit TickState(const TickedValues &ticked);

    bool isTicked(const QString &value) const { return m_named.contains(value) != m_areOthersTicked; }
    void setTicked(const QString &value, bool isTicked);
    // Whether records without a value are ticked, and values that were never mentioned.
    bool isNullTicked() const { return m_isNullTicked; }
    void setNullTicked(bool isTicked) { m_isNullTicked = isTicked; }
    bool areOthersTicked() const { return m_areOthersTicked; }
    void setOthersTicked(bool isTicked) { m_areOthersTicked = isTicked; }
    // Ticks all values and the records without one, or none.
    void setAllTicked(bool isTicked);
    bool isAllTicked() const { return m_areOthersTicked && m_named.isEmpty() && m_isNullTicked; }
    bool isNothingTicked() const { return !m_areOthersTicked && m_named.isEmpty() && !m_isNullTicked; }

    // Replaces a given month or year by its days, which are now known.
    void nameDays(const QStringList &days);

    // The choice among these values, which are all that exist, in the shortest form. If all days of a month
    // or year are chosen, they become that month or year.
    TickedValues amongAll(const QStringList &values, bool areDays) const;
    // The choice if not all values are known.
    TickedValues asNamed() const;

private:
    QHash<QString, int> m_named; // with their order
    int m_order = 0;
    bool m_areOthersTicked = true;
    bool m_isNullTicked = true;
};

} // namespace KOVAVSFDataGridLib
