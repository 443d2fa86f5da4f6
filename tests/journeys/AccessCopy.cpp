#include "AccessCopy.h"

#include "support/AccessWriter.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>

using namespace ADODB;
using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

using Statement = sqlite3_stmt *;

QString textAt(Statement statement, int column)
{
    const void *text = sqlite3_column_text(statement, column);
    return QString::fromUtf8(static_cast<const char *>(text), sqlite3_column_bytes(statement, column));
}

QVariant valueAt(Statement statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_BLOB: {
        const void *bytes = sqlite3_column_blob(statement, column);
        return QByteArray(static_cast<const char *>(bytes), sqlite3_column_bytes(statement, column));
    }
    case SQLITE_INTEGER:
        return qlonglong{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default:
        return textAt(statement, column);
    }
}

void forEachRow(sqlite3 *db, const QString &sql, const std::function<void(Statement)> &action)
{
    Statement statement = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(db);
    while (sqlite3_step(statement) == SQLITE_ROW)
        action(statement);
    sqlite3_finalize(statement);
}

AccessField fieldOf(const QString &name, const QString &declared, bool isKey)
{
    static const QRegularExpression form(uR"(\A(\w+)[^(]*(?:\((\d+)(?:,(\d+))?\))?)"_s);
    static const std::pair<QLatin1StringView, AccessType> types[] = {
        {"INTEGER"_L1, AccessType::LongInteger}, {"VARCHAR"_L1, AccessType::Text},
        {"DECIMAL"_L1, AccessType::Numeric},     {"DIGITTEXT"_L1, AccessType::Numeric},
        {"DOUBLE"_L1, AccessType::Double},       {"DATE"_L1, AccessType::DateTime},
        {"DATETIME"_L1, AccessType::DateTime},   {"BOOLEAN"_L1, AccessType::YesNo},
        {"LONGTEXT"_L1, AccessType::Memo},       {"LONGBLOB"_L1, AccessType::OleObject}};
    const QRegularExpressionMatch parts = form.match(declared);
    const auto *type = std::find_if(std::begin(types), std::end(types), [&](const auto &each) {
        return parts.captured(1).compare(each.first, Qt::CaseInsensitive) == 0;
    });
    EXPECT_NE(type, std::end(types)) << qUtf8Printable(declared);
    const int size = parts.captured(2).toInt();
    return {name,
            type == std::end(types) ? AccessType::Memo : type->second,
            size,
            size,
            parts.captured(3).toInt(),
            isKey};
}

} // namespace

void copyToAccess(const QString &sqlitePath, const QString &accessPath)
{
    sqlite3 *db = nullptr;
    ASSERT_EQ(sqlite3_open(sqlitePath.toUtf8().constData(), &db), SQLITE_OK);
    AccessWriter writer;
    forEachRow(db, u"SELECT name FROM sqlite_master WHERE type = 'table'"_s, [&](Statement tables) {
        const QString table = textAt(tables, 0);
        std::vector<AccessField> fields;
        forEachRow(db, u"SELECT name, type, pk FROM pragma_table_info('%1')"_s.arg(table),
                   [&](Statement columns) {
                       fields.push_back(fieldOf(textAt(columns, 0), textAt(columns, 1),
                                                sqlite3_column_int(columns, 2) != 0));
                   });
        QList<QVariantList> records;
        forEachRow(db, u"SELECT * FROM "_s + table, [&](Statement rows) {
            QVariantList record;
            for (int i = 0; i < sqlite3_column_count(rows); ++i)
                record += valueAt(rows, i);
            records += record;
        });
        writer.addTable(table, fields, records);
    });
    sqlite3_close(db);
    QFile file(accessPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    const QByteArray bytes = writer.file();
    EXPECT_EQ(file.write(bytes), bytes.size());
}

} // namespace KovaTest
