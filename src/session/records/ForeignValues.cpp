#include "session/records/ForeignValues.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/FieldInfo.h"
#include "ado/Recordset.h"
#include "ado/connection/References.h"
#include "ado/values/FieldValue.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/records/ColumnOfField.h"
#include "sql/Like.h"
#include "sql/Names.h"
#include "sql/Predicates.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostValues = 1000;

// A referenced table.
struct Referenced
{
    QString from;          // its form after FROM
    QString key;           // its form in SQL
    QString description;   // the same; empty if no field describes a record
    bool isKeyRead = true; // whether the key means something to people, unlike a GUID
};

Referenced referenced(ADODB::Connection &connection, const Dialect &dialect,
                      const ADODB::TableColumn &reference)
{
    const QString table = writtenName(dialect, reference.table);
    Referenced found{reference.schema.isEmpty() ? table
                                                : writtenName(dialect, reference.schema) + u'.' + table,
                     writtenName(dialect, reference.column),
                     {}};
    for (const ADODB::FieldInfo &info : connection.Describe(u"SELECT * FROM "_s + found.from)) {
        if (info.name.compare(reference.column, Qt::CaseInsensitive) == 0)
            found.isKeyRead = info.type != ADODB::adGUID;
        else if (found.description.isEmpty() && ADODB::FieldValue::isText(info.type))
            found.description = writtenName(dialect, info.name);
    }
    return found;
}

QString statementOf(const Dialect &dialect, const Referenced &table, const QString &search)
{
    const bool isDescribed = !table.description.isEmpty();
    QString condition = table.key + " IS NOT NULL"_L1;
    if (!search.isEmpty()) {
        condition += " AND ("_L1 + like(dialect, table.key, search, Anchor::None);
        if (isDescribed)
            condition += " OR "_L1 + like(dialect, table.description, search, Anchor::None);
        condition += u')';
    }
    const QString order = isDescribed && !table.isKeyRead ? table.description : table.key;
    const RowLimit limit = rowLimit(dialect, static_cast<int>(mostValues) + 1);
    return "SELECT "_L1 + limit.beforeList + table.key +
           (isDescribed ? u',' + table.description : QString()) + " FROM "_L1 + table.from + " WHERE "_L1 +
           condition + " ORDER BY "_L1 + order + limit.behindSort;
}

// One line that begins with what people recognize.
QString shownText(const Referenced &table, const QString &key, const QString &description)
{
    constexpr qsizetype longest = 60; // characters
    const QString text = description.simplified().left(longest);
    if (text.isEmpty())
        return key;
    constexpr QChar between(0x3000); // a full-width space
    return table.isKeyRead ? key + between + text : text + between + key;
}

ForeignValues read(const std::shared_ptr<ADODB::Connection> &connection, const Dialect &dialect,
                   const Referenced &table, const QString &search)
{
    ADODB::Recordset records;
    records.Open(statementOf(dialect, table, search), connection);
    ForeignValues values{.hasMore = records.RecordCount() > mostValues};
    for (qint64 record = 1; record <= std::min(records.RecordCount(), mostValues); ++record) {
        const QString key = records.CellText(record, 0);
        if (!values.keys.isEmpty() && values.keys.constLast() == key)
            continue; // MariaDB lets a key refer to one that occurs more than once
        values.keys.append(key);
        values.shown.append(
            shownText(table, key, table.description.isEmpty() ? QString() : records.CellText(record, 1)));
    }
    return values;
}

} // namespace

std::optional<ForeignValues> foreignValues(Session &session, const ADODB::Field &field, const QString &search)
{
    const auto &connection = session.result().connection();
    if (!connection)
        return std::nullopt;
    const Dialect dialect = dialectOf(session.filterManager().DBType(), session.result().engine());
    const ADODB::TableColumn column = columnOf(session, dialect, field);
    if (column.table.isEmpty() || column.column.isEmpty())
        return std::nullopt;
    try {
        const auto reference = ADODB::referenceOf(*connection, column);
        if (!reference)
            return std::nullopt;
        return read(connection, dialect, referenced(*connection, dialect, *reference), search);
    } catch (const ADODB::Error &) {
        return std::nullopt; // a table that the user may not read: the value can still be typed
    }
}

} // namespace KOVAVSFDataGridLib
