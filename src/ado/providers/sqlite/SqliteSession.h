#pragma once

#include "ado/providers/Provider.h"

#include <QtCore/QByteArray>

struct sqlite3;
struct sqlite3_stmt;

namespace ADODB {

struct SqliteFinalizer
{
    void operator()(sqlite3_stmt *statement) const;
};
using SqliteHandle = std::unique_ptr<sqlite3_stmt, SqliteFinalizer>;

// The differences if SQLite runs the statements for a database of another kind.
struct SqliteEngine
{
    // Sets type, size, precision and scale of a field from its column's declared type.
    void (*applyDeclaration)(FieldInfo &, const QString &);
    QString whyReadOnly; // set if nothing can be written back at all
};

// An open SQLite database with foreign keys enforced.
//
// Nothing can write to it, not even a function called by a running statement, except while a Writing exists.
// An authorizer checks everything that is compiled, including what virtual tables compile at run time.
class SqliteSession : public Session, public std::enable_shared_from_this<SqliteSession>
{
public:
    SqliteSession(const QString &path, int timeoutInMilliseconds);
    ~SqliteSession() override;
    Q_DISABLE_COPY_MOVE(SqliteSession)

    std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                       const std::function<bool()> &shouldContinue) override;
    std::optional<TableColumn> reference(const TableColumn &column,
                                         const std::function<bool()> &shouldContinue) override;
    QStringList filledColumns(const TableColumn &table, const std::function<bool()> &shouldContinue) override;
    QString tableStatement(const QString &table) const override;
    QString engineName() const override { return QStringLiteral("SQLite"); }
    bool isRepeatable() const override { return m_isOfFile; }
    void close() override;

    // Allows writing while it exists.
    class Writing
    {
    public:
        explicit Writing(const SqliteSession &session);
        ~Writing();
        Q_DISABLE_COPY_MOVE(Writing)

    private:
        const SqliteSession &m_session;
    };
    // Exempts this provider's own statements from the authorizer while it exists. Can't be nested.
    class Unwatched
    {
    public:
        explicit Unwatched(const SqliteSession &session) : m_session(session)
        {
            session.m_watch.isOn = false;
        }
        ~Unwatched() { m_session.m_watch.isOn = true; }
        Q_DISABLE_COPY_MOVE(Unwatched)

    private:
        const SqliteSession &m_session;
    };

    const SqliteEngine &engine() const { return m_engine; }
    // Throws 3709 after close().
    sqlite3 *db() const;
    // Prepares a user's statement. Refuses it unless it is a single query.
    SqliteHandle prepareQuery(const QString &sql) const;
    // Prepares an internal statement, whatever it does.
    SqliteHandle prepareOwn(const QString &sql) const;
    // Prepares an internal statement that contains parts of a user's statement.
    SqliteHandle prepareReading(const QString &sql) const;

protected:
    // An empty database in memory, for an engine that adds its own tables.
    explicit SqliteSession(SqliteEngine engine);
    // From now on, only statements that read are allowed.
    void beginWatch();

private:
    // The state that the authorizer checks.
    struct Watch
    {
        bool isOn = true;
        bool canWrite = false; // query_only is off, or could not be turned on again
    };
    static int allow(void *watch, int action, const char *first, const char *second, const char *,
                     const char *);
    void setQueryOnly(bool on) const;

    SqliteEngine m_engine;
    bool m_isOfFile = true;
    mutable Watch m_watch;
    sqlite3 *m_db = nullptr;
};

// `name` in double quotes.
QString quotedName(const QString &name);

// Steps a statement and returns whether there is a row.
bool stepRow(const SqliteHandle &statement);

} // namespace ADODB
