#include "ExportRecords.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>

using namespace Qt::StringLiterals;
using namespace KOVAVSFDataGridLib;

namespace KovaTest {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

ExportRecords::ExportRecords(const QString &script) : database(script) {}

void ExportRecords::open(const QString &statement)
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(database.connectionString());
    if (recordset->State() == ADODB::adStateOpen)
        recordset->Close();
    recordset->Open(statement, connection);
}

QByteArray ExportRecords::write(const QString &file, ExportOptions options)
{
    options.format = formatOfFile(file).value();
    const ExportOutcome outcome =
        exportToFile(path(file), options, *recordset, all(), columns(), [](qint64) { return true; });
    EXPECT_TRUE(outcome.isWritten);
    return contentOf(path(file));
}

ExportColumns ExportRecords::columns() const
{
    ExportColumns made;
    for (int i = 0; i < recordset->Fields().Count(); ++i) {
        const ADODB::Field &field = recordset->Fields().Item(i);
        made.push_back({i, field.Name(), field.Type(), field.NumericScale(), 80 + 10 * i});
    }
    return made;
}

} // namespace KovaTest
