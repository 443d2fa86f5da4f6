#include "query/derivation/Derivation.h"

#include <algorithm>

// Which entry of the list gives which field of the result.

namespace KOVAVSFDataGridLib {

namespace {

// A run of fields: those of one table, or the one of an entry that is no star.
struct Run
{
    int item;
    QString table;     // the table's own name; empty for an entry that is no star, or an unknown table
    QString qualifier; // what tells its fields apart
    qsizetype size = 1;
    bool isStar = false;
};

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

const SelectParts::Source *sourceNamed(const SelectParts &parts, const QString &name)
{
    const auto found = std::ranges::find_if(
        parts.sources, [&](const SelectParts::Source &source) { return isSame(source.alias, name); });
    return found == parts.sources.end() ? nullptr : &*found;
}

std::vector<Run> runsOf(const SqlScanner &sql, const SelectParts &parts)
{
    std::vector<Run> runs;
    for (std::size_t i = 0; i < parts.items.size(); ++i) {
        const SelectParts::Item &item = parts.items[i];
        const int at = static_cast<int>(i);
        const bool isQualified = item.value.end - item.value.begin > 2;
        if (!item.isStar) {
            runs.push_back({at, {}, {}});
        } else if (isQualified) {
            const SelectParts::Source *const source = sourceNamed(parts, sql.name(item.value.end - 3));
            runs.push_back({at, source ? source->table : QString(),
                            textOf(sql, {item.value.begin, item.value.end - 2}), 0, true});
        } else if (parts.hasPlainSources && parts.sources.size() > 1) {
            for (const SelectParts::Source &source : parts.sources)
                runs.push_back({at, source.table, source.writtenAlias, 0, true});
        } else {
            runs.push_back({at, {}, {}, 0, true});
        }
    }
    return runs;
}

// How many fields each star gives. False when that can't be said.
bool measure(std::vector<Run> &runs, const std::vector<SourceField> &fields)
{
    const auto stars = std::ranges::count_if(runs, &Run::isStar);
    const qsizetype inStars =
        static_cast<qsizetype>(fields.size()) - (static_cast<qsizetype>(runs.size()) - stars);
    if (stars == 0 || inStars < stars)
        return stars == 0 && inStars == 0;
    for (Run &run : runs) {
        if (!run.isStar)
            continue;
        const auto alike = std::ranges::count_if(
            runs, [&](const Run &other) { return other.isStar && isSame(other.table, run.table); });
        qsizetype count = inStars;
        if (alike != stars) {
            // The entries that are no stars may be fields of the same table.
            if (static_cast<qsizetype>(runs.size()) != stars || run.table.isEmpty())
                return false;
            count = std::ranges::count_if(
                fields, [&](const SourceField &field) { return isSame(field.table, run.table); });
        } else if (stars > 1 && run.table.isEmpty()) {
            return false;
        }
        if (count == 0 || count % alike != 0)
            return false;
        run.size = count / alike;
    }
    return true;
}

// Whether the runs of one table have the same names, and all come from where the result says.
bool fit(const std::vector<Run> &runs, const std::vector<SourceField> &fields)
{
    std::size_t next = 0;
    std::vector<std::pair<QString, std::size_t>> firstOfTable;
    for (const Run &run : runs) {
        const auto size = static_cast<std::size_t>(run.size);
        if (next + size > fields.size())
            return false;
        const auto known = std::ranges::find_if(
            firstOfTable, [&](const auto &table) { return isSame(table.first, run.table); });
        for (std::size_t i = 0; run.isStar && !run.table.isEmpty() && i < size; ++i) {
            const SourceField &field = fields[next + i];
            if ((!field.table.isEmpty() && !isSame(field.table, run.table)) ||
                (known != firstOfTable.end() && field.name != fields[known->second + i].name))
                return false;
        }
        if (run.isStar && known == firstOfTable.end())
            firstOfTable.emplace_back(run.table, next);
        next += size;
    }
    return next == fields.size();
}

} // namespace

void Derivation::placeFields(const std::vector<SourceField> &fields)
{
    m_itemOfField.assign(fields.size(), -1);
    m_tableOfField.resize(static_cast<qsizetype>(fields.size()));
    if (fields.empty())
        return;
    std::vector<Run> runs = runsOf(m_sql, m_parts);
    const bool isPlaced = measure(runs, fields) && fit(runs, fields);
    if (!isPlaced) {
        const auto stars = std::ranges::count_if(m_parts.items, &SelectParts::Item::isStar);
        const auto least = static_cast<std::size_t>(std::ssize(m_parts.items) - stars);
        m_isListKnown = stars > 0 && least < fields.size();
        // Before the first star, each entry has one field.
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
            // A name that no other field has needs no table.
            if (run.isStar && !(isAll && countOf(fields[static_cast<std::size_t>(field)].name) == 1))
                m_tableOfField[field] = run.qualifier;
        }
    }
}

} // namespace KOVAVSFDataGridLib
