#pragma once

#include "filter/conditions/TickedValues.h"

#include <QtCore/QHash>

namespace KOVAVSFDataGridLib {

// What is ticked while a user goes through a list of values, of which he may see only a part.
class TickState
{
public:
    TickState() = default;
    explicit TickState(const TickedValues &ticked);

    bool isTicked(const QString &value) const { return m_named.contains(value) != m_areOthersTicked; }
    void setTicked(const QString &value, bool isTicked);
    // Whether records without a value are ticked, and values that were never named.
    bool isNullTicked() const { return m_isNullTicked; }
    void setNullTicked(bool isTicked) { m_isNullTicked = isTicked; }
    bool areOthersTicked() const { return m_areOthersTicked; }
    void setOthersTicked(bool isTicked) { m_areOthersTicked = isTicked; }
    // All values, and the records without one.
    void setAllTicked(bool isTicked);
    bool isAllTicked() const { return m_areOthersTicked && m_named.isEmpty() && m_isNullTicked; }
    bool isNothingTicked() const { return !m_areOthersTicked && m_named.isEmpty() && !m_isNullTicked; }

    // Names the days of a month or a year that is named, now that they are known.
    void nameDays(const QStringList &days);

    // The choice among these values, which are all that there are, in the fewest words. Days of which a
    // whole month or year is chosen become that month or year.
    TickedValues amongAll(const QStringList &values, bool areDays) const;
    // The choice where nobody knows all values.
    TickedValues asNamed() const;

private:
    QHash<QString, int> m_named; // with their order
    int m_order = 0;
    bool m_areOthersTicked = true;
    bool m_isNullTicked = true;
};

} // namespace KOVAVSFDataGridLib
