#include "query/colShowSQLSentences.h"

#include "query/QueryTexts.h"

#include <QtCore/QSet>

#include <algorithm>

// The functions that choose which fields a statement shows: all of them, those of a part statement or those
// that the user chooses.

namespace KOVAVSFDataGridLib {

namespace {

bool isOverSubquery(const Derivation &statement)
{
    return statement.source().startsWith(u'(');
}

bool isOverSame(const Derivation &a, const Derivation &b)
{
    return a.source().simplified().compare(b.source().simplified(), Qt::CaseInsensitive) == 0;
}

bool haveEqualNames(const Derivation &statement)
{
    const QStringList &names = statement.names();
    return QSet<QString>(names.cbegin(), names.cend()).size() < names.size();
}

} // namespace

// A choice of fields from a TOP query can be a table where the query with all fields can't. For what can't be
// derived at all, clsFilterManagement::GetCurrentSQL20 would return an earlier statement.
QString colShowSQLSentences::WhyNoAllFields() const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    const auto shown = all ? DerivationOf(latest->ShowSQL) : nullptr;
    if (shown && all->hasListAsTable() && !shown->hasListAsTable() && !shown->table().isEmpty()) {
        if (QString reason = all->whyNot(DerivationStep::Condition); !reason.isEmpty())
            return reason;
    }
    if (!shown || shown->isTextWork(DerivationStep::Fields))
        return {};
    QString derived;
    const bool canHaveOthers = shown->whyNot(DerivationStep::Fields).isEmpty(); // else it has all
    return canHaveOthers && !GetNextShowSQL(AllFieldsStatement, derived) ? QString(QueryTexts::NoAllFields)
                                                                         : QString();
}

QString colShowSQLSentences::WhyNoPartFields() const
{
    const clsShowSQLSentence *const latest = Latest();
    QString partStatement;
    if (QString reason = WhyNoAllFields(); !reason.isEmpty())
        return reason;
    if (!latest || !latest->GetCurrUsePartFieldSQL(partStatement))
        return {};
    if (!HasPartFields(latest->AllFields, partStatement))
        return QueryTexts::NoPartFields;
    if (!WithFieldsOf(latest->ShowSQL, partStatement).isEmpty())
        return {};
    const QString reason = WhyNot(DerivationStep::Fields);
    return reason.isEmpty() ? QueryTexts::NoPartFields : reason;
}

QStringList colShowSQLSentences::EntriesOfEqualNames(const QString &statement) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || !haveEqualNames(*all))
        return {};
    const auto derived = DerivationOf(statement);
    return derived ? all->listedFor(*derived) : QStringList();
}

// A name finds only the first field with that name, and a host's part statement can call a field by the name
// of another one or by a new one, so the list entries are compared. Empty if names are enough or the entries
// can't tell.
QList<bool> colShowSQLSentences::PartByPlace(const QString &statement, const QString &partStatement) const
{
    const auto part = DerivationOf(partStatement);
    const auto all = part ? DerivationWithFields(statement) : nullptr;
    if (!all || (part->isSimple() && !haveEqualNames(*all)))
        return {};
    const QStringList listed = all->listedFor(*part);
    QList<bool> areParts;
    for (qsizetype i = 0; i < all->listed().size() && !listed.isEmpty(); ++i)
        areParts.append(listed.contains(all->listed().at(i)));
    return areParts;
}

// Whether the catalogue has each field of a part statement that computes or renames fields.
bool colShowSQLSentences::HasPartFields(const QString &statement, const QString &partStatement) const
{
    const auto part = DerivationOf(partStatement);
    if (!part || part->isSimple() || !PartByPlace(statement, partStatement).isEmpty())
        return true;
    const auto fields = m_reader->Read(m_connString, partStatement);
    return !fields || std::ranges::all_of(NamesInCatalogue(*fields),
                                          [&](const QString &name) { return m_catalogue.Find(name); });
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

bool colShowSQLSentences::IsShownAlone(const QString &statement) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto derivation = DerivationOf(statement);
    if (!latest || !derivation || !derivation->hasListAsTable())
        return derivation && derivation->isDistinct();
    const auto all = DerivationOf(latest->AllFields);
    return derivation->isDistinct() || (all && NamesShownAlone(*all));
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
    const QString statement = WithLastSort(WithFieldsOf(shown, fieldStatement));
    if (statement.isEmpty())
        return false;
    PassSQL = Sorted(statement, m_orderWord);
    return true;
}

QString colShowSQLSentences::WithLastSort(const QString &statement) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto sorted = latest ? DerivationOf(latest->SortedSQL) : nullptr;
    const auto derivation = sorted && sorted->isDistinct() ? DerivationWithFields(statement) : nullptr;
    return derivation ? derivation->withSortOf(*sorted) : statement;
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
    const auto all = DerivationOf(Latest()->AllFields);
    // Another source would lack the joined tables, what a subquery selects, and the conditions in it.
    const bool canHaveOtherSource = !all || (all->isSimple() && derivation && !isOverSubquery(*derivation));
    const bool isText = !derivation || !fields ||
                        (derivation->isTextWork(DerivationStep::Fields) && fields->isSimple() &&
                         (canHaveOtherSource || isOverSame(*derivation, *fields)));
    if (isText)
        return ReplaceSQLFieldPart(LineOf(statement), fieldStatement);
    if (all && all->hasListAsTable())
        return WithFieldsOfWhole(*derivation, *all, *fields);
    // A host's part statement can use an expression for a field that the user knows by its alias, or the
    // other way round.
    const bool isFoundByValue = all && fields != all && !(all->isSimple() && fields->isSimple()) &&
                                isOverSame(*all, *derivation) &&
                                (isOverSubquery(*derivation) || isOverSame(*derivation, *fields));
    const QStringList listed =
        isFoundByValue ? DerivationWithFields(Latest()->AllFields)->listedFor(*fields) : QStringList();
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
    if (table.isEmpty() || shown.hasListAsTable()) {
        const QString derived = shown.withFieldsOf(fields);
        const auto whole = derived.isEmpty() ? DerivationOf(shown.withFieldsOf(all)) : nullptr;
        return whole ? whole->withFieldsOf(fields) : derived;
    }
    if (shown.hasAsTable(all))
        return shown.withFieldsOf(fields);
    const auto chosen = DerivationOf(table);
    const auto whole = chosen ? DerivationOf(WithFieldsOfWhole(*chosen, all, all)) : nullptr;
    const auto moved = whole ? DerivationOf(shown.withTable(*whole)) : nullptr;
    return moved ? moved->withFieldsOf(fields) : QString();
}

} // namespace KOVAVSFDataGridLib
