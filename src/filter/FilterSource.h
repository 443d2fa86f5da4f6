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

// Provides the fields and values for the builder. Reads nothing until it is asked to. The reading functions
// throw ADODB::Error.
class FilterSource
{
public:
    static constexpr int mostValues = 200;
    static constexpr int mostDays = 10000; // in a list with check boxes, by years and months

    void setDatabase(AllDBType database) { m_database = database; }
    // Set one of the two. A connection must be open, and is shared; a string is opened on first use.
    void setConnection(std::shared_ptr<ADODB::Connection> connection);
    void setConnectionString(const QString &text);
    // The text after FROM: a table's name, either in its form for SQL or plain, or several joined tables.
    void setTable(const QString &fromText);

    // Uses the rows of a statement's result instead of a table.
    void setResult(const FilteredResult &result);

    bool hasTable() const { return !m_fromText.isEmpty(); }
    // In a form that conditions can select from again. A WITH clause is left to the outer statement.
    const QString &fromText() const { return m_fromText; }
    // How conditions are written. Complete only after readFields(), because the database must be queried for
    // parts of it.
    Dialect dialect() const;

    // The table's fields in order. A name that several tables have is qualified by the table's name.
    std::vector<FilterField> readFields();
    // How to read at most `most` values of the field, in order. Until they are read, this object must not be
    // used for anything else.
    ValueRequest valueRequest(const FilterField &field, int most);
    // How to read the values of the field for a list with check boxes, with their counts. `condition` is met
    // by the records already; it may be empty. `search` is a text that the values must contain. While they
    // are read, this object must not be used for anything else.
    ValueRequest tickRequest(const FilterField &field, const QString &condition, const QString &search);
    // How to count the records that meet two conditions: in a separate thread through a separate connection,
    // unless the connection is shared. The first condition may be empty.
    std::optional<CountRequest> countRequest(const QString &current, const QString &condition);
    // Has the database check a condition without running it.
    void check(const QString &condition);

private:
    const std::shared_ptr<ADODB::Connection> &connection();
    bool hasOrder(const QString &written);
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
