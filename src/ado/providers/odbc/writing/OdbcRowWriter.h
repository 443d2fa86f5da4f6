#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/writing/OdbcRowFinder.h"

namespace ADODB {

class OdbcHandle;
class OdbcParameters;
class OdbcSession;

class OdbcRowWriter : public RowWriter
{
public:
    // `types` are those of all columns, including hidden ones.
    OdbcRowWriter(std::shared_ptr<OdbcSession> session, OdbcTarget target,
                  std::vector<OdbcTypes::Declared> types);

    bool isWritable(int column) const override;
    bool keepsZones(int column) const override;
    // Drivers treat it as the end of the text, either when writing or when reading.
    bool keepsNulCharacters() const override { return false; }
    bool hasTransactions() const { return target().hasTransactions; }
    // The seconds to wait for a row that somebody else is changing.
    int timeout() const { return m_row.timeout(); }
    void insert(const std::vector<Change> &changes, RowStore &stored) override;
    void insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                     RowStore &stored) override;
    void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                RowStore &stored) override;
    void remove(const std::vector<RawValue> &row) override;
    bool read(const std::vector<RawValue> &row, RowStore &now) override;
    // Appends the row that insert() was to save as far as `changes` say, if they contain its key.
    void appendSent(const std::vector<Change> &changes, RowStore &sent) const;

private:
    using Key = OdbcRowFinder::Key;
    using Lock = OdbcRowFinder::Lock;

    const OdbcTarget &target() const { return m_row.target(); }
    const QString &nameOf(int column) const { return target().columns[static_cast<std::size_t>(column)]; }
    void bindChanges(OdbcParameters &parameters, const std::vector<Change> &changes) const;
    // Sets the same limit in the server at the start of a transaction; empty if not needed.
    QString limitOfLocks() const;
    // Runs the statement and returns how many rows it changed.
    qint64 change(const OdbcHandle &statement) const;
    // Throws if somebody has made the table one whose changes can't be undone, and keeps it as it is until
    // the transaction ends.
    void needTransactions() const;
    // Runs a statement that changes `row`, with a condition on it.
    qint64 changeRow(const QString &sql, const std::vector<Change> &changes, const std::vector<RawValue> &row,
                     const Key &key) const;
    // Whether a row that existed is gone, although the DELETE did not count it.
    bool isGoneUncounted(const Key &key, int columns) const;
    // Both run the statement with a condition on the row and read the row again: by the key that the database
    // returns, or by the one that results from the changes.
    void updateAndReturn(const QString &sql, const std::vector<Change> &changes, const Key &before,
                         RowStore &stored) const;
    void updateAndFind(const QString &sql, const std::vector<Change> &changes,
                       const std::vector<RawValue> &row, const RowStore &found, RowStore &stored) const;
    // A failure after a write to a table without transactions does not mean that the write failed.
    template<typename Action>
    void onceWritten(Action &&action) const;
    // `override` makes the engine accept a value for a key that it would otherwise generate.
    void insertRow(const std::vector<Change> &changes, const QString &override, RowStore &stored);
    // Both run the statement and return the new row's key, as returned by the database or as it was given.
    void insertAndReturnKey(const QString &insertion, const std::vector<Change> &changes,
                            RowStore &key) const;
    void insertAndFindKey(const QString &insertion, const std::vector<Change> &changes, RowStore &key) const;
    QString returningKey() const;

    std::shared_ptr<OdbcSession> m_session;
    OdbcRowFinder m_row;
};

} // namespace ADODB
