#include "query/clsTableFieldManager.h"

#include "query/CharText.h"
#include "query/SqlText.h"
#include "sql/Names.h"

namespace KOVAVSFDataGridLib {

namespace {

QStringList SortTerms(const QString &sortList)
{
    QStringList terms = sortList.split(u',', Qt::SkipEmptyParts);
    for (QString &term : terms)
        term = CharText::Trim(term);
    return terms;
}

} // namespace

QString clsTableFieldManager::GetSelFieldRealName(const QString &strConnString, qint32 FieldIndex,
                                                  const QString &PassSQL)
{
    m_fieldNames = ReadNames(strConnString, PassSQL).value_or(QStringList());
    return m_fieldNames.value(FieldIndex - 1);
}

bool clsTableFieldManager::GetPartSelFields(const QString &strAllField, const QString &strPartField,
                                            QString &strRetSelFields)
{
    strRetSelFields.clear();
    if (!IsReadyToChoose(strAllField))
        return false;
    const QStringList partFields = ReadNames(ConnString, strPartField).value_or(QStringList());
    strRetSelFields = m_chooser->ChooseVisibleFields(GetSQLTableName(strAllField), Offered(), partFields)
                          .value_or(QString());
    return !strRetSelFields.isEmpty();
}

bool clsTableFieldManager::GetSortSelFields(const QString &strAllField, const QString &strSortField,
                                            QString &strRetSelFields)
{
    strRetSelFields.clear();
    if (!IsReadyToChoose(strAllField))
        return false;
    strRetSelFields = m_chooser->ChooseSort(GetSQLTableName(strAllField), Offered(), SortTerms(strSortField))
                          .value_or(QString());
    return !strRetSelFields.isEmpty();
}

bool clsTableFieldManager::IsReadyToChoose(const QString &strAllField)
{
    if (!m_chooser || GetSQLTableName(strAllField).isEmpty())
        return false;
    const auto names = ReadNames(ConnString, strAllField);
    m_fieldNames = names.value_or(QStringList());
    return names.has_value();
}

QList<OfferedField> clsTableFieldManager::Offered() const
{
    const Dialect dialect = DialectOf(m_database, m_reader->EngineOf(ConnString));
    QList<OfferedField> fields;
    for (const QString &name : m_fieldNames)
        fields.append({name, WrittenName(dialect, name)});
    return fields;
}

std::optional<QStringList> clsTableFieldManager::ReadNames(const QString &connectionString,
                                                           const QString &statement)
{
    if (!m_reader || statement.isEmpty() || !m_reader->Open(connectionString))
        return std::nullopt;
    const auto fields = m_reader->Read(connectionString, statement);
    if (!fields)
        return std::nullopt;
    QStringList names;
    for (const SourceField &field : *fields)
        names.append(field.name);
    return names;
}

} // namespace KOVAVSFDataGridLib
