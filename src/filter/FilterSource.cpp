#include "filter/FilterSource.h"

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/EngineOf.h"
#include "ado/connection/OleDbDrivers.h"
#include "ado/connection/UntypedFields.h"
#include "filter/conditions/FilterSql.h"
#include "filter/conditions/ValueStatements.h"
#include "sql/Names.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

bool leadsToOdbc(const QString &connectionString)
{
    try {
        return ADODB::leadsToOdbc(ADODB::ConnectionString(connectionString));
    } catch (const ADODB::Error &) {
        return false;
    }
}

void FilterSource::setConnection(std::shared_ptr<ADODB::Connection> connection)
{
    m_connection = std::move(connection);
    m_connectionString = m_connection ? m_connection->ConnectionString() : QString();
    m_isShared = m_connection != nullptr;
}

void FilterSource::setConnectionString(const QString &text)
{
    m_connection.reset();
    m_countConnection.reset();
    m_connectionString = text;
    m_isShared = false;
}

void FilterSource::setTable(const QString &fromText)
{
    m_prefix.clear();
    m_fromText = fromText.trimmed();
    m_list = u"*"_s;
    m_offered.clear();
}

void FilterSource::setResult(const FilteredResult &result)
{
    m_prefix = result.prefix;
    m_fromText = result.source;
    m_list = result.list;
    m_offered = result.fields;
}

Dialect FilterSource::dialect() const
{
    Dialect dialect = dialectOf(m_database, engineOf(m_connection));
    // Can be told before the connection is opened.
    dialect.isOdbc = !readsItsOwnSqlOverOdbc(dialect.engine) && leadsToOdbc(m_connectionString);
    dialect.escapesByBackslash = m_escapesByBackslash;
    return dialect;
}

const std::shared_ptr<ADODB::Connection> &FilterSource::connection()
{
    if (!m_connection) {
        auto connection = ADODB::ConnectionFactory::connectionFor(m_database);
        connection->Open(m_connectionString);
        m_connection = std::move(connection);
    }
    return m_connection;
}

// The name of an unknown engine doesn't tell.
bool FilterSource::askWhetherBackslashEscapes()
{
    const auto &open = connection(); // if the server can't be reached, that is an error here too
    const EngineMode mode = engineOf(open);
    if (mode.tellsOfBackslashes() || !dialect().isOdbc)
        return mode.escapesByBackslash();
    try {
        ADODB::Recordset backslashes;
        backslashes.Open(uR"(SELECT '\\')"_s, open);
        return backslashes.RecordCount() == 1 && backslashes.CellText(1, 0) == u'\\';
    } catch (const ADODB::Error &error) {
        if (error.is(ADODB::dbErrCancelled))
            throw;
        return false; // a database that requires a FROM, such as Oracle; none of these has such escapes
    }
}

std::vector<FilterField> FilterSource::readFields()
{
    m_escapesByBackslash = askWhetherBackslashEscapes();
    if (!m_offered.isEmpty())
        return readOfferedFields();
    std::vector<ADODB::FieldInfo> infos;
    const QString everything = u"SELECT * FROM "_s;
    try {
        infos = connection()->Describe(everything + m_fromText);
    } catch (const ADODB::Error &error) {
        // A single name that needs brackets or quotes in SQL.
        const QString written = writtenName(dialect(), m_fromText);
        if (written == m_fromText || error.is(ADODB::dbErrCancelled))
            throw;
        infos = connection()->Describe(everything + written);
        m_fromText = written;
    }

    const auto isNamed = [this](const QString &name) {
        return [this, name](const ADODB::FieldInfo &info) { return isOneName(dialect(), info.name, name); };
    };
    std::vector<FilterField> fields;
    QSet<QString> captions;
    for (const ADODB::FieldInfo &info : infos) {
        QString written = writtenName(dialect(), info.name);
        QString caption = info.name;
        if (!info.baseTable.isEmpty() && std::ranges::count_if(infos, isNamed(info.name)) > 1) {
            written = writtenName(dialect(), info.baseTable) + u'.' + written;
            caption = info.baseTable + u'.' + caption;
        }
        if (!captions.contains(caption)) {
            captions.insert(caption);
            fields.push_back(fieldOf(caption, written, info.type, info));
        }
    }
    return fields;
}

FilterField FilterSource::fieldOf(const QString &caption, const QString &written, ADODB::DataTypeEnum type,
                                  const ADODB::FieldInfo &info)
{
    FilterField field{caption, written, fieldClassOf(type)};
    if (type == ADODB::adDouble || type == ADODB::adSingle)
        field.floatSize = type == ADODB::adDouble ? FloatSize::Double : FloatSize::Single;
    field.isMoney = type == ADODB::adCurrency;
    field.hasOrder = info.hasKnownOrder || hasOrder(written);
    field.isComputed = info.baseColumn.isEmpty();
    field.isUntyped = field.fieldClass == FieldClass::Text && ADODB::isUntyped(connection(), info);
    return field;
}

// Of a type that the driver can't name, only the database knows it.
bool FilterSource::hasOrder(const QString &written)
{
    try {
        connection()->Describe(m_prefix +
                               u"SELECT %1 FROM %2 WHERE 1=0 ORDER BY %1"_s.arg(written, m_fromText));
        return true;
    } catch (const ADODB::Error &error) {
        if (error.is(ADODB::dbErrCancelled))
            throw;
        return !error.is(ADODB::dbErrInCommand);
    }
}

// Fields with equal names keep their order.
std::vector<FilterField> FilterSource::readOfferedFields()
{
    QStringList written;
    for (const OfferedField &field : m_offered)
        written.append(field.written);
    const auto infos =
        connection()->Describe(m_prefix + u"SELECT "_s + written.join(u',') + u" FROM "_s + m_fromText);
    std::vector<FilterField> fields;
    QHash<QString, int> timesUsed;
    for (std::size_t i = 0; i < infos.size() && i < static_cast<std::size_t>(m_offered.size()); ++i) {
        const OfferedField &field = m_offered.at(static_cast<qsizetype>(i));
        const int times = ++timesUsed[field.name];
        const QString caption = times == 1 ? field.name : u"%1 (%2)"_s.arg(field.name).arg(times);
        // If values have their own types, an open result knows more than a description.
        const auto type =
            field.adoType != 0 ? static_cast<ADODB::DataTypeEnum>(field.adoType) : infos[i].type;
        fields.push_back(fieldOf(caption, field.written, type, infos[i]));
    }
    return fields;
}

ValueRequest FilterSource::valueRequest(const FilterField &field, int most)
{
    constexpr int recordsOfSample = 10000;
    return {.connection = connection(),
            .values = m_prefix + FilterSql::distinctValues(dialect(), field.written, m_fromText, most + 1),
            .count = m_prefix + FilterSql::countOfDistinctValues(field.written, m_fromText),
            .sample = m_prefix +
                      FilterSql::sampleOfValues(dialect(), field.written, m_fromText, most, recordsOfSample),
            .most = most,
            .isHere = m_isShared};
}

ValueRequest FilterSource::tickRequest(const FilterField &field, const QString &condition,
                                       const QString &search)
{
    const bool areDays = field.fieldClass == FieldClass::Date || field.fieldClass == FieldClass::Moment;
    const int most = areDays ? mostDays : mostValues;
    const ValueStatements statements(dialect(), field, {m_fromText, condition}, search);
    return {.connection = connection(),
            .values = m_prefix + statements.counted(most + 1),
            .count = m_prefix + statements.countOfValues(),
            .sample = m_prefix + statements.sample(most),
            .most = most,
            .withoutValue = search.isEmpty() ? m_prefix + statements.countOfEmpty() : QString(),
            .areDays = areDays,
            .isHere = m_isShared};
}

std::optional<CountRequest> FilterSource::countRequest(const QString &current, const QString &condition)
{
    if (!hasTable())
        return {};
    if (!m_isShared && !m_countConnection)
        m_countConnection = ADODB::ConnectionFactory::connectionFor(m_database);
    const QString restricted = current.isEmpty() ? QString() : u'(' + current + ") AND "_L1;
    const QString counted = m_fromText + " WHERE "_L1 + restricted + u'(' + condition + u')';
    // Its conditions can name what the list has.
    const bool hasAliases = m_list != u'*';
    return CountRequest{.connection = m_isShared ? m_connection : m_countConnection,
                        .connectionString = m_connectionString,
                        .statement =
                            m_prefix + "SELECT COUNT(*) FROM "_L1 +
                            (hasAliases ? "(SELECT "_L1 + m_list + " FROM "_L1 + counted + u')' : counted),
                        .isHere = m_isShared};
}

void FilterSource::check(const QString &condition)
{
    connection()->Describe(m_prefix + "SELECT "_L1 + m_list + " FROM "_L1 + m_fromText + " WHERE "_L1 +
                           condition);
}

} // namespace KOVAVSFDataGridLib
