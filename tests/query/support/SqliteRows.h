#pragma once

#include "query/fields/FieldReader.h"

#include <QtCore/QStringList>

#include <vector>

struct sqlite3;

namespace KovaTest {

using Row = QStringList; // each value as a literal

struct Rows
{
    QStringList names;
    std::vector<Row> rows;
    QString error;

    QString text() const;
};

// A database in memory, read by its own library alone.
class SqliteRows
{
public:
    SqliteRows();
    ~SqliteRows();
    Q_DISABLE_COPY_MOVE(SqliteRows)

    void run(const char *statements);
    Rows read(const QString &statement) const;
    std::vector<KOVAVSFDataGridLib::SourceField> fields(const QString &statement) const;
    // Whether the database sorts the first literal before the second.
    bool isLess(const QString &a, const QString &b) const;

private:
    sqlite3 *m_db = nullptr;
};

} // namespace KovaTest
