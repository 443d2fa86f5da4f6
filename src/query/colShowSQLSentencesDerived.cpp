#include "query/colShowSQLSentences.h"

#include "query/QueryTexts.h"
#include "query/conditions/Conditions.h"

#include <QtCore/QSet>

#include <algorithm>

// The functions that derive statements by their clauses instead of as plain text.

namespace KOVAVSFDataGridLib {

namespace {

// GetTableOfSQL can find its keywords inside a string.
bool isTableFoundAsText(const QString &statement, const Derivation &derivation)
{
    return GetTableOfSQL(statement) == derivation.source();
}

// Whether both select from subqueries, but from different ones: the subquery of the full statement lacks the
// conditions that were added to an earlier one.
bool haveDifferentTables(const Derivation &a, const Derivation &b)
{
    const QString sourceA = a.source();
    const QString sourceB = b.source();
    return sourceA.startsWith(u'(') && sourceB.startsWith(u'(') &&
           sourceA.simplified().compare(sourceB.simplified(), Qt::CaseInsensitive) != 0;
}

} // namespace

EngineMode colShowSQLSentences::engineOf(const QString &connectionString) const
{
    return m_reader ? m_reader->engineOf(connectionString) : EngineMode();
}

std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement) const
{
    if (statement.isEmpty() || !m_reader)
        return {};
    const QString line = LineOf(statement);
    EngineMode engine = engineOf(m_connString);
    if (!engine.isKnown()) {
        // A simple statement can do without the engine, which avoids waiting for a connection.
        if (m_derivations.of(line, {}, dialectOf(m_database, engine))->isSimple() ||
            !m_reader->Open(m_connString))
            return {};
        engine = engineOf(m_connString);
        if (!engine.isKnown())
            return {};
    }
    const Dialect dialect = dialectOf(m_database, engine);
    auto byText = m_derivations.of(line, {}, dialect);
    if (byText->isSimple() && !byText->needsFields())
        return byText;
    const auto fields = m_reader->Read(m_connString, line);
    return fields ? DerivationOf(line, *fields, m_connString) : byText;
}

// Each query about a star is a wait, so the database is queried only if the fields' tables can't tell.
std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement,
                                                                    const std::vector<SourceField> &fields,
                                                                    const QString &connectionString) const
{
    const Dialect dialect = dialectOf(m_database, engineOf(connectionString));
    auto derivation = m_derivations.of(statement, fields, dialect);
    StarSizes sizes;
    for (const QString &star : derivation->starsToMeasure()) {
        const auto given = m_reader->Read(connectionString, derivation->statementOfStar(star));
        if (!given)
            return derivation;
        sizes.insert(star, std::ssize(*given));
    }
    for (const QString &alias : derivation->aliasesToTell()) {
        if (!m_reader->Accepts(connectionString, derivation->statementOfStar(alias)))
            sizes.insert(alias, 0);
    }
    return sizes.isEmpty() ? derivation : m_derivations.of(statement, fields, dialect, sizes);
}

std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement,
                                                                    DerivationStep step) const
{
    auto derivation = DerivationOf(statement);
    if (derivation && derivation->isTextWork(step))
        return nullptr;
    return derivation && step != DerivationStep::Fields ? WithAllFieldsInside(derivation) : derivation;
}

// Fields chosen from a TOP query are chosen outside it, so that conditions and sorts can use the others.
std::shared_ptr<const Derivation>
colShowSQLSentences::WithAllFieldsInside(const std::shared_ptr<const Derivation> &shown) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest && shown->hasListAsTable() ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || !all->hasListAsTable() || NamesShownAlone(*all) || all->names() == shown->names())
        return shown;
    const auto whole = DerivationOf(shown->withFieldsOf(*all));
    const auto chosen = whole ? DerivationOf(whole->asTableWith(shown->names())) : nullptr;
    return chosen ? chosen : shown;
}

// Whether conditions and sorts can use only the shown fields: DISTINCT with other fields has other rows.
bool colShowSQLSentences::NamesShownAlone(const Derivation &all) const
{
    return all.hasListAsTable() && (all.isDistinct() || !all.whyNot(DerivationStep::Condition).isEmpty());
}

QString colShowSQLSentences::WhyNot(DerivationStep step) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto derivation = latest ? DerivationOf(latest->ShowSQL, step) : nullptr;
    return derivation ? derivation->whyNot(step) : QString();
}

QString colShowSQLSentences::WhyNotSorted(const QString &statement, const SourceField &field,
                                          qsizetype column) const
{
    const auto derivation = field.hasKnownOrder ? nullptr : DerivationOf(statement);
    const QString question = derivation ? derivation->statementOfOrder(column) : QString();
    return question.isEmpty() || m_reader->Accepts(m_connString, question)
               ? QString()
               : QueryTexts::TypeNotSorted.arg(field.name);
}

QString colShowSQLSentences::WhyNotSorted(const QString &statement, qsizetype column) const
{
    const auto fields = m_reader ? m_reader->Read(m_connString, LineOf(statement)) : std::nullopt;
    if (!fields || column < 0 || column >= std::ssize(*fields))
        return {};
    return WhyNotSorted(statement, (*fields)[static_cast<std::size_t>(column)], column);
}

QStringList colShowSQLSentences::WhyNotSorted(const QString &statement) const
{
    const auto fields = m_reader ? m_reader->Read(m_connString, LineOf(statement)) : std::nullopt;
    QStringList reasons;
    for (const SourceField &field : fields.value_or(std::vector<SourceField>()))
        reasons.append(WhyNotSorted(statement, field, reasons.size()));
    return reasons;
}

QString colShowSQLSentences::WhyNoPartFields() const
{
    const clsShowSQLSentence *const latest = Latest();
    QString partStatement;
    if (!latest || !latest->GetCurrUsePartFieldSQL(partStatement) ||
        !WithFieldsOf(latest->ShowSQL, partStatement).isEmpty())
        return {};
    const QString reason = WhyNot(DerivationStep::Fields);
    return reason.isEmpty() ? QueryTexts::NoPartFields : reason;
}

QString colShowSQLSentences::GetColumnRealName(const QString &shownStatement, const QStringList &shownNames,
                                               qsizetype column) const
{
    if (column < 0 || column >= shownNames.size())
        return {};
    const QString &name = shownNames.at(column);
    // Of several fields with that name, the catalogue answers the first one.
    const bool isShared = std::ranges::count(m_catalogue, name, &clsDataField::FieldName) > 1;
    const auto derivation =
        isShared ? DerivationOf(shownStatement) : DerivationOf(shownStatement, DerivationStep::Condition);
    if (!derivation || derivation->written().size() != shownNames.size())
        return GetSelFieldRealName(name);
    return derivation->written().at(column);
}

std::optional<FilteredResult> colShowSQLSentences::GetFilteredResult() const
{
    const clsShowSQLSentence *const latest = Latest();
    auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || (all->isSimple() && !all->isJoined() && isTableFoundAsText(latest->AllFields, *all)))
        return std::nullopt;
    const QString &named = NamesShownAlone(*all) ? LineOf(latest->ShowSQL) : latest->AllFields;
    // By the names in the result, not those in the statement.
    if (const auto fields = m_reader->Read(m_connString, named))
        all = DerivationOf(named, *fields, m_connString);
    return all->filteredResult();
}

QString colShowSQLSentences::GetConditionOf(const QString &statement) const
{
    if (const auto derivation = DerivationOf(statement))
        return derivation->condition();
    const auto sentence = SplitSQLSentence(LineOf(statement));
    const qsizetype word = sizeof("WHERE") - 1;
    return sentence ? sentence->where.trimmed().mid(word).trimmed() : QString();
}

QString colShowSQLSentences::GetConditionName(const clsDataField &field) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    return all && NamesByItself(*all) ? field.FieldWholeName : QString();
}

// With several tables, more than one can have a field of that name.
bool colShowSQLSentences::NamesByItself(const Derivation &all) const
{
    return all.isJoined() || !all.isTextWork(DerivationStep::Condition) ||
           !isTableFoundAsText(Latest()->AllFields, all);
}

bool colShowSQLSentences::CanName(const clsDataField &field) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all)
        return true;
    if (!NamesShownAlone(*all))
        return !field.FieldWholeName.isEmpty() || !NamesByItself(*all);
    const auto shown = DerivationOf(latest->ShowSQL);
    return shown->names().contains(field.FieldName);
}

QStringList colShowSQLSentences::EntriesOfEqualNames(const QString &statement) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || QSet<QString>(all->names().cbegin(), all->names().cend()).size() == all->names().size())
        return {};
    const auto derived = DerivationOf(statement);
    return derived ? all->listedFor(*derived) : QStringList();
}

// A name finds only the first field with that name, so the list entries are compared. Empty if the names are
// unique or the entries can't tell.
QList<bool> colShowSQLSentences::PartOfEqualNames(const QString &statement,
                                                  const QString &partStatement) const
{
    const auto all = DerivationOf(statement);
    if (!all || QSet<QString>(all->names().cbegin(), all->names().cend()).size() == all->names().size())
        return {};
    const auto part = DerivationOf(partStatement);
    const QStringList listed = part ? all->listedFor(*part) : QStringList();
    QList<bool> areParts;
    for (qsizetype i = 0; i < all->listed().size() && !listed.isEmpty(); ++i)
        areParts.append(listed.contains(all->listed().at(i)));
    return areParts;
}

QList<bool> colShowSQLSentences::PartFields() const
{
    QList<bool> areParts;
    for (const clsDataField &field : m_catalogue)
        areParts.append(m_isPartKnownByPlace ? field.IsPartField != 0
                                             : m_catalogue.IsSelFieldPartField(field.FieldName));
    return areParts;
}

void colShowSQLSentences::SetPartFields(const QList<bool> &areParts)
{
    if (areParts.size() != m_catalogue.Count())
        return;
    m_isPartKnownByPlace = true;
    for (qsizetype i = 0; i < areParts.size(); ++i)
        m_catalogue.Update(m_catalogue.Item(i + 1)->FieldKey,
                           [&](clsDataField &field) { field.IsPartField = areParts.at(i) ? 1 : 0; });
}

bool colShowSQLSentences::IsDistinct(const QString &statement) const
{
    const auto derivation = DerivationOf(statement);
    return derivation && derivation->isDistinct();
}

QString colShowSQLSentences::GetFieldsStatement(const QString &statement) const
{
    if (const auto derivation = DerivationOf(statement, DerivationStep::Fields))
        return derivation->fieldsStatement();
    const auto sentence = SplitSQLSentence(statement);
    return sentence ? sentence->fields : QString();
}

bool colShowSQLSentences::GetNextShowSQL(StatementType SQLType, QString &PassSQL) const
{
    PassSQL.clear();
    const clsShowSQLSentence *const latest = Latest();
    if (!latest)
        return false;
    if (SQLType != AllFieldsStatement && SQLType != PartFieldsStatement)
        return true;
    QString fieldStatement = latest->AllFields;
    const bool isPart = SQLType == PartFieldsStatement;
    if (isPart && latest->GetCurrUsePartFieldSQL(fieldStatement) && !CanShowFieldsOf(fieldStatement))
        fieldStatement = latest->AllFields;
    QString shown = latest->ShowSQL;
    const auto all = isPart && !m_orderWord.isEmpty() ? DerivationOf(latest->AllFields) : nullptr;
    // Of several tables, only the whole list may tell what the sort means.
    if (all && all->isJoined()) {
        if (const auto derivation = DerivationOf(shown); derivation && !derivation->isSorted())
            shown = Sorted(WithFieldsOf(shown, latest->AllFields), m_orderWord);
    }
    const QString statement = WithFieldsOf(shown, fieldStatement);
    if (statement.isEmpty())
        return false;
    PassSQL = Sorted(statement, m_orderWord);
    return true;
}

// Not what a host has written so that neither the database nor the catalogue knows its fields.
bool colShowSQLSentences::CanShowFieldsOf(const QString &partStatement) const
{
    const auto part = engineOf(m_connString).isKnown() ? DerivationOf(partStatement) : nullptr;
    return !part ||
           std::ranges::all_of(part->names(), [&](const QString &name) { return m_catalogue.Find(name); }) ||
           m_reader->Read(m_connString, partStatement);
}

QString colShowSQLSentences::Sorted(const QString &statement, const QString &sortList) const
{
    const auto derivation = sortList.isEmpty() ? nullptr : DerivationOf(statement, DerivationStep::Sort);
    if (!derivation)
        return AppendOrderWord(statement, sortList);
    return DerivationOf(statement)->isSorted() ? statement : derivation->withSort(sortList);
}

QString colShowSQLSentences::WithFieldsOf(const QString &statement, const QString &fieldStatement) const
{
    const auto derivation = DerivationOf(statement);
    const auto fields = DerivationOf(fieldStatement);
    const bool isText = !derivation || !fields ||
                        (derivation->isTextWork(DerivationStep::Fields) && fields->isSimple() &&
                         !haveDifferentTables(*derivation, *fields));
    if (isText)
        return ReplaceSQLFieldPart(LineOf(statement), fieldStatement);
    const auto all = DerivationOf(Latest()->AllFields);
    if (all && all->hasListAsTable())
        return WithFieldsOfWhole(*derivation, *all, *fields);
    // A host's part statement can use an expression for a field that the user knows by its alias.
    const bool isOverSame = all && !all->isSimple() && fields != all &&
                            all->source().simplified() == fields->source().simplified() &&
                            derivation->source().simplified() == fields->source().simplified();
    const QStringList listed = isOverSame ? all->listedFor(*fields) : QStringList();
    QString derived = listed.isEmpty() ? derivation->withFieldsOf(*fields) : derivation->withFields(listed);
    if (!derived.isEmpty() || fieldStatement == Latest()->AllFields)
        return derived;
    // The shown statement may lack a field of the full one.
    const auto whole = all ? DerivationOf(derivation->withFieldsOf(*all)) : nullptr;
    return whole ? whole->withFieldsOf(*fields) : QString();
}

// A choice of fields from a TOP query is itself a SELECT, and statements derived from it have it as their
// table. Only the table with all fields has the others.
QString colShowSQLSentences::WithFieldsOfWhole(const Derivation &shown, const Derivation &all,
                                               const Derivation &fields) const
{
    const QString table = shown.table();
    if (table.isEmpty() || shown.hasListAsTable())
        return shown.withFieldsOf(fields);
    if (shown.hasAsTable(all))
        return shown.withFieldsOf(fields);
    const auto chosen = DerivationOf(table);
    const auto whole = chosen ? DerivationOf(WithFieldsOfWhole(*chosen, all, all)) : nullptr;
    const auto moved = whole ? DerivationOf(shown.withTable(*whole)) : nullptr;
    return moved ? moved->withFieldsOf(fields) : QString();
}

} // namespace KOVAVSFDataGridLib
