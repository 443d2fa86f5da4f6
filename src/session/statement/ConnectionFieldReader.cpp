#include "session/statement/ConnectionFieldReader.h"

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/Fields.h"
#include "ado/Texts.h"
#include "ado/connection/EngineOf.h"
#include "query/SharedValues.h"
#include "query/derivation/SqlText.h"
#include "session/ResultSet.h"
#include "sql/SqlScanner.h"
#include "sql/select/SelectParts.h"
#include "sql/select/SimpleSelect.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <initializer_list>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

std::vector<SourceField> describe(const ADODB::Connection &connection, const QString &statement)
{
    std::vector<SourceField> fields;
    for (const ADODB::FieldInfo &info : connection.Describe(statement))
        fields.push_back({info.name, info.type, info.baseTable, info.hasKnownOrder});
    return fields;
}

// The result of a statement that selects plain columns of one table: the table and the names, `*` for all of
// them. No names for any other statement.
struct PlainColumns
{
    QString table;
    QStringList names;
};

PlainColumns plainColumns(const QString &statement)
{
    const SqlScanner sql(statement);
    const SimpleSelect select = SimpleSelect::parse(sql);
    if (select.fault != SimpleSelect::Fault::None)
        return {};
    PlainColumns columns{select.tableText, {}};
    for (const SelectParts::Item &item : SelectParts::of(sql).items) {
        const bool isOneToken = item.tokens.end - item.tokens.begin == 1;
        if (!isOneToken || (!item.isStar && !item.isName))
            return {};
        columns.names.append(item.isStar ? u"*"_s : sql.name(item.tokens.begin));
    }
    return columns;
}

bool isClauseWord(const SqlScanner &sql, qsizetype token)
{
    return std::ranges::any_of(
        std::initializer_list<QStringView>{u"SELECT", u"FROM", u"WHERE", u"ORDER", u"BY"},
        [&](QStringView word) { return sql.isWord(token, word); });
}

// The key under which a statement is cached. A derived statement differs from the host's in the case of these
// words and the whitespace around them. Everything else is kept, because engines name a field by the text of
// its expression.
QString makeKey(const QString &statement)
{
    const SqlScanner sql(statement);
    QString text;
    qsizetype end = 0;
    bool isAtClause = true;
    for (qsizetype i = 0; i < sql.count(); ++i) {
        const QStringView before = QStringView(statement).mid(end, sql.at(i).start - end);
        const bool isClause = isClauseWord(sql, i);
        const bool isSpare = (isClause || isAtClause) && before.trimmed().isEmpty();
        text += isSpare ? QStringView(u" ") : before;
        text += isClause ? sql.text(i).toString().toUpper() : sql.text(i).toString();
        end = sql.at(i).end();
        isAtClause = isClause;
    }
    const QStringView rest = QStringView(statement).mid(end);
    if (!rest.trimmed().isEmpty())
        text += rest;
    return text;
}

} // namespace

ConnectionFieldReader::ConnectionFieldReader(const ResultSet &result) : m_result(result) {}

ConnectionFieldReader::~ConnectionFieldReader() = default;

std::shared_ptr<ADODB::Connection> ConnectionFieldReader::connect(const QString &connectionString)
{
    if (m_result.isConnectedTo(connectionString)) {
        closeOwn();
        return m_result.connection();
    }
    if (!m_own || m_own->State() != ADODB::adStateOpen || m_ownText != connectionString) {
        auto connection = ADODB::ConnectionFactory::connectionFor(SharedValues::instance().dbType);
        connection->PutConnectionString(connectionString);
        connection->Open();
        m_own = std::move(connection);
        m_ownText = connectionString;
    }
    return m_own;
}

// If the user cancelled one reading of a command, he doesn't want to wait for the next ones either.
std::shared_ptr<ADODB::Connection>
ConnectionFieldReader::connectUnlessCancelled(const QString &connectionString)
{
    if (m_isCancelled)
        throw ADODB::Error(ADODB::dbErrCancelled, ADODB::Texts::cancelled());
    return connect(connectionString);
}

bool ConnectionFieldReader::attempt(const std::function<void()> &reading)
{
    m_isRefused = false;
    try {
        reading();
        return true;
    } catch (const ADODB::Error &error) {
        m_failure = error.Description();
        m_isCancelled = m_commands > 0 && error.is(ADODB::dbErrCancelled);
        m_isRefused = error.is(ADODB::dbErrInCommand);
    } catch (const std::exception &error) {
        qWarning("Fields could not be read: %s", error.what());
        m_failure = QString::fromUtf8(error.what());
    }
    return false;
}

ConnectionFieldReader::Command::Command(ConnectionFieldReader &reader) : m_reader(reader)
{
    ++m_reader.m_commands;
}

ConnectionFieldReader::Command::~Command()
{
    if (--m_reader.m_commands == 0)
        m_reader.m_isCancelled = false;
}

bool ConnectionFieldReader::Open(const QString &connectionString)
{
    return attempt([&] { connectUnlessCancelled(connectionString); });
}

std::optional<std::vector<SourceField>> ConnectionFieldReader::Read(const QString &connectionString,
                                                                    const QString &statement)
{
    m_failure.clear();
    const std::pair key(connectionString, keyOf(statement));
    if (const auto *const known = m_known.find(key))
        return *known;
    if (auto derived = fromKnown(connectionString, statement)) {
        m_known.insert(key, *derived);
        return derived;
    }
    std::vector<SourceField> fields;
    const bool isRead = attempt([&] {
        const auto connection = connectUnlessCancelled(connectionString);
        try {
            fields = describe(*connection, GetNoRowSQL(statement));
        } catch (const ADODB::Error &error) {
            if (error.is(ADODB::dbErrCancelled))
                throw;
            // Some statements (with grouping or UNION) have no such form; then the statement itself is
            // prepared. If this connection turns out to be lost, another one is used.
            fields = describe(*connect(connectionString), statement);
        }
    });
    if (!isRead)
        return {};
    m_known.insert(key, fields);
    return fields;
}

// The same statements are read again after every command, to find out which commands can run.
QString ConnectionFieldReader::keyOf(const QString &statement)
{
    const QString *const key = m_keys.find(statement);
    return key ? *key : m_keys.insert(statement, makeKey(statement));
}

bool ConnectionFieldReader::Accepts(const QString &connectionString, const QString &statement)
{
    const std::pair key(connectionString, statement);
    if (const bool *const known = m_accepted.find(key))
        return *known;
    const bool isAccepted =
        attempt([&] { connectUnlessCancelled(connectionString)->Describe(GetNoRowSQL(statement)); });
    if (isAccepted || m_isRefused) {
        m_accepted.insert(key, isAccepted);
        m_failure.clear(); // a refusal is an answer too
    }
    return isAccepted;
}

// Each query costs a round trip, so what other statements have shown is reused.
std::optional<std::vector<SourceField>> ConnectionFieldReader::fromKnown(const QString &connectionString,
                                                                         const QString &statement) const
{
    const PlainColumns wanted = plainColumns(statement);
    if (wanted.names.isEmpty() || wanted.names.contains(u"*"_s))
        return {};
    for (const auto &[key, known] : m_known) {
        const PlainColumns shown = plainColumns(key.second);
        if (key.first != connectionString || shown.names.isEmpty() || shown.table != wanted.table)
            continue;
        std::vector<SourceField> fields;
        for (const QString &name : wanted.names) {
            const auto field = std::ranges::find(known, name, &SourceField::name);
            if (field != known.end())
                fields.push_back(*field);
        }
        if (fields.size() == static_cast<std::size_t>(wanted.names.size()))
            return fields;
    }
    return {};
}

void ConnectionFieldReader::remember(const QString &connectionString, const QString &statement,
                                     const ADODB::Fields &fields)
{
    std::vector<SourceField> known;
    for (int i = 0; i < fields.Count(); ++i) {
        const ADODB::Field &field = fields.Item(i);
        known.push_back({field.Name(), field.Type(), field.BaseTableName(), field.HasKnownOrder()});
    }
    m_known.insert({connectionString, keyOf(statement)}, known);
}

EngineMode ConnectionFieldReader::engineOf(const QString &connectionString)
{
    if (m_result.isConnectedTo(connectionString))
        return m_result.engine();
    return m_ownText == connectionString ? KOVAVSFDataGridLib::engineOf(m_own) : EngineMode();
}

void ConnectionFieldReader::forget()
{
    closeOwn();
    m_known.clear();
    m_keys.clear();
    m_accepted.clear();
    m_failure.clear();
}

void ConnectionFieldReader::closeOwn()
{
    m_own.reset();
    m_ownText.clear();
}

} // namespace KOVAVSFDataGridLib
