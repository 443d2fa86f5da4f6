#include "session/records/ForeignValues.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/FieldInfo.h"
#include "ado/Recordset.h"
#include "ado/values/FieldValue.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "sql/Like.h"
#include "sql/Literals.h"
#include "sql/Names.h"
#include "sql/Predicates.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostValues = 1000;

// A statement for schema, table and column that a column refers to; empty where no engine answers it.
QString referenceStatement(Engine engine, const QString &table, const QString &column)
{
    switch (engine) {
    case Engine::SQLite:
        // A reference without a column is one to the key.
        return uR"(SELECT '', f."table", COALESCE(f."to", k.name) FROM pragma_foreign_key_list(%1) f
LEFT JOIN pragma_table_info(f."table") k ON k.pk = 1 WHERE f."from" = %2 COLLATE NOCASE)"_s.arg(table,
                                                                                                column);
    case Engine::PostgreSQL:
        return u"SELECT u.table_schema, u.table_name, u.column_name FROM information_schema.key_column_usage "
               u"k"
               " JOIN information_schema.referential_constraints r ON r.constraint_schema = "
               "k.constraint_schema"
               " AND r.constraint_name = k.constraint_name JOIN information_schema.key_column_usage u"
               " ON u.constraint_schema = r.unique_constraint_schema"
               " AND u.constraint_name = r.unique_constraint_name"
               " AND u.ordinal_position = k.position_in_unique_constraint"
               " WHERE k.table_name = %1 AND k.column_name = %2"_s.arg(table, column);
    case Engine::MySQL:
        return u"SELECT '', referenced_table_name, referenced_column_name"
               " FROM information_schema.key_column_usage WHERE table_schema = DATABASE()"
               " AND referenced_table_name IS NOT NULL AND table_name = %1 AND column_name = %2"_s.arg(
                   table, column);
    default:
        return {};
    }
}

// A table that is referred to.
struct Referenced
{
    QString from;          // as it follows FROM
    QString key;           // as it is written
    QString description;   // the same; empty where no field describes a record
    bool isKeyRead = true; // by people: a GUID is not
};

Referenced referenced(ADODB::Connection &connection, const Dialect &dialect,
                      const ADODB::Recordset &reference)
{
    const QString schema = reference.CellText(1, 0);
    const QString table = writtenName(dialect, reference.CellText(1, 1));
    const QString key = reference.CellText(1, 2);
    Referenced found{schema.isEmpty() ? table : writtenName(dialect, schema) + u'.' + table,
                     writtenName(dialect, key),
                     {}};
    for (const ADODB::FieldInfo &info : connection.Describe(u"SELECT * FROM "_s + found.from)) {
        if (info.name.compare(key, Qt::CaseInsensitive) == 0)
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
    return u"SELECT "_s + table.key + (isDescribed ? u',' + table.description : QString()) + " FROM "_L1 +
           table.from + " WHERE "_L1 + condition + " ORDER BY "_L1 + order + u' ' +
           rowLimit(dialect, static_cast<int>(mostValues) + 1);
}

// One line, with what a person knows in front.
QString shownText(const Referenced &table, const QString &key, const QString &description)
{
    constexpr qsizetype longest = 60; // characters
    const QString text = description.simplified().left(longest);
    if (text.isEmpty())
        return key;
    constexpr QChar between(0x3000); // a wide blank
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
    if (field.BaseTableName().isEmpty() || field.BaseColumnName().isEmpty() || !connection)
        return std::nullopt;
    const EngineMode &mode = session.result().engine();
    const Dialect dialect = dialectOf(session.filterManager().DBType(), mode);
    const QString statement = referenceStatement(mode.engine, textLiteral(dialect, field.BaseTableName()),
                                                 textLiteral(dialect, field.BaseColumnName()));
    if (statement.isEmpty())
        return std::nullopt;
    try {
        ADODB::Recordset reference;
        reference.Open(statement, connection);
        if (reference.RecordCount() == 0)
            return std::nullopt;
        return read(connection, dialect, referenced(*connection, dialect, reference), search);
    } catch (const ADODB::Error &) {
        return std::nullopt; // a table that the user may not read: the value can still be typed
    }
}

} // namespace KOVAVSFDataGridLib
