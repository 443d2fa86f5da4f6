#pragma once

#include "filter/ValueReading.h"
#include "filter/conditions/FilterCondition.h"
#include "filter/count/CountReading.h"
#include "query/derivation/Derivation.h"

#include <memory>
#include <vector>

namespace ADODB {
class Connection;
struct FieldInfo;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

// Whether a connection string leads to an ODBC driver. A malformed one does not.
bool leadsToOdbc(const QString &connectionString);

// Where the builder's fields and values come from. Reads nothing before it is asked. The reading functions
// throw ADODB::Error.
class FilterSource
{
public:
    static constexpr int mostValues = 200;
    static constexpr int mostDays = 10000; // which a list of ticks shows by years and months

    void setDatabase(AllDBType database) { m_database = database; }
    // One of the two. A connection must be open, and is shared; a string is opened on first use.
    void setConnection(std::shared_ptr<ADODB::Connection> connection);
    void setConnectionString(const QString &text);
    // As it stands behind FROM: a table's name, written as SQL needs it or plain, or several tables joined.
    void setTable(const QString &fromText);

    // The rows of a statement's result instead of a table.
    void setResult(const FilteredResult &result);

    bool hasTable() const { return !m_fromText.isEmpty(); }
    // As conditions can select from it once more. A WITH is left to the statement around them.
    const QString &fromText() const { return m_fromText; }
    // How conditions are written. What the database has to be asked for is known once readFields() was
    // called.
    Dialect dialect() const;

    // The table's fields in its order. A name that several tables share is qualified by the table's.
    std::vector<FilterField> readFields();
    // How at most `most` values that the field has are read, in order. Until they are, nothing else may be
    // asked of this object.
    ValueRequest valueRequest(const FilterField &field, int most);
    // How the values of the field are read for ticks, with their counts. `condition` is what the records meet
    // already; it may be empty. `search` is a text that the values contain. While they are read, nothing else
    // may be asked of this object.
    ValueRequest tickRequest(const FilterField &field, const QString &condition, const QString &search);
    // How the records that meet two conditions are counted: in a thread of its own through a connection of
    // its own, unless the connection is shared. The first condition may be empty.
    std::optional<CountRequest> countRequest(const QString &current, const QString &condition);
    // Lets the database look at a condition without running it.
    void check(const QString &condition);

private:
    const std::shared_ptr<ADODB::Connection> &connection();
    std::vector<FilterField> readOfferedFields();
    FilterField fieldOf(const QString &caption, const QString &written, ADODB::DataTypeEnum type,
                        const ADODB::FieldInfo &info);
    bool askWhetherBackslashEscapes();

    AllDBType m_database = dbAccess;
    QString m_connectionString;
    std::shared_ptr<ADODB::Connection> m_connection;
    std::shared_ptr<ADODB::Connection> m_countConnection;
    QString m_prefix;
    QString m_fromText;
    QString m_list = QStringLiteral("*"); // see FilteredResult
    QList<OfferedField> m_offered;        // of a result; empty for a table
    bool m_escapesByBackslash = false;
    bool m_isShared = false;
};

} // namespace KOVAVSFDataGridLib
