#include "query/derivation/Derivation.h"

#include "query/derivation/SameName.h"

#include <algorithm>

// Finds the fields of another statement among those of this one: a host's part statement can call a field by
// the name of another one, or by a new one.

namespace KOVAVSFDataGridLib {

namespace {

// Case and spaces matter only in quotes.
bool isSameValue(const QString &a, const QString &b)
{
    static constexpr QStringView quotes = u"'\"`[";
    const bool isQuoted = std::ranges::any_of(a, [](QChar letter) { return quotes.contains(letter); });
    return isQuoted ? a == b : isSameName(a.simplified(), b.simplified());
}

} // namespace

QStringList Derivation::listedFor(const Derivation &part) const
{
    QStringList entries;
    for (const qsizetype place : placesOf(part).value_or(QList<qsizetype>()))
        entries.append(m_listed.at(place));
    return entries.contains(QString()) ? QStringList() : entries;
}

std::optional<QList<qsizetype>> Derivation::placesOf(const Derivation &part, bool isAccepted) const
{
    const bool isOverSubquery = part.m_parts.isDerivedTable && !isOverSame(part);
    const bool hasNamesOfResult = !isAccepted || !(isOverSame(part) || hasTablesOf(part));
    QList<qsizetype> places;
    // The same list has the same fields, even if it is unknown whose they are.
    if (isOverSame(part) && isSameName(listText(), part.listText()) && part.m_names == m_names) {
        for (qsizetype i = 0; i < m_names.size(); ++i)
            places.append(i);
    }
    for (qsizetype i = places.size(); i < part.m_names.size(); ++i) {
        const QString &name = part.m_names.at(i);
        if (part.m_listed.at(i).isEmpty() && part.countOf(name) > 1)
            return {}; // its table is unknown
        const QStringList column = part.columnOf(i);
        qsizetype place = isOverSubquery && !column.isEmpty() ? placeOfName(column.last()) : -1;
        if (place < 0)
            place = oneOf(placesOfValue(part.valueOf(static_cast<int>(i))), name, places);
        if (place < 0)
            place = oneOf(placesOfColumn(column), name, places);
        if (place < 0 && hasNamesOfResult)
            place = placeOfName(name);
        if (place < 0)
            return {};
        places.append(place);
    }
    return places.isEmpty() ? std::nullopt : std::optional(places);
}

QList<qsizetype> Derivation::placesOfValue(const QString &value) const
{
    QList<qsizetype> found;
    for (qsizetype own = 0; own < m_names.size(); ++own) {
        if (isSameValue(valueOf(static_cast<int>(own)), value))
            found.append(own);
    }
    return found;
}

// Only in a join does the table matter. Either name can be without one.
QList<qsizetype> Derivation::placesOfColumn(const QStringList &column) const
{
    const auto isColumn = [this](const QStringList &a, const QStringList &b) {
        const qsizetype shared = std::min({a.size(), b.size(), isJoined() ? a.size() : 1});
        return shared > 0 && std::ranges::equal(a.last(shared), b.last(shared), isSameName);
    };
    QList<qsizetype> found;
    for (qsizetype own = 0; own < m_names.size(); ++own) {
        if (!isColumn(columnOf(own), column))
            continue;
        if (!found.isEmpty() && !isColumn(columnOf(own), columnOf(found.first())))
            return {}; // of two tables
        found.append(own);
    }
    return found;
}

// Of several fields with the same values, the one with that name, and one that isn't taken yet.
qsizetype Derivation::oneOf(const QList<qsizetype> &places, const QString &name,
                            const QList<qsizetype> &taken) const
{
    const auto rank = [&](qsizetype place) {
        return std::pair(m_names.at(place) != name, taken.contains(place));
    };
    const auto best = std::ranges::min_element(places, {}, rank);
    return best == places.end() ? -1 : *best;
}

qsizetype Derivation::placeOfName(const QString &name) const
{
    const auto is = [&](const QString &own) { return isSameName(own, name); };
    return countOf(name) == 1 ? std::ranges::find_if(m_names, is) - m_names.begin() : -1;
}

bool Derivation::isOverSame(const Derivation &other) const
{
    return isSameName(textOf(m_sql, m_parts.source).simplified(),
                      textOf(other.m_sql, other.m_parts.source).simplified());
}

bool Derivation::hasTablesOf(const Derivation &other) const
{
    return std::ranges::all_of(other.m_parts.sources, [&](const SelectParts::Source &source) {
        return !source.table.isEmpty() &&
               std::ranges::any_of(m_parts.sources, [&](const SelectParts::Source &own) {
                   return isSameName(own.table, source.table);
               });
    });
}

} // namespace KOVAVSFDataGridLib
