#include "ado/providers/access/sql/AccessQueries.h"

#include "ado/Error.h"
#include "ado/providers/access/file/AccessNamedReader.h"
#include "ado/providers/access/sql/AccessDialect.h"
#include "ado/providers/access/sql/AccessDistinctRow.h"
#include "ado/providers/access/sql/AccessQuery.h"
#include "ado/providers/sqlite/SqliteSession.h"

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

std::map<qint64, AccessQuery> read(const AccessFile &file)
{
    std::map<qint64, AccessQuery> queries; // by object number
    for (const AccessObject &object : file.objects()) {
        // Names that begin with ~ are internal queries of forms and reports.
        if (object.type == AccessObject::Query && !object.name.startsWith(u'~'))
            queries[object.id].name = object.name;
    }
    const std::optional<AccessTable> partTable = file.systemTable("MSysQueries"_L1);
    if (!partTable)
        return queries;
    AccessNamedReader parts(file, *partTable);
    while (parts.next()) {
        const auto query = queries.find(parts.integer("ObjectId"_L1));
        if (query == queries.end())
            continue;
        AccessQuery::Row row;
        row.attribute = parts.integer("Attribute"_L1);
        row.flag = parts.integer("Flag"_L1);
        row.expression = parts.text("Expression"_L1);
        row.name1 = parts.text("Name1"_L1);
        row.name2 = parts.text("Name2"_L1);
        row.order = parts.value("Order"_L1).bytes.toByteArray();
        query->second.rows.push_back(std::move(row));
    }
    return queries;
}

void run(const SqliteSession &session, const QString &sql)
{
    stepRow(session.prepareOwn(sql));
}

// SQLite compiles a view only when it is used, so views can be defined in any order.
bool define(const SqliteSession &session, const AccessQuery &query, const std::vector<AccessTable> &tables)
{
    const QString select = query.select();
    if (select.isEmpty())
        return false;
    try {
        run(session, u"CREATE VIEW "_s + quotedName(query.name) + " AS "_L1 +
                         AccessDialect::toSqlite(AccessDistinctRow::asGrouping(select, tables),
                                                 AccessDialect::Patterns::Access));
        return true;
    } catch (const Error &) {
        return false;
    }
}

bool canRun(const SqliteSession &session, const QString &view)
{
    try {
        session.prepareQuery(session.tableStatement(view));
        return true;
    } catch (const Error &) {
        return false;
    }
}

} // namespace

QStringList AccessQueries::install(const SqliteSession &session, const AccessFile &file)
{
    std::map<qint64, AccessQuery> queries;
    try {
        queries = read(file);
    } catch (const Error &) {
        return {}; // the tables can still be used
    }
    QStringList views;
    QStringList leftOut;
    for (const auto &[id, query] : queries)
        (define(session, query, file.tables()) ? views : leftOut) += query.name;
    QStringList broken;
    std::copy_if(views.begin(), views.end(), std::back_inserter(broken),
                 [&](const QString &view) { return !canRun(session, view); });
    for (const QString &view : broken)
        run(session, u"DROP VIEW "_s + quotedName(view));
    return leftOut + broken;
}

} // namespace ADODB
