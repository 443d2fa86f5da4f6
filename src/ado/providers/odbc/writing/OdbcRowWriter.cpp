#include "ado/providers/odbc/writing/OdbcRowWriter.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"
#include "ado/providers/odbc/writing/OdbcParameters.h"
#include "ado/providers/odbc/writing/OdbcTable.h"
#include "ado/providers/odbc/writing/OdbcTransaction.h"
#include "ado/rows/RowComparison.h"
#include "ado/rows/RowStore.h"
#include "ado/values/FieldValue.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

QString source()
{
    return u"ODBC"_s;
}

// The database changed the given values, and nothing else tells which row they are in.
Error changedRowLost()
{
    return Error(dbErrFailed, Texts::changedRowLost(), source());
}

// Stores the values that make up a key.
class KeyValues
{
public:
    explicit KeyValues(std::size_t count) : m_bytes(count) {}
    RawValue keep(std::size_t place, const QVariant &value) { return rawValue(value, m_bytes[place]); }

private:
    std::vector<QByteArray> m_bytes;
};

const Change *changeOf(const std::vector<Change> &changes, int column)
{
    const auto found = std::find_if(changes.begin(), changes.end(),
                                    [column](const Change &change) { return change.column == column; });
    return found == changes.end() ? nullptr : &*found;
}

} // namespace

OdbcRowWriter::OdbcRowWriter(std::shared_ptr<OdbcSession> session, OdbcTarget target,
                             std::vector<OdbcTypes::Declared> types)
    : m_session(session), m_row(std::move(session), std::move(target), std::move(types))
{
}

bool OdbcRowWriter::isWritable(int column) const
{
    return !nameOf(column).isEmpty();
}

bool OdbcRowWriter::keepsZones(int column) const
{
    return m_row.type(column).isZoned;
}

void OdbcRowWriter::bindChanges(OdbcParameters &parameters, const std::vector<Change> &changes) const
{
    for (const Change &change : changes) {
        QByteArray bytes;
        m_row.bind(parameters, change.column, rawValue(change.value, bytes));
    }
}

// For engines whose driver can't cancel a waiting call. One second more than the limit of calls that can be
// cancelled, so that those report the limit in their own words.
QString OdbcRowWriter::limitOfLocks() const
{
    const QString &limit = m_session->engine().limitLocks;
    return limit.isEmpty() ? QString() : limit.arg((timeout() + 1) * 1000);
}

qint64 OdbcRowWriter::change(const OdbcHandle &statement) const
{
    OdbcOperation *const operation = target().hasTransactions ? nullptr : OdbcOperation::current();
    if (operation)
        operation->setSaving(true);
    try {
        const SQLRETURN code =
            OdbcWatch(statement, timeout()).run([&statement] { return SQLExecute(statement.get()); });
        if (code == SQL_NO_DATA)
            return 0;
        statement.check(code);
    } catch (const Error &error) {
        // If the server answered with an error, nothing was changed. Without an answer, that is unknown.
        const bool isSilence = statement.connection()->isLost() || error.SQLState().startsWith("HYT"_L1);
        if (target().hasTransactions || !isSilence)
            throw;
        throw Error(dbErrInDoubt, Texts::inDoubt().arg(error.Description()), source(), error.SQLState(),
                    error.NativeError());
    }
    SQLLEN changed = 0;
    statement.check(SQLRowCount(statement.get(), &changed));
    return changed;
}

void OdbcRowWriter::needTransactions() const
{
    const OdbcEngine &engine = m_session->engine();
    if (engine.hasOldTables && hasTransactions() &&
        !OdbcTable::isTransactional(m_session->connection(), engine, target().fullName, target().table,
                                    timeout()))
        throw Error(dbErrConcurrency, Texts::tableAltered(), source(), u"01001"_s);
}

qint64 OdbcRowWriter::changeRow(const QString &sql, const std::vector<Change> &changes,
                                const std::vector<RawValue> &row, const Key &key) const
{
    const OdbcHandle statement(m_session->connection());
    statement.prepare(sql + m_row.condition(key));
    OdbcParameters parameters(statement);
    bindChanges(parameters, changes);
    m_row.bindCondition(parameters, row, key);
    return change(statement);
}

template<typename Action>
void OdbcRowWriter::onceWritten(Action &&action) const
{
    try {
        action();
    } catch (const Error &error) {
        if (target().hasTransactions || error.is(dbErrInDoubt))
            throw;
        throw Error(dbErrInDoubt, Texts::savedUnseen().arg(error.Description()), source(), error.SQLState(),
                    error.NativeError());
    }
}

QString OdbcRowWriter::returningKey() const
{
    QStringList names;
    for (const OdbcTarget::KeyColumn &column : target().key)
        names += column.name;
    return " RETURNING "_L1 + names.join(", "_L1);
}

void OdbcRowWriter::insertAndReturnKey(const QString &insertion, const std::vector<Change> &changes,
                                       RowStore &key) const
{
    OdbcQuery returning(m_session->connection(), m_session->engine(), insertion + returningKey(), timeout());
    OdbcParameters parameters(returning.handle());
    bindChanges(parameters, changes);
    returning.read(key, timeout());
}

void OdbcRowWriter::insertAndFindKey(const QString &insertion, const std::vector<Change> &changes,
                                     RowStore &key) const
{
    const OdbcEngine &engine = m_session->engine();
    const auto given = [&](const OdbcTarget::KeyColumn &column) { return changeOf(changes, column.column); };
    const auto missing = std::find_if_not(target().key.begin(), target().key.end(), given);
    const bool isMade = target().isRealKey && target().key.size() == 1 && !engine.newKey.isEmpty();
    if (missing != target().key.end() && !isMade)
        throw Error(adErrFeatureNotAvailable, Texts::newRowWithoutKey().arg(missing->name));

    const OdbcHandle statement(m_session->connection());
    statement.prepare(insertion);
    OdbcParameters parameters(statement);
    bindChanges(parameters, changes);
    RowComparison::needOneChange(change(statement), source());
    if (missing != target().key.end()) {
        OdbcQuery(m_session->connection(), engine, engine.newKey, timeout()).read(key, timeout());
        return;
    }
    for (const OdbcTarget::KeyColumn &column : target().key) {
        QByteArray bytes;
        key.add(rawValue(given(column)->value, bytes));
    }
    key.endRow();
}

void OdbcRowWriter::insert(const std::vector<Change> &changes, RowStore &stored)
{
    insertRow(changes, {}, stored);
}

void OdbcRowWriter::appendSent(const std::vector<Change> &changes, RowStore &sent) const
{
    const auto isGiven = [&](const OdbcTarget::KeyColumn &key) { return changeOf(changes, key.column); };
    if (!target().isRealKey || !std::ranges::all_of(target().key, isGiven))
        return;
    for (int column = 0; column < sent.columns(); ++column) {
        QByteArray bytes;
        const Change *const change = changeOf(changes, column);
        sent.add(change ? rawValue(change->value, bytes) : RawValue());
    }
    sent.endRow();
}

void OdbcRowWriter::insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                                RowStore &stored)
{
    std::vector<Change> all = changes;
    for (const OdbcTarget::KeyColumn &key : target().key) {
        const RawValue &made = before[static_cast<std::size_t>(key.column)];
        if (target().isRealKey && m_session->engine().takesMadeKeys && !changeOf(changes, key.column))
            all.push_back({key.column, FieldValue::toStorage(FieldValue::fromRaw(made, adVariant))});
    }
    insertRow(all, m_session->engine().overrideKey, stored);
}

void OdbcRowWriter::insertRow(const std::vector<Change> &changes, const QString &override, RowStore &stored)
{
    const OdbcEngine &engine = m_session->engine();
    OdbcTransaction transaction(*m_session, limitOfLocks());
    needTransactions();
    QStringList names;
    QStringList places;
    for (const Change &change : changes) {
        const auto key = std::ranges::find(target().key, change.column, &OdbcTarget::KeyColumn::column);
        names += key == target().key.end() ? nameOf(change.column) : key->name;
        places += u"?"_s;
    }
    const QString values =
        changes.empty() && engine.dialect != SqlDialect::MySql
            ? u"DEFAULT VALUES"_s
            : u"(%1)%2 VALUES (%3)"_s.arg(names.join(", "_L1), override, places.join(", "_L1));
    const QString insertion = "INSERT INTO "_L1 + target().table + u' ' + values;

    RowStore key(static_cast<int>(target().key.size()));
    if (engine.returning)
        insertAndReturnKey(insertion, changes, key);
    else
        insertAndFindKey(insertion, changes, key);
    onceWritten([&] {
        // A trigger or a rule can have moved the row.
        RowComparison::needOneChange(key.rows(), source());
        m_row.readRows(key.row(0), Lock::None, stored);
        if (stored.rows() == 0)
            throw changedRowLost();
        RowComparison::needOneRow(stored.rows(), source());
    });
    transaction.commit();
}

void OdbcRowWriter::update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                           RowStore &stored)
{
    OdbcTransaction transaction(*m_session, limitOfLocks());
    needTransactions();
    const Key before = m_row.keyOf(row);
    RowStore found(stored.columns());
    m_row.needRowAsShown(row, before, found);
    QStringList assignments;
    for (const Change &change : changes)
        assignments += nameOf(change.column) + " = ?"_L1;
    const QString sql = "UPDATE "_L1 + target().table + " SET "_L1 + assignments.join(", "_L1);
    if (m_session->engine().returning)
        updateAndReturn(sql, changes, before, stored);
    else
        updateAndFind(sql, changes, row, found, stored);
    transaction.commit();
}

// Returns the key as the database stored it, so that the row can be found by it.
void OdbcRowWriter::updateAndReturn(const QString &sql, const std::vector<Change> &changes, const Key &before,
                                    RowStore &stored) const
{
    OdbcQuery returning(m_session->connection(), m_session->engine(),
                        sql + m_row.condition(before) + returningKey(), timeout());
    OdbcParameters parameters(returning.handle());
    bindChanges(parameters, changes);
    m_row.bindKey(parameters, before);
    RowStore after(static_cast<int>(target().key.size()));
    returning.read(after, timeout());
    RowComparison::needOneChange(after.rows(), source());
    m_row.readRows(after.row(0), Lock::None, stored);
    RowComparison::needOneRow(stored.rows(), source());
}

void OdbcRowWriter::updateAndFind(const QString &sql, const std::vector<Change> &changes,
                                  const std::vector<RawValue> &row, const RowStore &found,
                                  RowStore &stored) const
{
    const Key before = m_row.keyOf(row);
    Key after = before;
    KeyValues kept(after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (const Change *change = changeOf(changes, target().key[i].column))
            after[i] = kept.keep(i, change->value);
    }
    const qint64 changed = changeRow(sql, changes, row, before);
    // MariaDB and MySQL do not count a row that already has the new values, for example after rounding.
    const bool isSame = changed == 0 && m_session->engine().dialect == SqlDialect::MySql;
    if (!isSame)
        RowComparison::needOneChange(changed, source());
    const auto readBack = [&] {
        m_row.readRows(isSame ? before : after, Lock::None, stored);
        if (isSame)
            RowComparison::needRowAsShown(stored, found.row(0), target().compared, source());
        else if (stored.rows() == 0)
            throw changedRowLost();
        RowComparison::needOneRow(stored.rows(), source());
    };
    if (isSame)
        readBack();
    else
        onceWritten(readBack);
}

void OdbcRowWriter::remove(const std::vector<RawValue> &row)
{
    OdbcTransaction transaction(*m_session, limitOfLocks());
    needTransactions();
    const Key key = m_row.keyOf(row);
    RowStore found(static_cast<int>(row.size()));
    m_row.needRowAsShown(row, key, found);
    const qint64 removed = changeRow("DELETE FROM "_L1 + target().table, {}, row, key);
    if (removed != 0 || !isGoneUncounted(key, found.columns()))
        RowComparison::needOneChange(removed, source());
    transaction.commit();
}

// MariaDB's engine for tables distributed over other servers deletes a row but counts none. The row existed
// earlier in this transaction, so it is checked again.
bool OdbcRowWriter::isGoneUncounted(const Key &key, int columns) const
{
    if (m_session->engine().dialect != SqlDialect::MySql || !target().hasTransactions)
        return false;
    RowStore rows(columns);
    m_row.readRows(key, Lock::None, rows);
    return rows.rows() == 0;
}

bool OdbcRowWriter::read(const std::vector<RawValue> &row, RowStore &now)
{
    m_session->begin(
        [&](const std::shared_ptr<OdbcConnection> &) { m_row.readRows(m_row.keyOf(row), Lock::None, now); });
    return now.rows() > 0;
}

} // namespace ADODB
