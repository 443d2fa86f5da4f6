#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

namespace ADODB {

struct OdbcTable;
struct OdbcTableFields;

// The environment and connection handles of one connection. Statements share ownership, so a closed
// connection ends only when the last statement that reads from it ends.
class OdbcConnection
{
public:
    OdbcConnection();
    ~OdbcConnection();
    Q_DISABLE_COPY_MOVE(OdbcConnection)

    // Throws the driver's error. It contains none of `secrets`, which are also removed from all later errors.
    void connect(const QString &text, int timeoutInSeconds, const QStringList &secrets);

    SQLHDBC handle() const { return m_connection; }
    const QStringList &secrets() const { return m_secrets; }
    QString info(SQLUSMALLINT what) const;
    SQLUINTEGER number(SQLUSMALLINT what) const;
    SQLUSMALLINT shortNumber(SQLUSMALLINT what) const;

    // Set when the connection to the server was lost; it is then unusable.
    bool isLost() const { return m_lost; }
    void setLost() { m_lost = true; }
    // What the driver knows about that; empty if it doesn't know.
    std::optional<bool> isDead() const;
    // Whether another command may use it; see OdbcPool.
    bool isFit() const { return m_fit && !m_lost; }
    void setUnfit() { m_fit = false; }
    // It was idle and has not been used since.
    bool isUntried() const { return m_untried; }
    void setTried() { m_untried = false; }
    void setIdle();
    std::chrono::steady_clock::duration idleTime() const;
    // The statement to cancel in order to stop a call on `running`: the same one, or a dedicated one.
    // Creating a dedicated one can throw the driver's error.
    SQLHSTMT canceller(SQLHSTMT running) const { return m_canceller ? m_canceller : running; }
    void makeCanceller();
    // Whether the server supports OdbcEngine::planForAllRows; true until it has rejected it.
    bool plansForAllRows() const { return m_plansForAllRows; }
    void setPlansForAllRows(bool does) { m_plansForAllRows = does; }
    // What the catalogue said about tables in this session, by their names in a statement.
    QHash<QString, std::shared_ptr<const OdbcTable>> &tables() { return m_tables; }
    // The columns of whole tables, as described in this session; same keys.
    QHash<QString, std::shared_ptr<const OdbcTableFields>> &tableFields() { return m_tableFields; }
    // The number of OdbcReading objects.
    int readings() const { return m_readings; }
    void setReadings(int readings) { m_readings = readings; }
    // Whether there is none, but the transaction of the last one was kept for the next.
    bool isReadingKept() const { return m_isReadingKept; }
    void setReadingKept(bool isKept) { m_isReadingKept = isKept; }

private:
    void release();

    SQLHENV m_environment = SQL_NULL_HANDLE;
    SQLHDBC m_connection = SQL_NULL_HANDLE;
    SQLHSTMT m_canceller = SQL_NULL_HANDLE;
    bool m_connected = false;
    std::atomic<bool> m_lost = false;
    std::atomic<bool> m_fit = true;
    bool m_untried = false;
    std::chrono::steady_clock::time_point m_idleSince;
    std::atomic<int> m_readings = 0;
    bool m_isReadingKept = false;
    bool m_plansForAllRows = true;
    QHash<QString, std::shared_ptr<const OdbcTable>> m_tables;
    QHash<QString, std::shared_ptr<const OdbcTableFields>> m_tableFields;
    QStringList m_secrets;
};

// A statement handle. It keeps its connection open.
class OdbcHandle
{
public:
    explicit OdbcHandle(std::shared_ptr<OdbcConnection> connection);
    ~OdbcHandle();
    Q_DISABLE_COPY_MOVE(OdbcHandle)

    SQLHSTMT get() const { return m_statement; }
    const std::shared_ptr<OdbcConnection> &connection() const { return m_connection; }

    // Throws the driver's error if a call on this statement failed.
    void check(SQLRETURN code) const;
    void set(SQLINTEGER attribute, std::uintptr_t value) const;
    void set(SQLINTEGER attribute, void *address) const;

    void prepare(const QString &sql) const;
    void execute(const QString &sql) const;
    // Returns false if there is no further row.
    bool fetch() const;
    int columns() const;
    QString columnText(int column, SQLUSMALLINT what) const; // empty if the driver does not know it
    qint64 columnNumber(int column, SQLUSMALLINT what) const;

private:
    std::shared_ptr<OdbcConnection> m_connection;
    SQLHSTMT m_statement = SQL_NULL_HANDLE;
};

} // namespace ADODB
