#pragma once

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace AdoTest {

// One database behind ODBC. SQLite's driver needs no server; the others are where the environment says.
struct OdbcEngineCase
{
    const char *name;
    const char *variable; // holds the connection string; null for SQLite
    const char *integerKey;
    const char *timestamp;
    const char *endless; // a statement that runs for minutes before it gives its row
};

void PrintTo(const OdbcEngineCase &engine, std::ostream *out);

// A test over an engine, skipped where that is not at hand. The tables kova_a and kova_b and the view kova_v
// are the test's own.
class OnOdbc : public testing::TestWithParam<OdbcEngineCase>
{
protected:
    void SetUp() override;
    void TearDown() override;

    bool is(const char *name) const { return qstrcmp(GetParam().name, name) == 0; }
    QString connectionString() const { return m_text; }
    // Both past the code under test, with ODBC's own calls. ask() answers the first value of the first row.
    void execute(const QString &sql) const;
    QString ask(const QString &sql) const;

    std::shared_ptr<ADODB::Connection> connect() const;
    std::shared_ptr<ADODB::Recordset> open(const QString &sql) const;
    std::shared_ptr<ADODB::Recordset> open(const QString &sql,
                                           const std::shared_ptr<ADODB::Connection> &connection) const;

private:
    void dropTables() const;

    QTemporaryDir m_folder;
    QString m_text;
};

} // namespace AdoTest
