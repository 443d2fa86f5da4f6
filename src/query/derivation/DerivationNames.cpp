#include "query/derivation/Derivation.h"

#include "query/derivation/ConstantItem.h"
#include "query/derivation/SameName.h"
#include "sql/Names.h"
#include "sql/select/SqlWalk.h"

#include <algorithm>

// Determines the names of a result's fields in derived statements.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isOneCall(const SqlScanner &sql, TextRange value)
{
    const qsizetype open = sql.isSymbol(value.begin, u'(') ? value.begin : value.begin + 1;
    if (!sql.isSymbol(open, u'(') || !sql.isSymbol(value.end - 1, u')'))
        return false;
    for (qsizetype i = open + 1; i < value.end - 1; ++i) {
        if (sql.at(i).depth <= sql.at(open).depth)
            return false;
    }
    return true;
}

// The value in a form that can be an operand.
QString operand(const SqlScanner &sql, const SelectParts::Item &item)
{
    const QString text = textOf(sql, item.value);
    // In a sort, a number is a position, and some engines reject other constants.
    if (isConstant(sql, item))
        return u"(CASE WHEN 1=1 THEN %1 END)"_s.arg(text);
    // MySQL compares what this finds without the quotes that it is shown with.
    if (sql.dialect() == SqlDialect::MySql && sql.isWord(item.value.begin, u"JSON_EXTRACT") &&
        isOneCall(sql, item.value))
        return u"concat("_s + text + u')';
    const bool isOneToken = item.value.end - item.value.begin == 1;
    const bool isWhole = item.isName || isOneToken || isOneCall(sql, item.value);
    return isWhole ? text : u'(' + text + u')';
}

} // namespace

// DISTINCT sorts by its list entries, where a constant is written in another way. A constant does not sort,
// so its terms can be removed.
QString Derivation::sortableTerms(const QString &sortList) const
{
    QStringList constants;
    for (int field = 0; m_kind == Kind::Open && isDistinct() && field < m_written.size(); ++field) {
        const int item = m_itemOfField[static_cast<std::size_t>(field)];
        if (item >= 0 && isConstant(m_sql, m_parts.items[static_cast<std::size_t>(item)]))
            constants.append(m_written.at(field));
    }
    if (constants.isEmpty())
        return sortList;
    const SqlScanner sql(u"SELECT * FROM T ORDER BY "_s + sortList, m_dialect);
    QStringList terms;
    for (const SelectParts::Item &term : SelectParts::of(sql).sort) {
        const QString text = textOf(sql, term.tokens);
        if (std::ranges::none_of(constants,
                                 [&](const QString &constant) { return text.startsWith(constant); }))
            terms.append(text);
    }
    return terms.join(u',');
}

void Derivation::nameFields(const std::vector<SourceField> &fields, const StarSizes &sizes)
{
    std::vector<SourceField> all = fields;
    const bool hasStar = std::any_of(m_parts.items.begin(), m_parts.items.end(),
                                     [](const SelectParts::Item &item) { return item.isStar; });
    if (all.empty() && !hasStar) {
        for (const SelectParts::Item &item : m_parts.items) {
            const bool isBare = item.alias.isEmpty() && item.isName;
            all.push_back({isBare ? m_sql.name(item.value.end - 1) : item.alias, 0});
        }
    }
    for (const SourceField &field : all) {
        m_names.append(field.name);
        m_types.push_back(field.adoType);
        ++m_countOfName[field.name.toCaseFolded()];
    }
    placeFields(all, sizes);
    if (!fields.empty())
        dropUnlikelyAliases(fields);
    nameOpenFields(all);
}

// An engine names a field by its alias. If the names differ, the word is the end of an expression.
void Derivation::dropUnlikelyAliases(const std::vector<SourceField> &fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (m_itemOfField[i] < 0)
            continue;
        SelectParts::Item &item = m_parts.items[static_cast<std::size_t>(m_itemOfField[i])];
        if (!item.hasAs && !item.alias.isEmpty() && !isSameName(item.alias, fields[i].name))
            item = SelectParts::itemWithoutAlias(m_sql, item.tokens);
    }
}

void Derivation::nameOpenFields(const std::vector<SourceField> &fields)
{
    QHash<QString, int> countOfAlias;
    for (const SelectParts::Item &item : m_parts.items)
        ++countOfAlias[item.alias.toCaseFolded()];
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const int at = m_itemOfField[i];
        if (at < 0 || m_parts.items[static_cast<std::size_t>(at)].isStar) {
            m_written.append(qualified(fields, i));
            m_listed.append(m_written.last());
            continue;
        }
        const SelectParts::Item &item = m_parts.items[static_cast<std::size_t>(at)];
        QString written = operand(m_sql, item);
        // In a sort, a bare name means an alias of the list before it means a column.
        const bool isBareName = item.isName && item.value.end - item.value.begin == 1;
        const QString name = isBareName ? m_sql.name(item.value.begin) : QString();
        const bool isAliasOfOther =
            isBareName && countOfAlias.value(name.toCaseFolded()) > (isSameName(item.alias, name) ? 1 : 0);
        if (isAliasOfOther && m_parts.sources.size() == 1 && !m_parts.sources.front().writtenAlias.isEmpty())
            written = m_parts.sources.front().writtenAlias + u'.' + written;
        m_written.append(written);
        m_listed.append(textOf(m_sql, item.tokens));
    }
}

int Derivation::countOf(const QString &name) const
{
    return m_countOfName.value(name.toCaseFolded());
}

bool Derivation::hasAllFields() const
{
    return std::ranges::any_of(m_parts.items, [](const SelectParts::Item &item) {
        return item.isStar && item.value.end - item.value.begin == 1;
    });
}

// The qualified name of a star's field; empty if it could mean another field as well.
QString Derivation::qualified(const std::vector<SourceField> &fields, std::size_t index) const
{
    if (!m_isPlaced)
        return {};
    const SourceField &field = fields[index];
    QString name = writtenName(m_dialect, field.name);
    if (const QString &qualifier = m_tableOfField.at(static_cast<qsizetype>(index)); !qualifier.isEmpty())
        return qualifier + u'.' + name;
    const std::vector<SelectParts::Source> &sources = m_parts.sources;
    // A name that is unique in the result is unique in the sources, unless some of their fields are missing.
    if (countOf(field.name) == 1 && (sources.size() <= 1 || hasAllFields()))
        return name;
    const auto isIts = [&](const SelectParts::Source &source) {
        return sources.size() == 1 || isSameName(source.table, field.table);
    };
    // Not if the table is joined to itself, or to a subquery that selects from it.
    const auto isEqual = [&](const SourceField &other) {
        return isSameName(other.name, field.name) && isSameName(other.table, field.table);
    };
    const auto source = std::ranges::find_if(sources, isIts);
    if (source == sources.end() || std::ranges::count_if(sources, isIts) > 1 ||
        (sources.size() > 1 && std::ranges::count_if(fields, isEqual) > 1))
        return {};
    return source->writtenAlias.isEmpty() ? name : source->writtenAlias + u'.' + name;
}

QString Derivation::equalName() const
{
    const auto found = std::find_if(m_names.cbegin(), m_names.cend(),
                                    [&](const QString &name) { return countOf(name) > 1; });
    return found == m_names.cend() ? QString() : *found;
}

int Derivation::fieldOfTerm(const SelectParts::Item &term) const
{
    const qsizetype count = term.value.end - term.value.begin;
    if (count == 1 && m_sql.at(term.value.begin).kind == SqlToken::Kind::Number) {
        const int position = m_sql.text(term.value.begin).toInt();
        return position >= 1 && position <= m_names.size() ? position - 1 : -1;
    }
    const auto fieldWhere = [&](const auto &isIt) {
        for (std::size_t i = 0; i < m_itemOfField.size(); ++i) {
            if (isIt(i, m_itemOfField[i] < 0 ? nullptr
                                             : &m_parts.items[static_cast<std::size_t>(m_itemOfField[i])]))
                return static_cast<int>(i);
        }
        return -1;
    };
    if (term.isName && count == 1) {
        const QString name = m_sql.name(term.value.begin);
        const int byAlias = fieldWhere([&](std::size_t, const SelectParts::Item *item) {
            return item && isSameName(item->alias, name);
        });
        if (byAlias >= 0)
            return byAlias;
        if (countOf(name) == 1)
            return fieldWhere([&](std::size_t i, const SelectParts::Item *item) {
                return isSameName(m_names.at(static_cast<qsizetype>(i)), name) &&
                       (!item || item->alias.isEmpty() || isSameName(item->alias, name));
            });
    }
    const auto tokensOf = [&](TextRange range) {
        QStringList tokens;
        for (qsizetype i = range.begin; i < range.end; ++i)
            tokens.append(m_sql.at(i).kind == SqlToken::Kind::Word ? m_sql.text(i).toString().toUpper()
                                                                   : m_sql.text(i).toString());
        return tokens;
    };
    const QStringList wanted = tokensOf(term.value);
    // The value as the list has it, or as conditions and sorts write it.
    const QString written = m_kind == Kind::Open ? textOf(m_sql, term.value) : QString();
    const int byValue = fieldWhere([&](std::size_t i, const SelectParts::Item *item) {
        return item && !item->isStar &&
               (tokensOf(item->value) == wanted ||
                (!written.isEmpty() && m_written.at(static_cast<qsizetype>(i)) == written));
    });
    if (byValue >= 0 || !term.isName)
        return byValue;
    if (count == 1)
        return -1; // a column that the list lacks
    for (std::size_t i = 0; i < m_itemOfField.size(); ++i) {
        if (isColumn(i, term))
            return static_cast<int>(i);
    }
    return -1;
}

// Whether a join merges columns that can differ: one table's name then finds other values than the result's.
bool Derivation::mergesOuterColumns() const
{
    if (m_parts.hasPlainSources || !isJoined())
        return false;
    for (qsizetype i = m_parts.source.begin; i < m_parts.source.end; ++i) {
        if (isOneOf(m_sql, i, {u"LEFT", u"RIGHT", u"FULL"}))
            return true;
    }
    return false;
}

QStringList Derivation::namesIn(TextRange range) const
{
    QStringList names;
    for (qsizetype i = range.begin; i < range.end; i += 2)
        names.append(m_sql.name(i));
    return names;
}

// The name of the column that the field shows, after those of its table; empty if it shows none, or if it is
// unknown which.
QStringList Derivation::columnOf(qsizetype field) const
{
    const int index = m_itemOfField[static_cast<std::size_t>(field)];
    const SelectParts::Item *const item =
        index < 0 ? nullptr : &m_parts.items[static_cast<std::size_t>(index)];
    if (item && !item->isStar)
        return item->isName ? namesIn(item->value) : QStringList();
    const QString &name = m_names.at(field);
    const QString &table = m_tableOfField.at(field);
    if (table.isEmpty())
        return countOf(name) == 1 ? QStringList(name) : QStringList();
    return {lastNamePart(table), name};
}

// Whether the field is the column that this qualified name finds. Its name in the result means nothing: it
// can be an alias, and another table can have a column of that name.
bool Derivation::isColumn(std::size_t field, const SelectParts::Item &name) const
{
    const QStringList own = columnOf(static_cast<qsizetype>(field));
    if (own.isEmpty())
        return false;
    const int index = m_itemOfField[field];
    const bool isOfStar = index < 0 || m_parts.items[static_cast<std::size_t>(index)].isStar;
    // Without a table, it is the only one of that name in all of them.
    if (own.size() == 1 &&
        (mergesOuterColumns() || (isOfStar && (countOf(own.first()) > 1 || (isJoined() && !hasAllFields())))))
        return false;
    const QStringList wanted = namesIn(name.value);
    const qsizetype shared = std::min(own.size(), wanted.size());
    return std::ranges::equal(own.last(shared), wanted.last(shared), isSameName);
}

} // namespace KOVAVSFDataGridLib
