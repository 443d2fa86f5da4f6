#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/reading/OdbcTypes.h"
#include "ado/providers/odbc/writing/OdbcTarget.h"

namespace ADODB {

class OdbcParameters;
class OdbcSession;

// Finds a row of a target again: by its key, and to change it, also by what must be unchanged in it.
class OdbcRowFinder
{
public:
    using Key = std::vector<RawValue>; // in the order of the target's key columns
    enum class Lock { None, Row };

    // `types` are those of all columns, including hidden ones.
    OdbcRowFinder(std::shared_ptr<OdbcSession> session, OdbcTarget target,
                  std::vector<OdbcTypes::Declared> types);

    const OdbcTarget &target() const { return m_target; }
    const OdbcTypes::Declared &type(int column) const { return m_types[static_cast<std::size_t>(column)]; }
    // The seconds to wait for a row that somebody else is changing.
    int timeout() const;
    Key keyOf(const std::vector<RawValue> &row) const;
    void bind(OdbcParameters &parameters, int column, const RawValue &value) const;
    void bindKey(OdbcParameters &parameters, const Key &key) const;
    // Reads all rows with that key.
    void readRows(const Key &key, Lock lock, RowStore &rows) const;
    // Throws unless the row exists and is unchanged since it was shown. Locks it if the engine can.
    void needRowAsShown(const std::vector<RawValue> &row, const Key &key, RowStore &found) const;
    // The condition by which a statement that changes the row finds it, and its parameters.
    QString condition(const Key &key) const;
    void bindCondition(OdbcParameters &parameters, const std::vector<RawValue> &row, const Key &key) const;

private:
    QString keyCondition(const QString &prefix, const Key &key) const;

    std::shared_ptr<OdbcSession> m_session;
    OdbcTarget m_target;
    std::vector<OdbcTypes::Declared> m_types;
};

} // namespace ADODB
