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

bool haveEqualNames(const Derivation &statement)
{
    const QStringList &names = statement.names();
    return QSet<QString>(names.cbegin(), names.cend()).size() < names.size();
}

bool areInOrder(const QList<qsizetype> &places, qsizetype count)
{
    qsizetype next = 0;
    return places.size() == count &&
           std::ranges::all_of(places, [&](qsizetype place) { return place == next++; });
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

// A choice of fields is the same whoever makes it: by their places among all fields. Their names tell less: a
// host's part statement can call a field by the name of another one or by a new one.
std::optional<QList<qsizetype>> colShowSQLSentences::PlacesOf(const QString &all,
                                                              const QString &partStatement) const
{
    const auto whole = DerivationWithFields(all);
    const auto part = whole ? DerivationWithFields(partStatement) : nullptr;
    if (!part)
        return {};
    return whole->placesOf(*part, m_reader->Read(m_connString, partStatement).has_value());
}

// Whether the names of the fields are enough. In a join, another table can have a field of that name.
bool colShowSQLSentences::ArePartsNamed(const QString &all, const QString &partStatement) const
{
    const auto whole = DerivationOf(all);
    const auto part = whole ? DerivationOf(partStatement) : nullptr;
    return !part || (whole->isSimple() && part->isSimple() && !whole->isJoined() && !haveEqualNames(*whole));
}

std::optional<QStringList> colShowSQLSentences::PartNames(const QString &all,
                                                          const QString &partStatement) const
{
    if (ArePartsNamed(all, partStatement))
        return {};
    QStringList names;
    for (const qsizetype place : PlacesOf(all, partStatement).value_or(QList<qsizetype>()))
        names.append(DerivationWithFields(all)->names().at(place));
    return names;
}

// A part statement with a field that the result lacks has none.
bool colShowSQLSentences::MarkPlaces(const QString &all, const QString &partStatement)
{
    const auto places = PlacesOf(all, partStatement);
    const QStringList names = DerivationWithFields(all)->names();
    QList<bool> areParts;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (!names.at(i).isEmpty()) // the catalogue lacks it
            areParts.append(places && places->contains(i));
    }
    SetPartFields(areParts);
    return places.has_value();
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
    PassSQL = Sorted(WithLastSort(WithFieldsOf(latest->ShowSQL, fieldStatement)), m_orderWord);
    return !PassSQL.isEmpty();
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
    const clsShowSQLSentence *const latest = Latest();
    const auto shown = sortList.isEmpty() ? nullptr : DerivationOf(statement);
    if (shown && shown->isSorted())
        return statement;
    const auto all = shown && latest ? DerivationOf(latest->AllFields) : nullptr;
    if (all && all->isSorted() && shown->hasAsTable(*all))
        return statement; // in the order of that table
    // With several tables or aliases, only the whole list tells what the sort means.
    if (all && (all->isJoined() || !all->isSimple()) && all->names() != shown->names()) {
        const QString whole = WithSort(WithFieldsOf(statement, latest->AllFields), sortList);
        if (const QString sorted = WithFieldsOf(whole, statement); !sorted.isEmpty())
            return sorted;
    }
    return WithSort(statement, sortList);
}

QString colShowSQLSentences::WithSort(const QString &statement, const QString &sortList) const
{
    const auto derivation = sortList.isEmpty() ? nullptr : DerivationOf(statement, DerivationStep::Sort);
    return derivation ? derivation->withSort(sortList) : AppendOrderWord(statement, sortList);
}

QString colShowSQLSentences::WithFieldsOf(const QString &statement, const QString &fieldStatement) const
{
    const auto derivation = DerivationOf(statement);
    const auto fields = DerivationOf(fieldStatement);
    const auto all = DerivationOf(Latest()->AllFields);
    // Another source would lack the joined tables, what a subquery selects, and the conditions in it.
    const bool canHaveOtherSource =
        !all || (all->isSimple() && !all->isJoined() && derivation && !isOverSubquery(*derivation));
    const bool isText = !derivation || !fields ||
                        (derivation->isTextWork(DerivationStep::Fields) && fields->isSimple() &&
                         (canHaveOtherSource || derivation->isOverSame(*fields)));
    const bool isAll = all && fields == all;
    const bool isNamed = isAll || (ArePartsNamed(Latest()->AllFields, fieldStatement) &&
                                   (isText || derivation->isOverSame(*fields)));
    const auto places = isNamed ? std::nullopt : PlacesOf(Latest()->AllFields, fieldStatement);
    if (!isNamed && !places)
        return {};
    if (isText)
        return ReplaceSQLFieldPart(LineOf(statement), fieldStatement);
    if (isAll || (places && areInOrder(*places, all->names().size())))
        return WithAllFieldsOf(*derivation, *all);
    return places ? WithPlaces(derivation, *places) : derivation->withFieldsOf(*fields);
}

QString colShowSQLSentences::WithPlaces(const std::shared_ptr<const Derivation> &shown,
                                        const QList<qsizetype> &places) const
{
    const auto all = DerivationWithFields(Latest()->AllFields);
    const auto whole = all->hasListAsTable() ? DerivationOf(WithAllFieldsOf(*shown, *all)) : shown;
    if (!whole)
        return {};
    QStringList entries;
    for (const qsizetype place : places)
        entries.append(all->listedIn(*whole).at(place));
    return entries.contains(QString()) ? QString() : whole->withFields(entries);
}

// A choice of fields from a TOP query is itself a SELECT, and statements derived from it have it as their
// table. Only the table with all fields has the others.
QString colShowSQLSentences::WithAllFieldsOf(const Derivation &shown, const Derivation &all) const
{
    const QString table = shown.table();
    if (!all.hasListAsTable() || table.isEmpty() || shown.hasListAsTable() || shown.hasAsTable(all))
        return shown.withFieldsOf(all);
    const auto chosen = DerivationOf(table);
    const auto whole = chosen ? DerivationOf(WithAllFieldsOf(*chosen, all)) : nullptr;
    const auto moved = whole ? DerivationOf(shown.withTable(*whole)) : nullptr;
    return moved ? moved->withFieldsOf(all) : QString();
}

} // namespace KOVAVSFDataGridLib
