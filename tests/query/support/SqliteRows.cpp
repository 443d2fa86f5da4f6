#include "SqliteRows.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace KovaTest {

using namespace Qt::StringLiterals;

namespace {

QString literalOf(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return QString::number(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return QString::number(sqlite3_column_double(statement, column), 'e', 17);
    case SQLITE_TEXT: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
        return u'\'' + QString::fromUtf8(text).replace(u'\'', "''"_L1) + u'\'';
    }
    default:
        return u"NULL"_s;
    }
}

} // namespace

QString Rows::text() const
{
    QString text = names.join(u'|') + u'\n';
    for (const Row &row : rows)
        text += row.join(u'|') + u'\n';
    return text;
}

SqliteRows::SqliteRows()
{
    sqlite3_open(":memory:", &m_db);
}

SqliteRows::~SqliteRows()
{
    sqlite3_close(m_db);
}

void SqliteRows::run(const char *statements)
{
    char *error = nullptr;
    EXPECT_EQ(sqlite3_exec(m_db, statements, nullptr, nullptr, &error), SQLITE_OK) << (error ? error : "");
    sqlite3_free(error);
}

Rows SqliteRows::read(const QString &statement) const
{
    Rows rows;
    sqlite3_stmt *prepared = nullptr;
    const char *rest = nullptr;
    const QByteArray text = statement.toUtf8();
    if (sqlite3_prepare_v2(m_db, text.constData(), -1, &prepared, &rest) != SQLITE_OK || !prepared) {
        rows.error = prepared ? QString() : u"no statement: "_s + QString::fromUtf8(sqlite3_errmsg(m_db));
        return rows;
    }
    if (!QString::fromUtf8(rest).trimmed().isEmpty())
        rows.error = u"a second statement"_s;
    for (int column = 0; column < sqlite3_column_count(prepared); ++column)
        rows.names.append(QString::fromUtf8(sqlite3_column_name(prepared, column)));
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        Row row;
        for (int column = 0; column < rows.names.size(); ++column)
            row.append(literalOf(prepared, column));
        rows.rows.push_back(row);
    }
    sqlite3_finalize(prepared);
    return rows;
}

std::vector<KOVAVSFDataGridLib::SourceField> SqliteRows::fields(const QString &statement) const
{
    std::vector<KOVAVSFDataGridLib::SourceField> fields;
    sqlite3_stmt *prepared = nullptr;
    sqlite3_prepare_v2(m_db, statement.toUtf8().constData(), -1, &prepared, nullptr);
    for (int column = 0; column < sqlite3_column_count(prepared); ++column) {
        const char *table = sqlite3_column_table_name(prepared, column);
        fields.push_back({QString::fromUtf8(sqlite3_column_name(prepared, column)), 0,
                          table ? QString::fromUtf8(table) : QString()});
    }
    sqlite3_finalize(prepared);
    return fields;
}

bool SqliteRows::isLess(const QString &a, const QString &b) const
{
    if (a == u"NULL" || b == u"NULL")
        return a == u"NULL" && b != u"NULL";
    return read(u"select %1 < %2"_s.arg(a, b)).rows.front().front() == u"1";
}

} // namespace KovaTest
