#include "ado/providers/odbc/writing/OdbcRowWriter.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/OdbcWatch.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/writing/OdbcParameters.h"
#include "ado/providers/odbc/writing/OdbcTransaction.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

bool same(const RawValue &a, const RawValue &b)
{
    return a.kind == b.kind && a.integer == b.integer && a.bytes == b.bytes &&
           (a.kind != RawValue::Kind::Real ||
            qstrcmp(QByteArray::number(a.real, 'g', 17), QByteArray::number(b.real, 'g', 17)) == 0);
}

Error rowGone()
{
    return Error(dbErrConcurrency, Texts::rowGone(), u"ODBC"_s, u"01001"_s);
}

Error rowNotUnique(qint64 rows)
{
    return Error(dbErrConcurrency, Texts::rowNotUnique().arg(rows), u"ODBC"_s, u"01001"_s);
}

// Keeps the values that a key is put together of.
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
    : m_session(std::move(session)), m_target(std::move(target)), m_types(std::move(types))
{
}

bool OdbcRowWriter::isWritable(int column) const
{
    return !nameOf(column).isEmpty();
}

QString OdbcRowWriter::keyCondition(const QString &prefix, const Key &key) const
{
    QStringList terms;
    for (std::size_t i = 0; i < key.size(); ++i) {
        const bool isNull = key[i].kind == RawValue::Kind::Null;
        terms += prefix + m_target.key[i].name + (isNull ? " IS NULL"_L1 : " = ?"_L1);
    }
    return terms.join(" AND "_L1);
}

void OdbcRowWriter::bind(OdbcParameters &parameters, int column, const RawValue &value) const
{
    parameters.bind(value, m_types[static_cast<std::size_t>(column)]);
}

void OdbcRowWriter::bindKey(OdbcParameters &parameters, const Key &key) const
{
    for (std::size_t i = 0; i < key.size(); ++i) {
        if (key[i].kind != RawValue::Kind::Null)
            bind(parameters, m_target.key[i].column, key[i]);
    }
}

void OdbcRowWriter::bindChanges(OdbcParameters &parameters, const std::vector<Change> &changes) const
{
    for (const Change &change : changes) {
        QByteArray bytes;
        bind(parameters, change.column, rawValue(change.value, bytes));
    }
}

// Nobody can stop a change, so it has a limit of its own where the connection has none: ADO's.
OdbcPatience OdbcRowWriter::patience() const
{
    constexpr int adoCommandTimeout = 30;
    const int limit = m_session->commandTimeout();
    return {limit > 0 ? limit : adoCommandTimeout};
}

// Where the driver can't stop a call that waits. A second later than what can be stopped, which tells the
// limit in its own words.
QString OdbcRowWriter::limitOfLocks() const
{
    const QString &limit = m_session->engine().limitLocks;
    return limit.isEmpty() ? QString() : limit.arg((patience().timeout + 1) * 1000);
}

void OdbcRowWriter::changeOneRow(const OdbcHandle &statement) const
{
    const SQLRETURN code =
        OdbcWatch(statement, patience()).run([&statement] { return SQLExecute(statement.get()); });
    if (code != SQL_NO_DATA)
        statement.check(code);
    SQLLEN changed = 0;
    if (code != SQL_NO_DATA)
        statement.check(SQLRowCount(statement.get(), &changed));
    if (changed == 0)
        throw rowGone();
    if (changed != 1)
        throw rowNotUnique(changed);
}

void OdbcRowWriter::readRow(const Key &key, RowStore &stored) const
{
    const OdbcEngine &engine = m_session->engine();
    OdbcQuery reading(m_session->connection(), engine,
                      m_target.selectRow + keyCondition(m_target.alias + u'.', key) + engine.lockRow,
                      patience());
    OdbcParameters parameters(reading.handle());
    bindKey(parameters, key);
    reading.read(stored, patience());
    if (stored.rows() == 0)
        throw rowGone();
    if (stored.rows() > 1)
        throw rowNotUnique(stored.rows());
}

void OdbcRowWriter::insertAndReturnKey(const QString &insertion, const std::vector<Change> &changes,
                                       RowStore &key) const
{
    QStringList names;
    for (const OdbcTarget::KeyColumn &column : m_target.key)
        names += column.name;
    OdbcQuery returning(m_session->connection(), m_session->engine(),
                        insertion + " RETURNING "_L1 + names.join(", "_L1), patience());
    OdbcParameters parameters(returning.handle());
    bindChanges(parameters, changes);
    returning.read(key, patience());
}

void OdbcRowWriter::insertAndFindKey(const QString &insertion, const std::vector<Change> &changes,
                                     RowStore &key) const
{
    const OdbcEngine &engine = m_session->engine();
    const auto given = [&](const OdbcTarget::KeyColumn &column) { return changeOf(changes, column.column); };
    const auto missing = std::find_if_not(m_target.key.begin(), m_target.key.end(), given);
    const bool isMade = m_target.isRealKey && m_target.key.size() == 1 && !engine.newKey.isEmpty();
    if (missing != m_target.key.end() && !isMade)
        throw Error(adErrFeatureNotAvailable, Texts::newRowWithoutKey().arg(missing->name));

    const OdbcHandle statement(m_session->connection());
    statement.prepare(insertion);
    OdbcParameters parameters(statement);
    bindChanges(parameters, changes);
    changeOneRow(statement);
    if (missing != m_target.key.end()) {
        OdbcQuery(m_session->connection(), engine, engine.newKey, patience()).read(key, patience());
        return;
    }
    for (const OdbcTarget::KeyColumn &column : m_target.key) {
        QByteArray bytes;
        key.add(rawValue(given(column)->value, bytes));
    }
    key.endRow();
}

void OdbcRowWriter::insert(const std::vector<Change> &changes, RowStore &stored)
{
    const OdbcEngine &engine = m_session->engine();
    OdbcTransaction transaction(m_session->connection(), limitOfLocks());
    QStringList names;
    QStringList places;
    for (const Change &change : changes) {
        names += nameOf(change.column);
        places += u"?"_s;
    }
    const bool isMySql = engine.dialect == SqlDialect::MySql;
    const QString values = changes.empty() && !isMySql
                               ? u"DEFAULT VALUES"_s
                               : u"(%1) VALUES (%2)"_s.arg(names.join(", "_L1), places.join(", "_L1));
    const QString insertion = "INSERT INTO "_L1 + m_target.table + u' ' + values;

    RowStore key(static_cast<int>(m_target.key.size()));
    if (engine.returning)
        insertAndReturnKey(insertion, changes, key);
    else
        insertAndFindKey(insertion, changes, key);
    // A trigger or a rule can have put the row elsewhere.
    if (key.rows() != 1)
        throw rowGone();
    readRow(key.row(0), stored);
    transaction.commit();
}

void OdbcRowWriter::update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                           RowStore &stored)
{
    OdbcTransaction transaction(m_session->connection(), limitOfLocks());
    Key before;
    Key after;
    KeyValues kept(m_target.key.size());
    for (std::size_t i = 0; i < m_target.key.size(); ++i) {
        const int column = m_target.key[i].column;
        before.push_back(row[static_cast<std::size_t>(column)]);
        const Change *change = changeOf(changes, column);
        after.push_back(change ? kept.keep(i, change->value) : before.back());
    }
    // What this edit replaces must still be what its author saw. The values are compared here because not
    // every type knows an equals sign.
    RowStore found(stored.columns());
    readRow(before, found);
    const std::vector<RawValue> now = found.row(0);
    QStringList assignments;
    for (const Change &change : changes) {
        const auto column = static_cast<std::size_t>(change.column);
        if (!same(now[column], row[column]))
            throw rowGone();
        assignments += nameOf(change.column) + " = ?"_L1;
    }
    const OdbcHandle statement(m_session->connection());
    statement.prepare("UPDATE "_L1 + m_target.table + " SET "_L1 + assignments.join(", "_L1) + " WHERE "_L1 +
                      keyCondition({}, before));
    OdbcParameters parameters(statement);
    bindChanges(parameters, changes);
    bindKey(parameters, before);
    changeOneRow(statement);
    readRow(after, stored);
    transaction.commit();
}

void OdbcRowWriter::remove(const std::vector<RawValue> &row)
{
    OdbcTransaction transaction(m_session->connection(), limitOfLocks());
    Key key;
    for (const OdbcTarget::KeyColumn &column : m_target.key)
        key.push_back(row[static_cast<std::size_t>(column.column)]);
    const OdbcHandle statement(m_session->connection());
    statement.prepare("DELETE FROM "_L1 + m_target.table + " WHERE "_L1 + keyCondition({}, key));
    OdbcParameters parameters(statement);
    bindKey(parameters, key);
    changeOneRow(statement);
    transaction.commit();
}

} // namespace ADODB
