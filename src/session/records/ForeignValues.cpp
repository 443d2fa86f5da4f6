#include "session/records/ForeignValues.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "sql/Literals.h"
#include "sql/Names.h"
#include "sql/Predicates.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostValues = 1000;

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

} // namespace

std::optional<QStringList> foreignValues(Session &session, const ADODB::Field &field)
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
        const QString schema = reference.CellText(1, 0);
        const QString table = writtenName(dialect, reference.CellText(1, 1));
        const QString column = writtenName(dialect, reference.CellText(1, 2));
        const QString from = schema.isEmpty() ? table : writtenName(dialect, schema) + u'.' + table;
        ADODB::Recordset values;
        values.Open(u"SELECT DISTINCT %1 FROM %2 WHERE %1 IS NOT NULL ORDER BY %1 %3"_s.arg(
                        column, from, rowLimit(dialect, mostValues + 1)),
                    connection);
        if (values.RecordCount() > mostValues)
            return std::nullopt;
        QStringList texts;
        for (qint64 record = 1; record <= values.RecordCount(); ++record)
            texts.append(values.CellText(record, 0));
        return texts;
    } catch (const ADODB::Error &) {
        return std::nullopt; // a table that the user may not read: the value can still be typed
    }
}

} // namespace KOVAVSFDataGridLib
