#include "filter/ticks/TickState.h"

#include "filter/FilterTexts.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// yyyy-MM-dd
QString monthOf(const QString &day)
{
    return day.left(7);
}

QString yearOf(const QString &day)
{
    return day.left(4);
}

QString yearInChinese(const QString &day)
{
    return yearOf(day) + u'年';
}

// The number of days in each month and each year.
QHash<QString, int> countsOf(const QStringList &days)
{
    QHash<QString, int> counts;
    for (const QString &day : days) {
        ++counts[monthOf(day)];
        ++counts[yearOf(day)];
    }
    return counts;
}

// If a month or a year has only one of the days, it is still represented by the day. A year is written in the
// current language, as it can be typed.
QStringList inFewestWords(const QStringList &days, const QStringList &all)
{
    const QHash<QString, int> counts = countsOf(all);
    const QHash<QString, int> chosen = countsOf(days);
    const auto isWhole = [&](const QString &stretch) {
        return counts.value(stretch) > 1 && counts.value(stretch) == chosen.value(stretch);
    };
    QStringList names;
    for (const QString &day : days) {
        const QString name = isWhole(yearOf(day))    ? FilterTexts::YearOfDays.arg(yearOf(day))
                             : isWhole(monthOf(day)) ? monthOf(day)
                                                     : day;
        if (names.isEmpty() || names.constLast() != name)
            names.append(name);
    }
    return names;
}

} // namespace

TickState::TickState(const TickedValues &ticked)
    : m_areOthersTicked(ticked.areLeftOut), m_isNullTicked(ticked.hasNull.value_or(ticked.areLeftOut))
{
    for (const QString &value : ticked.values)
        m_named.insert(value, m_order++);
}

void TickState::setTicked(const QString &value, bool isTicked)
{
    if (isTicked == m_areOthersTicked)
        m_named.remove(value);
    else if (!m_named.contains(value))
        m_named.insert(value, m_order++);
}

void TickState::setAllTicked(bool isTicked)
{
    m_named.clear();
    m_areOthersTicked = isTicked;
    m_isNullTicked = isTicked;
}

void TickState::nameDays(const QStringList &days)
{
    QStringList stretches;
    for (const QString &day : days) {
        // A filter may have been saved in another language than the current one.
        for (const QString &stretch : {monthOf(day), yearOf(day), yearInChinese(day)}) {
            if (!m_named.contains(stretch))
                continue;
            stretches.append(stretch);
            m_named.insert(day, m_order++);
        }
    }
    for (const QString &stretch : std::as_const(stretches))
        m_named.remove(stretch);
}

TickedValues TickState::amongAll(const QStringList &values, bool areDays) const
{
    QStringList ticked;
    QStringList left;
    for (const QString &value : values)
        (isTicked(value) ? ticked : left).append(value);
    const bool areLeftOut = left.size() < ticked.size() || (values.isEmpty() && m_isNullTicked);
    const QStringList &named = areLeftOut ? left : ticked;
    return {areLeftOut, areDays ? inFewestWords(named, values) : named, m_isNullTicked};
}

TickedValues TickState::asNamed() const
{
    QStringList named = m_named.keys();
    std::ranges::sort(named, {}, [this](const QString &value) { return m_named.value(value); });
    return {m_areOthersTicked, named, m_isNullTicked};
}

} // namespace KOVAVSFDataGridLib
