#include "ado/providers/sqlite/SqliteRowWriter.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteCall.h"
#include "ado/providers/sqlite/SqliteStatement.h"
#include "ado/rows/RowComparison.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// If the file was replaced, SQLite with a write-ahead log would continue to use the deleted file, together
// with the log of the new one.
void needFileInPlace(sqlite3 *db)
{
    int hasMoved = 0;
    if (sqlite3_file_control(db, "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved) == SQLITE_OK && hasMoved)
        throw Error(dbErrFailed, Texts::fileReplaced(), u"SQLite"_s);
}

// Rolled back unless it is committed. COMMIT and ROLLBACK are compiled before BEGIN, so that ending the
// transaction needs no memory.
class Transaction
{
public:
    explicit Transaction(const SqliteSession &session)
        : m_writing(session),
          m_commit(session, SqliteCall::Writes, u"COMMIT"_s),
          m_rollback(session, SqliteCall::Writes, u"ROLLBACK"_s)
    {
        needFileInPlace(session.db());
        // Locks at once. So a busy database is detected before anything is changed, and what is read stays
        // the same until the end.
        SqliteCall(session, SqliteCall::Writes, u"BEGIN IMMEDIATE"_s).step();
    }
    ~Transaction()
    {
        // Some errors have already ended the transaction.
        if (sqlite3_get_autocommit(sqlite3_db_handle(m_rollback.handle())))
            return;
        try {
            m_rollback.step();
        } catch (const Error &) {
            // Closing the connection rolls it back too, and so does the next program that opens the file.
        } catch (const std::exception &error) {
            qWarning("A transaction could not be rolled back: %s", error.what());
        }
    }
    Q_DISABLE_COPY_MOVE(Transaction)

    void commit() { m_commit.step(); }

private:
    const SqliteSession::Writing m_writing;
    SqliteCall m_commit;
    SqliteCall m_rollback;
};

QString sqliteName()
{
    return u"SQLite"_s;
}

// A trigger can prevent the change, and a statement on a virtual table can change several rows.
void changeOneRow(SqliteCall &call)
{
    call.step();
    RowComparison::needOneChange(sqlite3_changes(sqlite3_db_handle(call.handle())), sqliteName());
}

} // namespace

SqliteRowWriter::SqliteRowWriter(std::shared_ptr<SqliteSession> session, SqliteTarget target)
    : m_session(std::move(session)), m_target(std::move(target))
{
}

const QString &SqliteRowWriter::nameOf(int column) const
{
    return m_target.columns[static_cast<std::size_t>(column)];
}

bool SqliteRowWriter::isWritable(int column) const
{
    return !nameOf(column).isEmpty();
}

// IS rather than =, because a key can hold Null.
QString SqliteRowWriter::keyCondition(const QString &prefix) const
{
    QStringList terms;
    for (const auto &key : m_target.key)
        terms += prefix + key.name + " IS ?"_L1;
    return terms.join(" AND "_L1);
}

void SqliteRowWriter::bindKey(SqliteCall &call, const std::vector<RawValue> &row,
                              const std::vector<Change> &changes) const
{
    for (const auto &key : m_target.key) {
        // The last one, because the last value wins if two fields show the same column.
        const auto change = std::find_if(changes.rbegin(), changes.rend(), [&](const Change &candidate) {
            return nameOf(candidate.column) == key.written;
        });
        if (change != changes.rend())
            call.bind(change->value);
        else
            call.bind(row.empty() ? RawValue() : row[static_cast<std::size_t>(key.column)]);
    }
}

void SqliteRowWriter::readRow(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                              RowStore &found) const
{
    SqliteCall reading(*m_session, SqliteCall::Reads,
                       m_target.selectRow + keyCondition(m_target.alias + u'.'));
    bindKey(reading, row, changes);
    while (reading.step())
        appendCurrentRow(reading.handle(), found);
}

void SqliteRowWriter::needRowAsShown(const std::vector<RawValue> &row) const
{
    RowStore found(static_cast<int>(row.size()));
    readRow(row, {}, found);
    RowComparison::needRowAsShown(found, row, m_target.compared, sqliteName());
}

void SqliteRowWriter::insert(const std::vector<Change> &changes, RowStore &stored)
{
    Transaction transaction(*m_session);
    QStringList names;
    QStringList places;
    for (const Change &change : changes) {
        names += nameOf(change.column);
        places += u"?"_s;
    }
    const QString values = changes.empty()
                               ? u"DEFAULT VALUES"_s
                               : u"(%1) VALUES (%2)"_s.arg(names.join(", "_L1), places.join(", "_L1));
    SqliteCall insertion(*m_session, SqliteCall::Writes, u"INSERT INTO "_s + m_target.table + u' ' + values);
    for (const Change &change : changes)
        insertion.bind(change.value);
    changeOneRow(insertion);
    if (m_target.rowId.isEmpty()) {
        readRow({}, changes, stored);
    } else {
        SqliteCall reading(*m_session, SqliteCall::Reads,
                           m_target.selectRow + m_target.alias + u'.' + m_target.rowId + " = ?"_L1);
        reading.bind(RawValue::fromInteger(sqlite3_last_insert_rowid(m_session->db())));
        while (reading.step())
            appendCurrentRow(reading.handle(), stored);
    }
    RowComparison::needOneRow(stored.rows(), sqliteName());
    transaction.commit();
}

void SqliteRowWriter::update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                             RowStore &stored)
{
    Transaction transaction(*m_session);
    needRowAsShown(row);
    QStringList assignments;
    for (const Change &change : changes)
        assignments += nameOf(change.column) + " = ?"_L1;
    SqliteCall writing(*m_session, SqliteCall::Writes,
                       u"UPDATE %1 SET "_s.arg(m_target.table) + assignments.join(", "_L1) + " WHERE "_L1 +
                           keyCondition({}));
    for (const Change &change : changes)
        writing.bind(change.value);
    bindKey(writing, row, {});
    changeOneRow(writing);
    readRow(row, changes, stored);
    RowComparison::needOneRow(stored.rows(), sqliteName());
    transaction.commit();
}

void SqliteRowWriter::remove(const std::vector<RawValue> &row)
{
    Transaction transaction(*m_session);
    needRowAsShown(row);
    SqliteCall deletion(*m_session, SqliteCall::Writes,
                        u"DELETE FROM %1 WHERE "_s.arg(m_target.table) + keyCondition({}));
    bindKey(deletion, row, {});
    changeOneRow(deletion);
    transaction.commit();
}

bool SqliteRowWriter::read(const std::vector<RawValue> &row, RowStore &now)
{
    readRow(row, {}, now);
    return now.rows() > 0;
}

} // namespace ADODB
