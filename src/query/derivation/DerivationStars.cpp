#include "query/derivation/Derivation.h"

#include "query/derivation/SameName.h"

#include <algorithm>
#include <iterator>

// Finds out which list entry each field of the result comes from.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Consecutive fields: those of one source, or the single one of an entry that is not a star.
struct Run
{
    int item;
    QString source;    // stars with the same source have the same fields; empty if the entry is not a star
    QString table;     // the source's own name; empty if it has none
    QString qualifier; // qualifies its fields; empty for a star over several sources
    qsizetype size = 1;
    bool isStar = false;
};

Run runOf(int item, const SelectParts::Source &source, const QString &qualifier)
{
    const QString &name = source.table.isEmpty() ? qualifier : source.table;
    return {item, name.toCaseFolded(), source.table, qualifier, 0, true};
}

SelectParts::Source sourceNamed(const SelectParts &parts, const QString &name)
{
    const auto found = std::ranges::find_if(
        parts.sources, [&](const SelectParts::Source &source) { return isSameName(source.alias, name); });
    return found == parts.sources.end() ? SelectParts::Source() : *found;
}

std::vector<Run> runsOf(const SqlScanner &sql, const SelectParts &parts)
{
    std::vector<Run> runs;
    for (std::size_t i = 0; i < parts.items.size(); ++i) {
        const SelectParts::Item &item = parts.items[i];
        const int at = static_cast<int>(i);
        const bool isQualified = item.value.end - item.value.begin > 2;
        if (!item.isStar) {
            runs.push_back({at, {}, {}, {}});
        } else if (isQualified) {
            runs.push_back(runOf(at, sourceNamed(parts, sql.name(item.value.end - 3)),
                                 textOf(sql, {item.value.begin, item.value.end - 2})));
        } else if (parts.hasPlainSources && parts.sources.size() > 1) {
            for (const SelectParts::Source &source : parts.sources)
                runs.push_back(runOf(at, source, source.writtenAlias));
        } else {
            runs.push_back({at, u"*"_s, {}, {}, 0, true});
        }
    }
    return runs;
}

QString starOf(const Run &run)
{
    return run.qualifier.isEmpty() ? u"*"_s : run.qualifier + u".*"_s;
}

bool isOneSource(const std::vector<Run> &runs)
{
    const auto first = std::ranges::find_if(runs, &Run::isStar);
    return std::all_of(first, runs.end(),
                       [&](const Run &run) { return !run.isStar || run.source == first->source; });
}

// The stars of one source share the fields that remain for them.
bool measureOneSource(std::vector<Run> &runs, qsizetype fieldCount)
{
    const auto stars = std::ranges::count_if(runs, &Run::isStar);
    const qsizetype inStars = fieldCount - (std::ssize(runs) - stars);
    if (stars == 0 || inStars < stars || inStars % stars != 0)
        return stars == 0 && inStars == 0;
    for (Run &run : runs)
        run.size = run.isStar ? inStars / stars : 1;
    return true;
}

// By the tables of the fields. After a star, an entry that is not a star can have the same table.
bool measureByTables(std::vector<Run> &runs, const std::vector<SourceField> &fields)
{
    const auto firstStar = std::ranges::find_if(runs, &Run::isStar);
    const auto before = static_cast<std::size_t>(firstStar - runs.begin());
    if (before > fields.size() ||
        !std::all_of(firstStar, runs.end(), [](const Run &run) { return !run.table.isEmpty(); }))
        return false;
    for (Run &run : runs) {
        if (!run.isStar)
            continue;
        const auto alike =
            std::ranges::count_if(runs, [&](const Run &other) { return other.source == run.source; });
        const auto count =
            std::count_if(fields.begin() + static_cast<std::ptrdiff_t>(before), fields.end(),
                          [&](const SourceField &field) { return isSameName(field.table, run.table); });
        if (count == 0 || count % alike != 0)
            return false;
        run.size = count / alike;
    }
    std::size_t next = before;
    for (auto run = firstStar; run != runs.end(); ++run) {
        for (qsizetype i = 0; i < run->size; ++i, ++next) {
            if (next >= fields.size() || !isSameName(fields[next].table, run->table))
                return false;
        }
    }
    return true;
}

bool measureByDatabase(std::vector<Run> &runs, const StarSizes &sizes)
{
    for (Run &run : runs) {
        if (run.isStar)
            run.size = sizes.value(starOf(run));
        if (run.size == 0)
            return false;
    }
    return true;
}

bool areAll(const std::vector<Run> &runs, const std::vector<SourceField> &fields)
{
    qsizetype count = 0;
    for (const Run &run : runs)
        count += run.size;
    return count == std::ssize(fields);
}

// Whether all stars of the same source have the same names.
bool areAlike(const std::vector<Run> &runs, const std::vector<SourceField> &fields)
{
    std::size_t next = 0;
    QHash<QString, std::size_t> firstOfSource;
    for (const Run &run : runs) {
        const std::size_t first = run.isStar ? firstOfSource.value(run.source, next) : next;
        for (std::size_t i = 0; i < static_cast<std::size_t>(run.size); ++i) {
            if (fields[next + i].name != fields[first + i].name)
                return false;
        }
        if (run.isStar && !firstOfSource.contains(run.source))
            firstOfSource.insert(run.source, next);
        next += static_cast<std::size_t>(run.size);
    }
    return true;
}

bool measure(std::vector<Run> &runs, const std::vector<SourceField> &fields, const StarSizes &sizes)
{
    if (std::ranges::any_of(sizes, [](qsizetype size) { return size > 0; }))
        return measureByDatabase(runs, sizes) && areAll(runs, fields);
    const bool isMeasured =
        isOneSource(runs) ? measureOneSource(runs, std::ssize(fields)) : measureByTables(runs, fields);
    return isMeasured && areAll(runs, fields) && areAlike(runs, fields);
}

} // namespace

QStringList Derivation::starsToMeasure() const
{
    QStringList stars;
    if (m_isPlaced || !m_isListKnown || m_names.isEmpty())
        return stars;
    for (const Run &run : runsOf(m_sql, m_parts)) {
        if (run.isStar && !stars.contains(starOf(run)))
            stars.append(starOf(run));
    }
    return stars;
}

QString Derivation::statementOfStar(const QString &star) const
{
    return prefix() + u"SELECT "_s + star + u" FROM "_s + withWordsApart(m_parts.source, 1);
}

void Derivation::placeFields(const std::vector<SourceField> &fields, const StarSizes &sizes)
{
    m_itemOfField.assign(fields.size(), -1);
    m_tableOfField.resize(static_cast<qsizetype>(fields.size()));
    if (fields.empty())
        return;
    // PostgreSQL's (row).*, with as many fields as the row has
    const bool hasRowStar = std::ranges::any_of(m_parts.items, [&](const SelectParts::Item &item) {
        return !item.isStar && m_sql.isSymbol(item.value.end - 1, u'*');
    });
    std::vector<Run> runs = runsOf(m_sql, m_parts);
    m_isPlaced = !hasRowStar && measure(runs, fields, sizes);
    if (!m_isPlaced) {
        const auto stars = std::ranges::count_if(m_parts.items, &SelectParts::Item::isStar);
        const auto least = static_cast<std::size_t>(std::ssize(m_parts.items) - stars);
        m_isListKnown = stars > 0 && least < fields.size() && !hasRowStar;
        // Before the first star, each entry is one field.
        for (std::size_t i = 0; m_isListKnown && !m_parts.items[i].isStar; ++i)
            m_itemOfField[i] = static_cast<int>(i);
        return;
    }
    qsizetype field = 0;
    for (const Run &run : runs) {
        for (qsizetype i = 0; i < run.size; ++i, ++field) {
            m_itemOfField[static_cast<std::size_t>(field)] = run.item;
            const bool isAll = m_parts.items[static_cast<std::size_t>(run.item)].value.end -
                                   m_parts.items[static_cast<std::size_t>(run.item)].value.begin ==
                               1;
            // A unique name needs no table.
            if (run.isStar && !(isAll && countOf(fields[static_cast<std::size_t>(field)].name) == 1))
                m_tableOfField[field] = run.qualifier;
        }
    }
}

} // namespace KOVAVSFDataGridLib
