#include "ado/providers/odbc/writing/OdbcRowFinder.h"

#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/writing/OdbcParameters.h"
#include "ado/rows/RowComparison.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QStringList>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

OdbcRowFinder::OdbcRowFinder(std::shared_ptr<OdbcSession> session, OdbcTarget target,
                             std::vector<OdbcTypes::Declared> types)
    : m_session(std::move(session)), m_target(std::move(target)), m_types(std::move(types))
{
}

// A change can't be cancelled, so it gets ADO's time limit if the connection has none.
int OdbcRowFinder::timeout() const
{
    constexpr int adoCommandTimeout = 30;
    const int limit = m_session->commandTimeout();
    return limit > 0 ? limit : adoCommandTimeout;
}

OdbcRowFinder::Key OdbcRowFinder::keyOf(const std::vector<RawValue> &row) const
{
    Key key;
    for (const OdbcTarget::KeyColumn &column : m_target.key)
        key.push_back(row[static_cast<std::size_t>(column.column)]);
    return key;
}

QString OdbcRowFinder::keyCondition(const QString &prefix, const Key &key) const
{
    QStringList terms;
    for (std::size_t i = 0; i < key.size(); ++i) {
        const bool isNull = key[i].kind == RawValue::Kind::Null;
        terms += prefix + m_target.key[i].name + (isNull ? " IS NULL"_L1 : " = ?"_L1);
    }
    return terms.join(" AND "_L1);
}

void OdbcRowFinder::bind(OdbcParameters &parameters, int column, const RawValue &value) const
{
    parameters.bind(value, m_types[static_cast<std::size_t>(column)]);
}

void OdbcRowFinder::bindKey(OdbcParameters &parameters, const Key &key) const
{
    for (std::size_t i = 0; i < key.size(); ++i) {
        if (key[i].kind != RawValue::Kind::Null)
            bind(parameters, m_target.key[i].column, key[i]);
    }
}

void OdbcRowFinder::readRows(const Key &key, Lock lock, RowStore &rows) const
{
    const OdbcEngine &engine = m_session->engine();
    const QString end = lock == Lock::Row ? engine.lockRow : QString();
    OdbcQuery reading(m_session->connection(), engine,
                      m_target.selectRow + keyCondition(m_target.alias + u'.', key) + end, timeout());
    OdbcParameters parameters(reading.handle());
    bindKey(parameters, key);
    reading.read(rows, timeout());
}

void OdbcRowFinder::needRowAsShown(const std::vector<RawValue> &row, const Key &key, RowStore &found) const
{
    readRows(key, Lock::Row, found);
    RowComparison::needRowAsShown(found, row, m_target.compared, u"ODBC"_s);
}

QString OdbcRowFinder::condition(const Key &key) const
{
    QString text = " WHERE "_L1 + keyCondition({}, key);
    for (const OdbcTarget::KeyColumn &witness : m_target.witnesses)
        text += " AND "_L1 + witness.name;
    return m_target.hasTransactions ? text : text + " LIMIT 1"_L1;
}

void OdbcRowFinder::bindCondition(OdbcParameters &parameters, const std::vector<RawValue> &row,
                                  const Key &key) const
{
    bindKey(parameters, key);
    for (const OdbcTarget::KeyColumn &witness : m_target.witnesses)
        bind(parameters, witness.column, row[static_cast<std::size_t>(witness.column)]);
}

} // namespace ADODB
