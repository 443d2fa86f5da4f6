#include "query/derivation/Derivation.h"

#include "query/CharText.h"
#include "query/QueryTexts.h"
#include "sql/Names.h"
#include "sql/Predicates.h"
#include "sql/select/LimitFence.h"
#include "sql/select/SqlWalk.h"

#include <algorithm>
#include <ranges>

namespace KOVAVSFDataGridLib {

using namespace CharText;
using namespace Qt::StringLiterals;

namespace {

const QString orderBy = u" ORDER BY "_s;

} // namespace

Derivation::Derivation(const QString &statement, const std::vector<SourceField> &fields,
                       const Dialect &dialect, const StarSizes &sizes)
    // MariaDB's mode is unknown here. Brackets are quotes in one mode and an error in all others.
    : m_sql(statement, dialect), m_parts(SelectParts::of(m_sql)), m_dialect(dialect)
{
    nameFields(fields, sizes);
    const QStringList aliases = aliasesToTell();
    for (const SelectParts::Item &item : m_parts.items) {
        if (aliases.contains(asColumn(item.alias)) && sizes.contains(asColumn(item.alias)))
            m_usedAliases.append(item.alias);
    }
    const bool namesAlias = std::ranges::any_of(m_usedAliases, [&](const QString &alias) {
        return (readsAliasesInConditions(m_dialect.engine) && usesName(m_parts.where, alias)) ||
               sortsBySubselectOf(alias);
    });
    // A condition has the same effect before and after DISTINCT.
    const bool canBeOpen = m_parts.isSelect && !m_parts.source.isEmpty() && !m_parts.isDistinctOn &&
                           !m_parts.isTop && !m_parts.isCompound && !m_parts.isGrouped &&
                           !m_parts.isLimited && !m_parts.hasWindow && !m_parts.hasRows &&
                           !m_parts.isVersioned && !m_parts.isClosed && m_isListKnown && !isSourceUnfenced();
    m_isListUsed = namesAlias;
    if (!canBeOpen || namesAlias) {
        m_kind = Kind::Closed;
        m_isClosedByAliases = canBeOpen;
        m_written.clear();
        for (const QString &name : std::as_const(m_names))
            m_written.append(writtenName(m_dialect, name));
        if (!keepsListWords())
            m_listed = m_written;
        return;
    }
    const bool isSimple = m_parts.with.isEmpty() && m_parts.listWords.isEmpty() && isFoundAsText() &&
                          hasPlainList() && equalName().isEmpty();
    m_kind = isSimple ? Kind::Simple : Kind::Open;
}

// Whether a condition or a sort would change which records the source returns; see LimitFence.h.
bool Derivation::isSourceUnfenced() const
{
    const Engine engine = m_dialect.engine;
    return needsFence(m_sql, m_parts.source, engine) ||
           (needsFence(m_sql, m_parts.with, engine) &&
            !(m_parts.isDerivedTable && isFenced(m_sql, m_parts.source, engine)));
}

bool Derivation::isFoundAsText() const
{
    const QString &text = m_sql.sql();
    // Anything appended would be part of a comment, or follow the end.
    if (m_sql.endsInLineComment() || m_sql.isSymbol(m_sql.count() - 1, u';'))
        return false;
    const auto isAt = [&](const QString &word, TextRange clause, qsizetype token) {
        const qsizetype found = findUpper(text, word);
        return clause.isEmpty() ? found == 0 : found == m_sql.at(token).start;
    };
    return isAt(u" FROM "_s, m_parts.source, m_parts.source.begin - 1) &&
           isAt(u" WHERE "_s, m_parts.where, m_parts.where.begin) &&
           isAt(orderBy, m_parts.order, m_parts.order.begin);
}

bool Derivation::hasPlainList() const
{
    return std::all_of(m_parts.items.begin(), m_parts.items.end(), [](const SelectParts::Item &item) {
        return item.alias.isEmpty() && (item.isStar || item.isName);
    });
}

bool Derivation::keepsListWords() const
{
    return (m_parts.isDistinct || m_parts.isTop) && !m_parts.source.isEmpty() && !m_parts.isCompound &&
           !m_parts.isGrouped && !m_parts.isLimited && !m_parts.hasWindow && !m_parts.hasRows &&
           !m_parts.isVersioned && !m_parts.isClosed && m_isListKnown && !m_isListUsed;
}

bool Derivation::isTextWork(DerivationStep step) const
{
    return isSimple() &&
           (step != DerivationStep::Fields ||
            std::ranges::none_of(m_parts.sort, [&](const auto &term) { return meansEntry(term); }));
}

QString Derivation::whyNot(DerivationStep step) const
{
    if (!m_parts.isSelect || m_parts.isClosed)
        return QueryTexts::NotDerived;
    const bool hasListOfItsOwn = step == DerivationStep::Fields && keepsListWords() && !canLoseTop();
    const bool isWhole = m_kind == Kind::Closed && !hasListOfItsOwn;
    if (isWhole && m_names.contains(QString()))
        return QueryTexts::UnnamedField;
    const auto renamed = std::ranges::find_if_not(
        m_names, [&](const QString &name) { return keepsNameInTable(m_dialect, name); });
    if (isWhole && renamed != m_names.end())
        return QueryTexts::RenamedField.arg(*renamed);
    if (isWhole && !equalName().isEmpty())
        return QueryTexts::EqualNames.arg(equalName());
    if (isWhole && step != DerivationStep::Sort && losesSort())
        return QueryTexts::SortNotKept;
    const QStringList &usable = step == DerivationStep::Fields ? m_listed : m_written;
    if (!isWhole && !usable.isEmpty() && std::ranges::all_of(usable, &QString::isEmpty))
        return equalName().isEmpty() ? QueryTexts::UnknownTable.arg(m_names.first())
                                     : QueryTexts::EqualNames.arg(equalName());
    return {};
}

QString Derivation::withCondition(const QString &condition) const
{
    if (!whyNot(DerivationStep::Condition).isEmpty())
        return {};
    SQLSentence sentence = base();
    addCondition(sentence, condition, m_dialect);
    return joinSQLSentence(sentence);
}

QString Derivation::withSort(const QString &sortList) const
{
    if (!whyNot(DerivationStep::Sort).isEmpty())
        return {};
    SQLSentence sentence = base();
    const QString terms = sortableTerms(sortList);
    sentence.order = terms.isEmpty() ? QString() : orderBy + terms;
    return joinSQLSentence(sentence);
}

QString Derivation::aliasesAsTable() const
{
    const SQLSentence sentence = base();
    return m_isClosedByAliases ? ComposeSQL(sentence.fields, {}, sentence.order) : QString();
}

QString Derivation::withoutConditions() const
{
    if (!m_parts.isSelect)
        return {};
    if (m_kind != Kind::Closed) {
        const SQLSentence sentence = base();
        return ComposeSQL(sentence.fields, {}, sentence.order);
    }
    QString text = m_sql.sql();
    const std::vector<qsizetype> conditions = unitedConditions();
    for (const qsizetype condition : conditions | std::views::reverse) {
        const int depth = m_sql.at(condition).depth;
        qsizetype next = condition + 1;
        const bool isInComment = isInVersionComment(m_sql, condition);
        while (next < m_sql.count() && m_sql.at(next).depth >= depth && !endsCondition(next, depth) &&
               !(isInComment && isVersionCommentEnd(m_sql, next)))
            ++next;
        const qsizetype end = next < m_sql.count() ? m_sql.at(next).start : m_sql.withoutSemicolon().size();
        text.remove(m_sql.at(condition).start, end - m_sql.at(condition).start);
    }
    return text;
}

// The positions for WHERE in each SELECT of a union, in brackets or not. A table defined by WITH belongs to
// the source. Without the conditions of what is taken away, fewer records would be left, not more.
std::vector<qsizetype> Derivation::unitedConditions() const
{
    const auto beginsSelect = [&](qsizetype i) {
        const qsizetype before = isOneOf(m_sql, i - 1, {u"ALL", u"DISTINCT"}) ? i - 2 : i - 1;
        return i == m_parts.with.end || m_sql.isSymbol(i - 1, u'(') ||
               isOneOf(m_sql, before, {u"UNION", u"EXCEPT", u"INTERSECT", u"MINUS"});
    };
    std::vector<qsizetype> conditions;
    int depth = 0;      // of the SELECT being read
    int takenFrom = -1; // the depth of the SELECT that this one is taken from; -1 if it is taken from none
    for (qsizetype i = m_parts.with.end; i < m_sql.count(); ++i) {
        if (m_sql.at(i).depth < depth)
            --depth; // at the closing bracket
        else if (m_sql.at(i).depth == depth && m_sql.isSymbol(i, u'(') && beginsSelect(i))
            ++depth;
        if (depth < takenFrom || (depth == takenFrom && m_sql.isWord(i, u"UNION")))
            takenFrom = -1;
        if (m_sql.at(i).depth != depth || m_sql.isSymbol(i - 1, u'.'))
            continue;
        if (takenFrom < 0 && isOneOf(m_sql, i, {u"EXCEPT", u"MINUS"}))
            takenFrom = depth;
        else if (takenFrom < 0 && m_sql.isWord(i, u"WHERE"))
            conditions.push_back(i);
    }
    return conditions;
}

bool Derivation::hasAsTable(const Derivation &other) const
{
    return m_parts.isDerivedTable && other.m_kind == Kind::Closed &&
           textOf(m_sql, m_parts.source)
                   .simplified()
                   .compare(other.asTable().simplified(), Qt::CaseInsensitive) == 0;
}

QString Derivation::table() const
{
    if (!m_parts.isDerivedTable)
        return {};
    qsizetype close = m_parts.source.end - 1;
    while (!m_sql.isSymbol(close, u')'))
        --close;
    return textOf(m_sql, {m_parts.source.begin + 1, close});
}

QString Derivation::withTable(const Derivation &other) const
{
    const SQLSentence sentence = base();
    return joinSQLSentence({prefix() + u"SELECT %1 FROM "_s.arg(other.tableList()) + other.asTable(),
                            sentence.where, sentence.order});
}

QString Derivation::withSource(const Derivation &other) const
{
    const SQLSentence sentence = base();
    return ComposeSQL(prefix() + u"SELECT "_s + listText() + u" FROM "_s + other.asTable(), {},
                      CharText::trim(sentence.order));
}

bool Derivation::endsCondition(qsizetype token, int depth) const
{
    static constexpr QStringView words[] = {u"GROUP",     u"HAVING", u"WINDOW", u"UNION",  u"EXCEPT",
                                            u"INTERSECT", u"MINUS",  u"ORDER",  u"LIMIT",  u"OFFSET",
                                            u"FETCH",     u"FOR",    u"OPTION", u"CONNECT"};
    return m_sql.at(token).depth == depth &&
           std::any_of(std::begin(words), std::end(words),
                       [&](QStringView word) { return m_sql.isWord(token, word); });
}

bool Derivation::needsFields() const
{
    return m_parts.sources.size() > 1 && std::any_of(m_parts.items.begin(), m_parts.items.end(),
                                                     [](const auto &item) { return item.isStar; });
}

// The text of the tokens with a line break before each FROM, WHERE and ORDER BY that is nested at least this
// deep.
QString Derivation::withWordsApart(TextRange tokens, int fromDepth) const
{
    if (tokens.isEmpty())
        return {};
    QString text = textOf(m_sql, tokens);
    const qsizetype start = m_sql.at(tokens.begin).start;
    for (qsizetype i = tokens.begin + 1; i < tokens.end; ++i) {
        const bool isClause = m_sql.isWord(i, u"FROM") || m_sql.isWord(i, u"WHERE") ||
                              (m_sql.isWord(i, u"ORDER") && m_sql.isWord(i + 1, u"BY"));
        const qsizetype before = m_sql.at(i).start - start - 1;
        if (isClause && m_sql.at(i).depth >= fromDepth && text.at(before) == u' ')
            text[before] = u'\n';
    }
    return text;
}

QString Derivation::source() const
{
    return m_kind == Kind::Closed ? asTable() : withWordsApart(m_parts.source, 1);
}

QString Derivation::prefix() const
{
    if (m_parts.with.isEmpty())
        return {};
    return withWordsApart(m_parts.with, 0) + u' ';
}

QString Derivation::condition() const
{
    if (m_kind == Kind::Closed || m_parts.where.isEmpty())
        return {};
    return withWordsApart({m_parts.where.begin + 1, m_parts.where.end}, 1);
}

FilteredResult Derivation::filteredResult() const
{
    FilteredResult result{prefix(), source(), {}};
    if (m_kind == Kind::Open && readsAliasesInConditions(m_dialect.engine))
        result.list = listText();
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        if (!m_written.at(i).isEmpty())
            result.fields.append({m_names.at(i), m_written.at(i), m_types[static_cast<std::size_t>(i)]});
    }
    return result;
}

SQLSentence Derivation::base() const
{
    switch (m_kind) {
    case Kind::Simple:
        return SplitSQLSentence(m_sql.sql()).value_or(SQLSentence());
    case Kind::Open:
        return {headWith(listText()), withWordsApart(m_parts.where, 1), stableSort()};
    case Kind::Closed:
        break;
    }
    const QString sort = outerSort();
    return {prefix() + u"SELECT "_s + (isDistinctTable() ? u"DISTINCT "_s : QString()) + tableList() +
                u" FROM "_s + asTable(),
            {},
            sort.isEmpty() ? QString() : orderBy + sort};
}

QString Derivation::headWith(const QString &list) const
{
    const QString words = textOf(m_sql, m_parts.listWords);
    return prefix() + u"SELECT "_s + (words.isEmpty() ? QString() : words + u' ') + list + u" FROM "_s +
           withWordsApart(m_parts.source, 1);
}

// Engines name a field without an alias by its text, so the text must not change.
QString Derivation::listText() const
{
    const bool isNamed =
        std::all_of(m_parts.items.begin(), m_parts.items.end(), [](const SelectParts::Item &item) {
            return item.isStar || item.isName || !item.alias.isEmpty();
        });
    return isNamed ? withWordsApart(m_parts.list, 1) : textOf(m_sql, m_parts.list);
}

// Such a term means another field, or none, where the list lacks the entry.
bool Derivation::meansEntry(const SelectParts::Item &term) const
{
    const bool isNumber = m_sql.at(term.value.begin).kind == SqlToken::Kind::Number;
    const bool isBareName = term.isName && term.value.end - term.value.begin == 1;
    const int field = isNumber || isBareName ? fieldOfTerm(term) : -1;
    if (field < 0 || isNumber)
        return isNumber;
    // Of several tables, more than one can have a field of that name.
    if (isJoined() && m_written.at(field).contains(u'.'))
        return true;
    const int at = m_itemOfField[static_cast<std::size_t>(field)];
    if (at < 0)
        return false;
    const SelectParts::Item &item = m_parts.items[static_cast<std::size_t>(at)];
    return !item.alias.isEmpty() || !(item.isStar || item.isName);
}

} // namespace KOVAVSFDataGridLib
