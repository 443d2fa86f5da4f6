#pragma once

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <memory>

struct sqlite3;

namespace AdoTest {

// A test's own database file, filled and read by SQLite directly and not by the code under test.
class TestDatabase
{
public:
    explicit TestDatabase(const QString &script = {});

    QString path() const { return m_path; }
    QString connectionString() const;
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    void execute(const QString &script) const;
    // The first column of the first row as text; "NULL" for Null, "none" if there is no row.
    QString ask(const QString &sql) const;
    // All rows; a cell is the number of its type, a colon and its text.
    QList<QStringList> rows(const QString &sql) const;
    QByteArray fileBytes() const;

    std::shared_ptr<ADODB::Connection> connect() const;
    // Opens a statement on a new connection.
    std::shared_ptr<ADODB::Recordset> open(const QString &sql,
                                           ADODB::LockTypeEnum lock = ADODB::adLockOptimistic) const;

private:
    QTemporaryDir m_folder;
    QString m_path;
};

// A second program that uses the same file: holds its lock while it exists.
class OtherProgram
{
public:
    OtherProgram(const TestDatabase &database, const char *lock);
    ~OtherProgram();
    Q_DISABLE_COPY_MOVE(OtherProgram)

private:
    sqlite3 *m_db = nullptr;
};

// All cells as text, with columns separated by | and records by a line break.
QString cellTexts(const ADODB::Recordset &recordset);

} // namespace AdoTest
