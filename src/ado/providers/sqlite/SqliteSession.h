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

// What differs where SQLite runs the statements for a database of another kind.
struct SqliteEngine
{
    // Sets type, size, precision and scale of a field from its column's declared type.
    void (*applyDeclaration)(FieldInfo &, const QString &);
    QString whyReadOnly; // set where nothing can be written back at all
};

// An open SQLite database with foreign keys enforced.
//
// Nothing can be written to it, by whatever a statement calls while it runs, except while a Writing lives. An
// authorizer watches everything that is compiled, also what virtual tables compile while a statement runs.
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

    // Lets SQLite write while it lives.
    class Writing
    {
    public:
        explicit Writing(const SqliteSession &session);
        ~Writing();
        Q_DISABLE_COPY_MOVE(Writing)

    private:
        const SqliteSession &m_session;
    };
    // Lets this provider's own statements through the authorizer while it lives. They can't be nested.
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
    // Throws 3709 once it is closed.
    sqlite3 *db() const;
    // A user's statement, refused unless it is one query.
    SqliteHandle prepareQuery(const QString &sql) const;
    // A statement of this provider's own; whatever is in it is meant.
    SqliteHandle prepareOwn(const QString &sql) const;
    // One that holds parts of a user's statement.
    SqliteHandle prepareReading(const QString &sql) const;

protected:
    // An empty database in memory, for an engine that adds what it reads.
    explicit SqliteSession(SqliteEngine engine);
    // From now on only statements that read are let through.
    void beginWatch();

private:
    // What the authorizer looks at.
    struct Watch
    {
        bool isOn = true;
        bool canWrite = false; // SQLite's own lock on writing is open, or could not be closed
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

// Steps a statement and answers whether it stands on a row.
bool stepRow(const SqliteHandle &statement);

} // namespace ADODB
