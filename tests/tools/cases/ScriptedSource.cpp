#include "cases/ScriptedSource.h"

#include "cases/Arguments.h"
#include "query/derivation/SqlText.h"

namespace KovaTest {

using namespace KOVAVSFDataGridLib;

void ScriptedReader::Load(const QJsonObject &script)
{
    m_open.clear();
    m_fieldsByStatement.clear();
    for (const QString &connectionString : TextsOf(script.value(u"open")))
        m_open.insert(connectionString);
    for (const QJsonValue &entry : ListOf(script.value(u"names"))) {
        const QJsonObject statement = ObjectOf(entry);
        const QStringList fields = TextsOf(statement.value(u"fields"));
        m_fieldsByStatement.insert(textOf(statement.value(u"statement")), fields);
        m_fieldsByStatement.insert(textOf(statement.value(u"noRow")), fields);
    }
}

bool ScriptedReader::Open(const QString &connectionString)
{
    return m_open.contains(connectionString);
}

std::optional<std::vector<SourceField>> ScriptedReader::Read(const QString &connectionString,
                                                             const QString &statement)
{
    if (!Open(connectionString))
        return std::nullopt;
    auto found = m_fieldsByStatement.constFind(GetNoRowSQL(statement));
    if (found == m_fieldsByStatement.constEnd())
        found = m_fieldsByStatement.constFind(statement);
    if (found == m_fieldsByStatement.constEnd())
        return std::nullopt;
    std::vector<SourceField> fields;
    for (const QString &name : *found)
        fields.push_back({name, 0});
    return fields;
}

} // namespace KovaTest
