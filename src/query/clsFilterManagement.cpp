#include "query/clsFilterManagement.h"

#include "query/CharText.h"
#include "query/conditions/SelectionText.h"
#include "sql/AllDBType.h"
#include "sql/Names.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

// The sort list without the terms by fields of `all` that are not among `shown`.
QString withoutFields(const QString &sortList, const QStringList &all, const QStringList &shown,
                      const Dialect &dialect)
{
    QStringList terms = splitList(sortList, dialect);
    terms.removeIf([&](const QString &term) {
        const QString field = splitSortTerm(term).field;
        return all.contains(field) && !shown.contains(field);
    });
    return terms.join(u',');
}

// Those of the fields that the sort list has.
QList<OfferedField> sortedBy(QList<OfferedField> fields, const QString &sortList, const Dialect &dialect)
{
    const QStringList terms = splitList(sortList, dialect);
    fields.removeIf([&](const OfferedField &field) {
        return std::ranges::none_of(
            terms, [&](const QString &term) { return splitSortTerm(term).field == field.written; });
    });
    return fields;
}

} // namespace

clsFilterManagement::clsFilterManagement(FieldReader *reader, FieldChooser *chooser)
{
    SetFieldReader(reader);
    SetFieldChooser(chooser);
}

void clsFilterManagement::SetFieldReader(FieldReader *reader)
{
    m_history.SetFieldReader(reader);
    m_tableFields.SetFieldReader(reader);
}

void clsFilterManagement::SetDBType(AllDBType type)
{
    m_dbType = type;
    m_history.SetDBType(type);
    m_tableFields.SetDBType(type);
}

void clsFilterManagement::SetOriginFilter(const QString &statement)
{
    m_memory.originFilter = statement;
    m_memory.previousFilter = statement;
    m_memory.lastUseFilter = statement;
    Push(statement);
}

void clsFilterManagement::Push(const QString &statement)
{
    m_memory.filterStack.append(statement);
    if (m_memory.filterStack.size() > statementsKept)
        m_memory.filterStack.removeAt(1);
}

bool clsFilterManagement::SetSQLInitData()
{
    m_history.SetConnString(m_dbConnString);
    return m_history.SetSQLInitData(m_allFields, m_showFields, {}, m_orderFields, m_showFields);
}

bool clsFilterManagement::LetNewFilter(const QString &strNewFilter, QString &strCurrentFilter)
{
    const QString statement = trim(m_history.LineOf(m_memory.lastUseFilter));
    auto sentence = SplitSQLSentence(statement);
    if (!sentence)
        return false;
    if (const auto derivation = m_history.DerivationOf(statement, DerivationStep::Condition)) {
        if (!derivation->whyNot(DerivationStep::Condition).isEmpty())
            return false;
        strCurrentFilter = derivation->withCondition(strNewFilter);
    } else {
        addCondition(*sentence, strNewFilter, m_history.UsedDialect());
        strCurrentFilter = joinSQLSentence(*sentence);
    }
    MakeCurrent(strCurrentFilter);
    m_memory.currentStatement = strCurrentFilter;
    return true;
}

bool clsFilterManagement::LetNewSQLStr(const QString &strNewSQL)
{
    if (strNewSQL.isEmpty())
        return false;
    MakeCurrent(strNewSQL);
    return true;
}

bool clsFilterManagement::GetPreviewFilter(QString &PassFilter)
{
    QStringList &stack = m_memory.filterStack;
    if (m_memory.previousFilter.isEmpty() || stack.isEmpty())
        return false;
    m_memory.lastUseFilter = m_memory.previousFilter;
    PassFilter = m_memory.previousFilter;
    const auto count = stack.size();
    if (count == 1)
        return true;
    m_memory.previousFilter = stack.at(count == 2 ? 0 : count - 3);
    stack.removeLast();
    return true;
}

bool clsFilterManagement::IsCanPreviewFilter(QString &PassFilter)
{
    PassFilter.clear();
    return GetPreviewFilter(PassFilter);
}

QString clsFilterManagement::GetCurrentSQL(StatementType SQLType)
{
    return MakeDerivedCurrent(SQLType, false);
}

QString clsFilterManagement::GetCurrentSQL20(StatementType SQLType)
{
    return MakeDerivedCurrent(SQLType, true);
}

bool clsFilterManagement::GetPartShowSelFields(const QString &strAllFields, const QString &strPartField,
                                               const QString &strCurrentSQL, QString &strRetFields)
{
    m_tableFields.InitData();
    m_tableFields.ConnString = m_dbConnString;
    m_tableFields.AllFieldString = strAllFields;
    m_tableFields.PartFieldString = strPartField;
    auto current = m_history.DerivationOf(strCurrentSQL);
    const auto all = m_history.DerivationOf(strAllFields);
    if (current && all && all->hasListAsTable())
        current = m_history.DerivationOf(m_history.WithAllFieldsOf(*current, *all));
    const bool isText =
        !current || !all ||
        (current->isTextWork(DerivationStep::Fields) && all->isTextWork(DerivationStep::Fields));
    if (!isText || (all && all->isJoined()))
        m_tableFields.SetWrittenFields(all->listedIn(*current));
    m_tableFields.SetPartNames(m_history.PartNames(strAllFields, strPartField));
    QString chosen;
    if (!m_tableFields.GetPartSelFields(strAllFields, strPartField, chosen))
        return false;
    if (!isText) {
        strRetFields =
            m_history.WithLastSort(current->withFields(splitList(chosen, m_history.UsedDialect())));
        m_memory.currentStatement = strRetFields;
        return !strRetFields.isEmpty();
    }
    QString source = getFromPart(m_history.LineOf(strCurrentSQL));
    if (!readsBrackets(m_dbType)) {
        // The list and the source are converted separately, so that a single apostrophe in a name is not
        // paired with one after FROM.
        chosen = bracketsToQuotes(chosen);
        source = bracketsToQuotes(source);
    }
    strRetFields = QStringLiteral("SELECT ") + chosen + source;
    m_memory.currentStatement = strRetFields;
    return true;
}

bool clsFilterManagement::GetPartSortSelFields(const QString &strAllFields, const QString &strSortField,
                                               QString &strRetFields)
{
    m_tableFields.InitData();
    m_tableFields.ConnString = m_dbConnString;
    m_tableFields.AllFieldString = strAllFields;
    m_tableFields.SortFieldString = strSortField;
    QString offered = strAllFields;
    QString sort = strSortField;
    auto all = m_history.DerivationOf(strAllFields);
    if (all)
        m_tableFields.SetFurtherFields(sortedBy(all->sortKeyFields(), sort, m_history.UsedDialect()));
    if (const clsShowSQLSentence *const latest = m_history.Item(m_history.Count());
        latest && all && (m_history.NamesShownAlone(*all) || all->isDistinct())) {
        offered = m_history.LineOf(latest->ShowSQL); // no other field can be used
        // Where the table has the fields of a DISTINCT, it can also be sorted by those that are not shown.
        if (const auto shown = m_history.DerivationWithFields(offered); shown && shown->isDistinct()) {
            // The host's sort can name them by their aliases.
            sort = withoutFields(sort, all->written() + all->names(), shown->written() + shown->names(),
                                 m_history.UsedDialect());
        }
        all = m_history.DerivationOf(offered);
    }
    if (all && (!all->isSimple() || all->isJoined()))
        m_tableFields.SetWrittenFields(all->written());
    m_tableFields.SetWhyNotSorted(m_history.WhyNotSorted(offered));
    return m_tableFields.GetSortSelFields(offered, sort, strRetFields);
}

bool clsFilterManagement::GetPartShowFields(QString &strRetSelFields)
{
    return GetPartShowSelFields(m_allFields, m_showFields, m_memory.currentStatement, strRetSelFields);
}

bool clsFilterManagement::GetPartSortFields(QString &strRetSelFields)
{
    return GetPartSortSelFields(m_allFields, m_orderFields, strRetSelFields);
}

bool clsFilterManagement::GetRequirePartSQL(const QString &strOrgSQL, StatementParts lngSelPart,
                                            QString &strRetSQL) const
{
    strRetSQL.clear();
    const auto sentence = SplitSQLSentence(m_history.LineOf(strOrgSQL));
    if (!sentence)
        return false;
    if (lngSelPart == PartsWithoutCondition) {
        if (const auto derivation = WithoutConditions(strOrgSQL)) {
            strRetSQL = *derivation;
            return !strRetSQL.isEmpty();
        }
    }
    const bool keepsCondition = lngSelPart == AllParts || lngSelPart == PartsWithoutSort;
    const bool keepsSort = lngSelPart == AllParts || lngSelPart == PartsWithoutCondition;
    if (keepsCondition || keepsSort) {
        strRetSQL = ComposeSQL(sentence->fields, keepsCondition ? sentence->where : QString(),
                               keepsSort ? sentence->order : QString());
    }
    return true;
}

// Also removes the conditions of a statement that is the derived table of this one.
std::optional<QString> clsFilterManagement::WithoutConditions(const QString &statement) const
{
    auto current = m_history.DerivationOf(statement);
    const auto all = m_history.DerivationOf(m_allFields);
    if (!current || !all || (current->isSimple() && all->isSimple()))
        return std::nullopt;
    const auto bare = m_history.DerivationOf(all->withoutConditions());
    if (bare && all->hasListAsTable() && !current->table().isEmpty() && !current->hasListAsTable() &&
        !current->hasAsTable(*all))
        current = m_history.DerivationOf(m_history.WithAllFieldsOf(*current, *all));
    if (current && bare && !current->aliasesAsTable().isEmpty())
        current = m_history.DerivationOf(current->aliasesAsTable());
    if (!current)
        return std::nullopt;
    if (!bare || !current->hasAsTable(*all))
        return current->withoutConditions();
    return current->withSource(*bare);
}

QString clsFilterManagement::GetSelFieldRealName(const QString &strConnString, qint32 FieldIndex)
{
    return m_tableFields.GetSelFieldRealName(strConnString, FieldIndex, m_memory.currentStatement);
}

void clsFilterManagement::GotoOrignState()
{
    m_memory.previousFilter = m_memory.originFilter;
    m_memory.lastUseFilter = m_memory.originFilter;
    m_memory.filterStack = {m_memory.originFilter};
}

void clsFilterManagement::ClearFilter()
{
    m_allFields.clear();
    m_showFields.clear();
    m_orderFields.clear();
    const bool isFirstUsed = m_memory.isFirstUsed;
    m_memory = {};
    m_memory.isFirstUsed = isFirstUsed;
    m_history.Clear();
}

void clsFilterManagement::ClearCurrMess()
{
    m_memory.isFirstUsed = false;
    m_memory.currentStatement.clear();
    m_memory.currentPartFields.clear();
    m_memory.currentSortFields.clear();
}

void clsFilterManagement::ClearObject()
{
    m_history.Clear();
    m_tableFields.ClearObject();
    m_memory.filterStack.clear();
}

QString clsFilterManagement::FieldListWithCurrentSource(const QString &fieldStatement) const
{
    const QString from = QStringLiteral(" FROM ");
    const auto end = findUpper(fieldStatement, from);
    if (end < 2)
        return m_memory.originFilter;
    // If the shown statement has no FROM, all of it is appended.
    const QString &shown = m_memory.lastUseFilter;
    const auto begin = findUpper(shown, from);
    return First(fieldStatement, end - 1) + Last(shown, shown.size() - begin + 1);
}

void clsFilterManagement::MakeCurrent(const QString &statement)
{
    m_memory.lastUseFilter = statement;
    m_memory.previousFilter = m_memory.filterStack.isEmpty() ? QString() : m_memory.filterStack.last();
    Push(statement);
}

QString clsFilterManagement::MakeDerivedCurrent(StatementType SQLType, bool isDerivedByHistory)
{
    const auto derived = Derive(SQLType, isDerivedByHistory);
    if (!derived)
        return {};
    if (SQLType != PreviousStatement)
        LetNewSQLStr(m_history.Sorted(*derived, m_orderFields));
    m_memory.currentStatement = m_memory.lastUseFilter;
    return m_memory.currentStatement;
}

std::optional<QString> clsFilterManagement::Derive(StatementType SQLType, bool isDerivedByHistory)
{
    QString text;
    switch (SQLType) {
    case FirstStatement:
        return std::exchange(m_memory.isFirstUsed, true) ? QString() : m_allFields;
    case AllFieldsStatement:
    case PartFieldsStatement:
        return isDerivedByHistory ? DeriveFromHistory(SQLType) : DeriveFromCurrent(SQLType);
    case PreviousStatement:
        return GetPreviewFilter(text) ? std::optional(text) : std::nullopt;
    case ChosenFieldsStatement:
        if (!GetPartShowSelFields(m_allFields, m_memory.currentPartFields, m_memory.currentStatement, text))
            return std::nullopt;
        m_memory.currentPartFields = text;
        return text;
    case ChosenSortStatement:
        if (!GetPartSortSelFields(m_allFields, m_memory.currentSortFields, text))
            return std::nullopt;
        m_memory.currentSortFields = text;
        if (const auto derivation = m_history.DerivationOf(m_memory.currentStatement, DerivationStep::Sort))
            return derivation->withSort(text);
        return replaceOrderWord(m_memory.currentStatement, text);
    default:
        return QString();
    }
}

QString clsFilterManagement::DeriveFromCurrent(StatementType SQLType) const
{
    const QString &partFields =
        m_memory.currentPartFields.isEmpty() ? m_showFields : m_memory.currentPartFields;
    return ReplaceSQLFieldPart(m_memory.currentStatement,
                               SQLType == AllFieldsStatement ? m_allFields : partFields);
}

QString clsFilterManagement::DeriveFromHistory(StatementType SQLType) const
{
    QString statement;
    m_history.GetNextShowSQL(SQLType, statement);
    return statement;
}

} // namespace KOVAVSFDataGridLib
