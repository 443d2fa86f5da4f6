#include "query/colShowSQLSentences.h"

#include "query/fields/FieldNames.h"
#include "sql/Names.h"
#include "sql/SqlScanner.h"

#include <QtCore/QSet>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint32 longVarBinaryType = 205;

QStringList namesOf(const std::vector<SourceField> &fields)
{
    QStringList names;
    for (const SourceField &field : fields)
        names.append(field.name);
    return names;
}

// The position of the * if it is the whole list; empty for any other statement.
std::optional<qsizetype> positionOfLoneStar(const QString &statement)
{
    const SqlScanner scanned(statement);
    const bool isAlone = scanned.isWord(0, u"SELECT") && scanned.isSymbol(1, u'*') &&
                         (scanned.count() == 2 || scanned.isWord(2, u"FROM"));
    for (qsizetype i = 2; isAlone && i < scanned.count(); ++i) {
        // All SELECTs of a union must keep equal lists.
        const bool unites = scanned.isWord(i, u"UNION") || scanned.isWord(i, u"EXCEPT") ||
                            scanned.isWord(i, u"INTERSECT") || scanned.isWord(i, u"MINUS");
        if (unites && scanned.at(i).depth == 0)
            return std::nullopt;
    }
    return isAlone ? std::optional(scanned.at(1).start) : std::nullopt;
}

} // namespace

bool colShowSQLSentences::SetSQLInitData(const QString &strAllFields, const QString &strShowFieds,
                                         const QString &strFilterWord, const QString &strOrderWord,
                                         const QString &strOriginFilter)
{
    m_allFields = strAllFields;
    m_showFieds = strShowFieds;
    m_filterWord = strFilterWord;
    m_orderWord = strOrderWord;
    m_originFilter = strOriginFilter;
    return true;
}

void colShowSQLSentences::SetWritten(const QString &statement, const QString &line)
{
    m_written = statement;
    m_line = line;
}

bool colShowSQLSentences::AddSimpleSQLMess(const QString &strOrgSQL, const QString &strShowSQL,
                                           ShownFields lngIsShowAllFields, QString *PassKey)
{
    return AddSQLMess(strOrgSQL, strShowSQL, lngIsShowAllFields, {}, {}, {}, {}, {}, PassKey);
}

bool colShowSQLSentences::AddSQLMess(const QString &strOrgSQL, const QString &strShowSQL,
                                     ShownFields lngIsShowAllFields, const QString &strAllFields,
                                     const QString &strPartFields, const QString &strOrderFields,
                                     const QString &strCurrPartFields, const QString &strCurrOrderFields,
                                     QString *PassKey)
{
    return AddAllSQLMess({}, {}, {}, strOrgSQL, strShowSQL, lngIsShowAllFields, strAllFields, strPartFields,
                         strOrderFields, strCurrPartFields, strCurrOrderFields, PassKey);
}

bool colShowSQLSentences::AddAllSQLMess(const QString &strSQLFields, const QString &strSQLWhere,
                                        const QString &strSQLOrder, const QString &strOrgSQL,
                                        const QString &strShowSQL, ShownFields lngIsShowAllFields,
                                        const QString &strAllFields, const QString &strPartFields,
                                        const QString &strOrderFields, const QString &strCurrPartFields,
                                        const QString &strCurrOrderFields, QString *PassKey)
{
    clsShowSQLSentence entry;
    entry.UpdateSQLCompoment(strSQLFields, strSQLWhere, strSQLOrder);
    entry.OrgSQL = strOrgSQL;
    entry.ShowSQL = strShowSQL;
    entry.SortedSQL = strShowSQL;
    entry.IsShowAllFields = lngIsShowAllFields;
    entry.AllFields = strAllFields;
    entry.PartFields = strPartFields;
    entry.OrderFields = strOrderFields;
    entry.CurrPartFields = strCurrPartFields;
    entry.CurrOrderFields = strCurrOrderFields;

    QString key = PassKey ? *PassKey : QString();
    const bool isAdded = m_entries.Append(std::move(entry), &clsShowSQLSentence::SQLKey, key);
    if (PassKey)
        *PassKey = key;
    return isAdded;
}

bool colShowSQLSentences::AddCurrentSQL(const QString &strShowSQL, ShownFields lngIsShowAllFields,
                                        const QString &strCurrPartFields, const QString &strCurrSortFields,
                                        QString *PassKey)
{
    if (strShowSQL.isEmpty())
        return false;
    const clsShowSQLSentence *const latest = Latest();
    QString partFields = strCurrPartFields;
    if (partFields == NoPartField())
        partFields = latest ? latest->CurrPartFields : QString();
    QString sortFields = strCurrSortFields;
    QString sortedStatement = strShowSQL;
    if (sortFields == NoSort()) {
        sortFields = latest ? latest->CurrOrderFields : QString();
        if (latest)
            sortedStatement = latest->SortedSQL;
    }
    if (!AddSQLMess(m_originFilter, strShowSQL, lngIsShowAllFields, m_allFields, m_showFieds, m_orderWord,
                    partFields, sortFields, PassKey))
        return false;
    Item(Count())->SortedSQL = sortedStatement;
    return true;
}

bool colShowSQLSentences::GetLatestSQL(QString &PassFilter, QString *PassKey) const
{
    const clsShowSQLSentence *const latest = Latest();
    if (!latest)
        return false;
    PassFilter = latest->ShowSQL;
    if (PassKey)
        *PassKey = latest->SQLKey;
    return true;
}

bool colShowSQLSentences::RemoveLatestSQL()
{
    return m_entries.Remove(Count());
}

bool colShowSQLSentences::GetPreviewSQL(QString &PassFilter, QString *PassKey)
{
    return StepBackTo(std::max<qsizetype>(1, Count() - 1), PassFilter, PassKey);
}

bool colShowSQLSentences::GetFirstSQL(QString &PassFilter, QString *PassKey)
{
    return StepBackTo(1, PassFilter, PassKey);
}

bool colShowSQLSentences::GetNextSQLByFilter(const QString &strNewFilter, QString &strCurrentFilter) const
{
    strCurrentFilter.clear();
    auto sentence = SplitLatest();
    if (!sentence)
        return false;
    if (const auto derivation = DerivationOf(Latest()->ShowSQL, DerivationStep::Condition)) {
        strCurrentFilter = derivation->withCondition(strNewFilter);
        return !strCurrentFilter.isEmpty();
    }
    addCondition(*sentence, strNewFilter, UsedDialect());
    strCurrentFilter = joinSQLSentence(*sentence);
    return true;
}

bool colShowSQLSentences::GetNextSQLBySort(const QString &strNewSort, QString &strCurrentFilter) const
{
    strCurrentFilter.clear();
    auto sentence = SplitLatest();
    if (!sentence)
        return false;
    if (const auto derivation = DerivationOf(Latest()->ShowSQL, DerivationStep::Sort)) {
        strCurrentFilter = derivation->withSort(strNewSort);
        return !strCurrentFilter.isEmpty();
    }
    sentence->order.clear();
    if (!strNewSort.isEmpty())
        sentence->order = QStringLiteral(" ORDER BY ") + strNewSort;
    strCurrentFilter = joinSQLSentence(*sentence);
    return true;
}

bool colShowSQLSentences::GetAllFieldNameSQL(const QString &strPassConnString, const QString &strOrgSQL,
                                             QString &strRetSQL) const
{
    strRetSQL.clear();
    if (strPassConnString.isEmpty() || strOrgSQL.isEmpty())
        return false;
    const auto star = positionOfLoneStar(strOrgSQL);
    if (!star) {
        strRetSQL = strOrgSQL;
        return true;
    }
    const auto fields = m_reader ? m_reader->Read(strPassConnString, strOrgSQL) : std::nullopt;
    if (!fields || fields->empty())
        return false;
    // The effect of quotes depends on the engine, which must be known.
    const EngineMode engine = engineOf(strPassConnString);
    const auto quoted = [&](const QString &name) {
        return engine.isKnown() ? quotedName(dialectOf(m_database, engine), name)
                                : enclosedAsIs(u'"', name, u'"');
    };
    QStringList names;
    QStringList longBinaryNames;
    QSet<QString> different;
    for (const SourceField &field : *fields) {
        // Two tables of a join have a column of this name, so the bare name is ambiguous.
        if (different.contains(field.name.toCaseFolded())) {
            strRetSQL = strOrgSQL;
            return true;
        }
        different.insert(field.name.toCaseFolded());
        (field.adoType == longVarBinaryType ? longBinaryNames : names).append(field.name);
    }
    const auto sentence = SplitSQLSentence(strOrgSQL);
    if (!sentence)
        return false;
    const auto spelledOut = [&](const auto &write) {
        QStringList list;
        for (const QString &name : names + longBinaryNames)
            list.append(write(name));
        SQLSentence made = *sentence;
        made.fields.replace(*star, 1, list.join(u','));
        return joinSQLSentence(made);
    };
    strRetSQL = spelledOut(quoted);
    // SQLite's driver truncates names, and the rest would be read as a string.
    const auto inBackQuotes = [](const QString &name) { return enclosed(u'`', name, u'`'); };
    if (readsUnknownNamesAsTexts(engine.engine) &&
        !m_reader->Read(strPassConnString, spelledOut(inBackQuotes)))
        strRetSQL = strOrgSQL;
    return true;
}

bool colShowSQLSentences::GetCurrSQLFieldsStatus(const QString &PassConnString)
{
    const clsShowSQLSentence *const latest = Latest();
    return latest && BringInStepWith(*latest, PassConnString.isEmpty() ? m_connString : PassConnString);
}

bool colShowSQLSentences::UpdateSelPartFields(const QString &strPassPartFields)
{
    m_showFieds = strPassPartFields;
    return true;
}

bool colShowSQLSentences::UpdateSelSortFields(const QString &strPassSortFields)
{
    m_orderWord = strPassSortFields;
    return true;
}

QString colShowSQLSentences::GetSelFieldRealName(const QString &strFieldName) const
{
    return m_catalogue.GetSelFieldRealName(strFieldName);
}

bool colShowSQLSentences::IsSelFieldPartField(const QString &strFieldName) const
{
    return m_catalogue.IsSelFieldPartField(strFieldName);
}

bool colShowSQLSentences::GetCurrShowFieldsCount(qint32 &PassCount) const
{
    const clsShowSQLSentence *const latest = Latest();
    if (!latest)
        return false;
    if (latest->IsShowAllFields != AllFieldsShown)
        return m_catalogue.GetCurrShowFieldsCount(PassCount);
    PassCount = static_cast<qint32>(m_catalogue.Count());
    return true;
}

clsShowSQLSentence *colShowSQLSentences::Item(qsizetype position)
{
    return m_entries.Item(position);
}

const clsShowSQLSentence *colShowSQLSentences::Item(qsizetype position) const
{
    return m_entries.Item(position);
}

bool colShowSQLSentences::Clear()
{
    colShowSQLSentences empty(m_reader);
    empty.m_database = m_database;
    empty.m_derivations = std::move(m_derivations); // they don't depend on what is cleared
    *this = std::move(empty);
    return true;
}

std::optional<SQLSentence> colShowSQLSentences::SplitLatest() const
{
    const clsShowSQLSentence *const latest = Latest();
    return SplitSQLSentence(latest ? LineOf(latest->ShowSQL) : QString());
}

// The catalogue of the target entry is read before anything is removed, so that nothing changes if the
// connection is lost.
bool colShowSQLSentences::StepBackTo(qsizetype position, QString &PassFilter, QString *PassKey)
{
    PassFilter.clear();
    if (PassKey)
        PassKey->clear();
    const clsShowSQLSentence *const target = Item(position);
    if (!target)
        return false;
    const bool isInStep = BringInStepWith(*target, m_connString);
    if (!isInStep && (!engineOf(m_connString).isKnown() || !m_reader->Open(m_connString)))
        return false;
    while (Count() > position)
        m_entries.Remove(Count());
    return GetLatestSQL(PassFilter, PassKey);
}

bool colShowSQLSentences::BringInStepWith(const clsShowSQLSentence &entry, const QString &connectionString)
{
    if (!m_reader || !m_reader->Open(connectionString))
        return false;
    if (m_catalogue.Count() == 0 && !FillCatalogue(connectionString, entry.AllFields))
        return false;
    QString partStatement;
    if (!entry.GetCurrUsePartFieldSQL(partStatement))
        return true;
    m_isPartKnownByPlace = !ArePartsNamed(entry.AllFields, partStatement);
    if (m_isPartKnownByPlace)
        return MarkPlaces(entry.AllFields, partStatement);
    const auto partFields = m_reader->Read(connectionString, partStatement);
    return partFields && m_catalogue.SetPartFieldStatusByCol(namesOf(*partFields));
}

// The names are those that the database reports, so that each grid column finds its field. An alias is a name
// like any other.
bool colShowSQLSentences::FillCatalogue(const QString &connectionString, const QString &statement)
{
    const auto fields = m_reader->Read(connectionString, statement);
    if (!fields || fields->empty())
        return false;
    m_catalogue.Clear();
    const Dialect dialect = dialectOf(m_database, engineOf(connectionString));
    const auto derivation = DerivationOf(statement, *fields, connectionString);
    const bool isText = !dialect.isKnown() || (derivation->isSimple() && !derivation->isJoined());
    for (std::size_t i = 0; i < fields->size(); ++i) {
        const SourceField &source = fields->at(i);
        if (source.name.isEmpty())
            continue;
        QString key;
        m_catalogue.AddFieldNameMess(source.name,
                                     isText ? writtenName(dialect, source.name)
                                            : derivation->written().at(static_cast<qsizetype>(i)),
                                     &key);
        m_catalogue.Update(key, [&](clsDataField &field) { field.FieldType = source.adoType; });
    }
    if (isText)
        WriteCatalogueAsText(statement);
    return true;
}

// Uses the names written in the statement as whole names, because a condition on T.Name must not become one
// on Name.
void colShowSQLSentences::WriteCatalogueAsText(const QString &statement)
{
    const QStringList names = writtenFields(statement);
    for (const QString &written : names) {
        if (const clsDataField *const named = m_catalogue.Find(lastNamePart(written)))
            m_catalogue.Update(named->FieldKey, [&](clsDataField &field) { field.FieldWholeName = written; });
    }
    m_catalogue.AppendFieldRealNameByCol(names);
}

} // namespace KOVAVSFDataGridLib
