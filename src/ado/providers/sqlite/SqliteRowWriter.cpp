#include "ado/providers/sqlite/SqliteRowWriter.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteCall.h"
#include "ado/providers/sqlite/SqliteStatement.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// Undone unless it is committed.
class Transaction
{
public:
    explicit Transaction(const SqliteSession &session) : m_session(session)
    {
        // The lock is taken at once, so a busy database is noticed before anything is changed.
        SqliteCall(m_session, u"BEGIN IMMEDIATE"_s).step();
    }
    ~Transaction()
    {
        // Some failures have already ended it.
        if (!sqlite3_get_autocommit(m_session.db()))
            sqlite3_exec(m_session.db(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
    Q_DISABLE_COPY_MOVE(Transaction)

    void commit() { SqliteCall(m_session, u"COMMIT"_s).step(); }

private:
    const SqliteSession &m_session;
};

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
        // The last one, because that is the one that counts where two fields show the same column.
        const auto change = std::find_if(changes.rbegin(), changes.rend(), [&](const Change &candidate) {
            return nameOf(candidate.column) == key.written;
        });
        if (change != changes.rend())
            call.bind(change->value);
        else
            call.bind(row.empty() ? RawValue() : row[static_cast<std::size_t>(key.column)]);
    }
}

QString SqliteRowWriter::seenCondition(const std::vector<int> &unchanged) const
{
    QString condition = keyCondition({});
    for (const int column : unchanged)
        condition += " AND "_L1 + nameOf(column) + " IS ?"_L1;
    return condition;
}

void SqliteRowWriter::bindSeen(SqliteCall &call, const std::vector<RawValue> &row,
                               const std::vector<int> &unchanged) const
{
    bindKey(call, row, {});
    for (const int column : unchanged)
        call.bind(row[static_cast<std::size_t>(column)]);
}

void SqliteRowWriter::readBack(SqliteCall &call, RowStore &stored) const
{
    if (!call.step())
        throw Error(dbErrConcurrency, Texts::rowGone(), u"SQLite"_s, u"01001"_s);
    appendCurrentRow(call.handle(), stored);
    // Without a key the row can have become equal to another; which of the two was read is then anyone's
    // guess.
    if (call.step())
        throw Error(dbErrConcurrency, Texts::rowNotUnique().arg(2), u"SQLite"_s, u"01001"_s);
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
    SqliteCall insertion(*m_session, u"INSERT INTO "_s + m_target.table + u' ' + values);
    for (const Change &change : changes)
        insertion.bind(change.value);
    insertion.changeOneRow();

    const QString prefix = m_target.alias + u'.';
    if (m_target.rowId.isEmpty()) {
        SqliteCall reading(*m_session, m_target.selectRow + keyCondition(prefix));
        bindKey(reading, {}, changes);
        readBack(reading, stored);
    } else {
        SqliteCall reading(*m_session, m_target.selectRow + prefix + m_target.rowId + " = ?"_L1);
        reading.bind(RawValue::fromInteger(sqlite3_last_insert_rowid(m_session->db())));
        readBack(reading, stored);
    }
    transaction.commit();
}

void SqliteRowWriter::update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                             RowStore &stored)
{
    Transaction transaction(*m_session);
    QStringList assignments;
    std::vector<int> unchanged = m_target.witnesses;
    for (const Change &change : changes) {
        assignments += nameOf(change.column) + " = ?"_L1;
        unchanged.push_back(change.column); // what this edit replaces must still be what its author saw
    }
    SqliteCall writing(*m_session, u"UPDATE %1 SET "_s.arg(m_target.table) + assignments.join(", "_L1) +
                                       " WHERE "_L1 + seenCondition(unchanged));
    for (const Change &change : changes)
        writing.bind(change.value);
    bindSeen(writing, row, unchanged);
    writing.changeOneRow();

    SqliteCall reading(*m_session, m_target.selectRow + keyCondition(m_target.alias + u'.'));
    bindKey(reading, row, changes);
    readBack(reading, stored);
    transaction.commit();
}

void SqliteRowWriter::remove(const std::vector<RawValue> &row)
{
    Transaction transaction(*m_session);
    SqliteCall deletion(*m_session,
                        u"DELETE FROM %1 WHERE "_s.arg(m_target.table) + seenCondition(m_target.witnesses));
    bindSeen(deletion, row, m_target.witnesses);
    deletion.changeOneRow();
    transaction.commit();
}

} // namespace ADODB
