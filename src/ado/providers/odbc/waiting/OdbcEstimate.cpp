#include "ado/providers/odbc/waiting/OdbcEstimate.h"

#include "ado/Error.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcPool.h"
#include "ado/providers/odbc/reading/OdbcLongValue.h"
#include "ado/providers/odbc/reading/OdbcReading.h"
#include "ado/providers/odbc/reading/OdbcRefusal.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"
#include "sql/Names.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;

struct OdbcEstimate::Question
{
    std::shared_ptr<OdbcPool> pool;
    QString statement; // whose first value has the answer
    std::atomic<bool> isStopped = false;
    std::atomic<qint64> rows = -1; // until it is known

    void ask();
};

namespace {

constexpr qint64 longLoad = 1000;   // milliseconds
constexpr int limitOfQuestion = 10; // seconds

QString literal(const QString &text)
{
    return KOVAVSFDataGridLib::enclosed(u'\'', text, u'\'');
}

// PostgreSQL plans with the statement's conditions and limits. The plans of MySQL ignore the limits and many
// conditions, so there only whole tables have an estimate, the engine's own one. Empty if there is none.
QString questionAbout(const SqlScanner &statement, const OdbcEngine &engine)
{
    switch (engine.kind) {
    case OdbcEngine::Kind::PostgreSql:
        return isExplainable(statement) ? "EXPLAIN (FORMAT JSON) "_L1 + statement.withoutSemicolon()
                                        : QString();
    case OdbcEngine::Kind::MariaDb:
    case OdbcEngine::Kind::MySql: {
        const SimpleSelect select = SimpleSelect::parse(statement);
        const QString schema = select.schema.isEmpty() ? u"DATABASE()"_s : literal(select.schema);
        if (!select.isWhole || (schema + select.table).contains(u'\\')) // begins an escape in some modes
            return {};
        return u"SELECT table_rows FROM information_schema.tables WHERE table_schema = %1 AND table_name = "_s
                   .arg(schema) +
               literal(select.table);
    }
    default:
        return {};
    }
}

qint64 rowsIn(const QString &answer, const OdbcEngine &engine)
{
    if (engine.kind != OdbcEngine::Kind::PostgreSql)
        return answer.toLongLong();
    const QJsonValue plan = QJsonDocument::fromJson(answer.toUtf8()).array().first()["Plan"_L1];
    return static_cast<qint64>(std::min(plan["Plan Rows"_L1].toDouble(-1), 1e18)); // fits
}

std::optional<QString> answerTo(const QString &question, const std::shared_ptr<OdbcConnection> &connection)
{
    const OdbcHandle statement(connection);
    const OdbcWatch watch(statement, limitOfQuestion);
    statement.check(watch.run([&] {
        return SQLExecDirectW(statement.get(), wide(question), static_cast<SQLINTEGER>(question.size()));
    }));
    SQLLEN length = 0;
    OdbcLongValue value;
    if (!statement.fetch())
        return std::nullopt;
    statement.check(value.read(statement, 0, OdbcTypes::Form::Text, length));
    if (length <= 0) // a view has no value
        return std::nullopt;
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(value.data()),
                              length / qsizetype{sizeof(char16_t)});
}

} // namespace

void OdbcEstimate::Question::ask()
{
    const auto connection = pool->connectApart();
    const OdbcReading reading(connection, pool->engine());
    if (const auto answer = answerTo(statement, connection))
        rows = rowsIn(*answer, pool->engine());
}

OdbcEstimate::OdbcEstimate(std::shared_ptr<OdbcPool> pool, QString statement)
    : m_pool(std::move(pool)), m_statement(std::move(statement))
{
    m_sinceBegin.start();
}

OdbcEstimate::~OdbcEstimate()
{
    if (m_question)
        m_question->isStopped = true;
}

std::optional<qint64> OdbcEstimate::rows()
{
    if (m_pool && m_sinceBegin.hasExpired(longLoad))
        ask();
    const qint64 rows = m_question ? m_question->rows.load() : -1;
    return rows >= 0 ? std::optional(rows) : std::nullopt;
}

// The thread that waits for the operation can be left alone: the operation has the server's session, and ends
// by itself if the server is frozen.
void OdbcEstimate::ask()
{
    const std::shared_ptr<OdbcPool> pool = std::exchange(m_pool, nullptr);
    const OdbcEngine &engine = pool->engine();
    const QString asked = questionAbout(SqlScanner(m_statement, engine.dialect, engine.quoting), engine);
    if (asked.isEmpty())
        return;
    m_question = std::make_shared<Question>();
    m_question->pool = pool;
    m_question->statement = asked;
    std::thread([question = m_question] {
        try {
            OdbcOperation::run([question] { question->ask(); },
                               {[question](qint64) { return !question->isStopped; }, limitOfQuestion});
        } catch (const Error &) {
            // The load doesn't depend on it.
        } catch (const std::exception &error) {
            qWarning("The number of records could not be estimated: %s", error.what());
        }
    }).detach();
}

} // namespace ADODB
