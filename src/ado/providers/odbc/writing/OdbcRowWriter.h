#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/reading/OdbcTypes.h"
#include "ado/providers/odbc/writing/OdbcTarget.h"

namespace ADODB {

class OdbcHandle;
class OdbcParameters;
class OdbcSession;
struct OdbcPatience;

class OdbcRowWriter : public RowWriter
{
public:
    // `types` are those of all columns, hidden ones too.
    OdbcRowWriter(std::shared_ptr<OdbcSession> session, OdbcTarget target,
                  std::vector<OdbcTypes::Declared> types);

    bool isWritable(int column) const override;
    void insert(const std::vector<Change> &changes, RowStore &stored) override;
    void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                RowStore &stored) override;
    void remove(const std::vector<RawValue> &row) override;

private:
    using Key = std::vector<RawValue>; // in the order of the target's key columns

    const QString &nameOf(int column) const { return m_target.columns[static_cast<std::size_t>(column)]; }
    QString keyCondition(const QString &prefix, const Key &key) const;
    void bind(OdbcParameters &parameters, int column, const RawValue &value) const;
    void bindKey(OdbcParameters &parameters, const Key &key) const;
    void bindChanges(OdbcParameters &parameters, const std::vector<Change> &changes) const;
    // How long to wait for a row that somebody else is changing.
    OdbcPatience patience() const;
    // What tells the server the same at the beginning of a transaction; empty where that is not needed.
    QString limitOfLocks() const;
    // Runs a statement that must change exactly one row.
    void changeOneRow(const OdbcHandle &statement) const;
    // The one row with that key, locked where the engine can.
    void readRow(const Key &key, RowStore &stored) const;
    // Both run the statement and give the new row's key, as the database answers it or as it was given.
    void insertAndReturnKey(const QString &insertion, const std::vector<Change> &changes,
                            RowStore &key) const;
    void insertAndFindKey(const QString &insertion, const std::vector<Change> &changes, RowStore &key) const;

    std::shared_ptr<OdbcSession> m_session;
    OdbcTarget m_target;
    std::vector<OdbcTypes::Declared> m_types;
};

} // namespace ADODB
