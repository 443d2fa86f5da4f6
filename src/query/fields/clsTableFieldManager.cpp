#include "query/fields/clsTableFieldManager.h"

#include "query/derivation/SqlText.h"
#include "sql/Names.h"

namespace KOVAVSFDataGridLib {

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
    const QStringList partFields =
        m_partNames ? *m_partNames : ReadNames(ConnString, strPartField).value_or(QStringList());
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
    const auto sort = m_chooser->ChooseSort(GetSQLTableName(strAllField), Offered(), splitList(strSortField));
    strRetSelFields = sort.value_or(QString());
    // An emptied list removes the sort.
    return !strRetSelFields.isEmpty() || (sort && m_reader->engineOf(ConnString).isKnown());
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
    const Dialect dialect = dialectOf(m_database, m_reader->engineOf(ConnString));
    QList<OfferedField> fields;
    const bool areWritten = m_written.size() == m_fieldNames.size();
    for (qsizetype i = 0; i < m_fieldNames.size(); ++i) {
        const QString &name = m_fieldNames.at(i);
        const QString written = areWritten ? m_written.at(i) : writtenName(dialect, name);
        if (!written.isEmpty())
            fields.append({.name = name, .written = written, .whyNotSorted = m_whyNotSorted.value(i)});
    }
    return fields + m_further;
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
