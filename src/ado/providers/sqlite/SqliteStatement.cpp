#include "ado/providers/sqlite/SqliteStatement.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteCall.h"
#include "ado/providers/sqlite/SqliteError.h"
#include "ado/providers/sqlite/SqliteRowWriter.h"
#include "ado/providers/sqlite/SqliteTypes.h"
#include "ado/rows/RowStore.h"
#include "ado/rows/VectorRegisters.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <QtCore/QScopedValueRollback>

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;
using KOVAVSFDataGridLib::SqlScanner;

namespace {

// How often to call `shouldContinue`: by steps of SQLite's virtual machine
// for statements that compute for a long time without returning a row, and
// by bytes for large rows. Either takes a few milliseconds at most.
constexpr int stepsPerQuestion = 20'000;
constexpr qint64 bytesPerQuestion = qint64{1} << 20;

int stopWhenAsked(void *shouldContinue)
{
    return (*static_cast<const std::function<bool()> *>(shouldContinue))() ? 0 : 1;
}

class ProgressWatch
{
public:
    ProgressWatch(sqlite3 *db, std::function<bool()> shouldContinue)
        : m_db(db), m_shouldContinue(std::move(shouldContinue))
    {
        sqlite3_progress_handler(m_db, stepsPerQuestion, stopWhenAsked, &m_shouldContinue);
    }
    ~ProgressWatch() { sqlite3_progress_handler(m_db, 0, nullptr, nullptr); }
    Q_DISABLE_COPY_MOVE(ProgressWatch)

private:
    sqlite3 *m_db;
    std::function<bool()> m_shouldContinue;
};

// If SQLite has no memory to convert a value, it returns null, which must not be taken for an empty value.
QByteArrayView needBytes(sqlite3_stmt *statement, const void *bytes, int size, bool isWanted)
{
    if (!bytes && isWanted)
        throwSqliteError(sqlite3_db_handle(statement), SQLITE_NOMEM);
    return {static_cast<const char *>(bytes), size};
}

// Valid until the next step. A column is looked up once, and not by each of the functions that say its type,
// bytes and their number. Connections have no mutex (see SqliteSession), so a value needs no protection.
RawValue currentValue(sqlite3_stmt *statement, int column)
{
    sqlite3_value *const value = sqlite3_column_value(statement, column);
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return RawValue::fromInteger(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return RawValue::fromReal(sqlite3_value_double(value));
    case SQLITE_TEXT: {
        const void *const text = sqlite3_value_text(value); // an empty one has an address, too
        return RawValue::fromText(needBytes(statement, text, sqlite3_value_bytes(value), true));
    }
    case SQLITE_BLOB: {
        const void *const blob = sqlite3_value_blob(value);
        const int size = sqlite3_value_bytes(value);
        return RawValue::fromBlob(needBytes(statement, blob, size, size > 0));
    }
    default:
        return {};
    }
}

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

bool isMainSchema(const QString &schema)
{
    return schema.isEmpty() || schema.compare("main"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

SqliteStatement::SqliteStatement(std::shared_ptr<SqliteSession> session, const QString &sql, Access access)
    : m_session(std::move(session)), m_text(sql), m_statement(m_session->prepareQuery(sql))
{
    describe();
    m_whyReadOnly = access == Access::ReadWrite ? m_session->engine().whyReadOnly : Texts::openedReadOnly();
    if (m_whyReadOnly.isEmpty())
        prepareWriter(sql);
}

SqliteStatement::~SqliteStatement() = default;

int SqliteStatement::columns() const
{
    return sqlite3_column_count(m_statement.get());
}

void SqliteStatement::describe()
{
    const int count = columns();
    for (int i = 0; i < count; ++i) {
        FieldInfo field;
        field.name = utf8(sqlite3_column_name(m_statement.get(), i));
        field.baseTable = utf8(sqlite3_column_table_name(m_statement.get(), i));
        field.baseColumn = utf8(sqlite3_column_origin_name(m_statement.get(), i));
        field.attributes = adFldIsNullable | adFldMayBeNull;
        if (!field.baseColumn.isEmpty()) {
            int notNull = 0;
            int key = 0;
            sqlite3_table_column_metadata(m_session->db(), sqlite3_column_database_name(m_statement.get(), i),
                                          sqlite3_column_table_name(m_statement.get(), i),
                                          sqlite3_column_origin_name(m_statement.get(), i), nullptr, nullptr,
                                          &notNull, &key, nullptr);
            if (notNull)
                field.attributes = 0;
            if (key)
                field.attributes |= adFldKeyColumn;
        }
        const QString declaration = utf8(sqlite3_column_decltype(m_statement.get(), i));
        if (declaration.isEmpty())
            m_untyped.push_back(i);
        else
            m_session->engine().applyDeclaration(field, declaration);
        m_fields.push_back(std::move(field));
    }
}

void SqliteStatement::prepareWriter(const QString &sql)
{
    SqliteTarget target = SqliteTarget::find(*m_session, sql, m_fields);
    m_whyReadOnly = target.whyReadOnly;
    if (!m_whyReadOnly.isEmpty())
        return;
    // The statement with the hidden columns replaces the user's.
    if (target.hasHidden)
        m_statement = m_session->prepareQuery(target.statement);
    for (const int field : target.writable())
        m_fields[static_cast<std::size_t>(field)].attributes |= adFldUpdatable;
    m_writer = std::make_unique<SqliteRowWriter>(m_session, std::move(target));
}

void SqliteStatement::learnTypes()
{
    std::erase_if(m_untyped, [this](int column) {
        const RawValue value = currentValue(m_statement.get(), column);
        if (value.kind == RawValue::Kind::Null)
            return false;
        SqliteTypes::applyValue(m_fields[static_cast<std::size_t>(column)], value);
        return true;
    });
}

void SqliteStatement::fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue)
{
    const QScopedValueRollback<const RowStore *> fetching(m_fetched, &rows);
    sqlite3 *const db = sqlite3_db_handle(m_statement.get());
    const auto mayContinue = [&] {
        const bool isWanted = shouldContinue(rows.rows());
        emptyUpperRegisters();
        return isWanted;
    };
    const ProgressWatch watch(db, mayContinue);
    qint64 nextQuestion = 0;
    qint64 questions = 0;
    while (stepRow(m_statement)) {
        if (!m_untyped.empty())
            learnTypes();
        appendCurrentRow(m_statement.get(), rows);
        if (rows.bytesWritten() >= nextQuestion) {
            // Here, because a progress handler must not run statements. A small result isn't worth it.
            if (++questions == 2)
                estimate();
            nextQuestion = rows.bytesWritten() + bytesPerQuestion;
            if (!mayContinue())
                throw Error(dbErrCancelled, Texts::cancelled());
        }
    }
    sqlite3_reset(m_statement.get());
    // SQLite keeps the last 2 MB of pages, and a long result begins elsewhere when it is read again.
    if (questions > 1)
        sqlite3_db_release_memory(db);
}

// The statistics know only whole tables. The table that has them exists since somebody ran ANALYZE.
void SqliteStatement::estimate()
{
    const SimpleSelect select = SimpleSelect::parse(SqlScanner(m_text));
    if (!select.isWhole || !isMainSchema(select.schema))
        return;
    try {
        SqliteCall statistics(*m_session, SqliteCall::Reads,
                              u"SELECT MAX(CAST(stat AS INTEGER)) FROM main.sqlite_stat1 "
                              "WHERE tbl = ? COLLATE NOCASE"_s);
        statistics.bind(select.table);
        if (statistics.step() && sqlite3_column_type(statistics.handle(), 0) == SQLITE_INTEGER)
            m_estimate = sqlite3_column_int64(statistics.handle(), 0);
    } catch (const Error &) {
        // The load doesn't depend on it.
    }
}

std::shared_ptr<const RowStore> SqliteStatement::rowsSoFar() const
{
    return m_fetched && m_fetched->rows() > 0 ? std::make_shared<const RowStore>(*m_fetched) : nullptr;
}

void appendCurrentRow(sqlite3_stmt *statement, RowStore &rows)
{
    const int count = rows.columns();
    // After another program has altered the table, * returns other columns, and the hidden key would be in
    // another position.
    if (sqlite3_data_count(statement) != count)
        throw Error(dbErrConcurrency, Texts::tableAltered(), u"SQLite"_s, u"01001"_s);
    for (int i = 0; i < count; ++i)
        rows.add(currentValue(statement, i));
    rows.endRow();
}

} // namespace ADODB
