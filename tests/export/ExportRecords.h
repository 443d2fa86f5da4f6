#pragma once

#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "export/ExportFile.h"
#include "support/TestDatabase.h"

#include <QtCore/QTemporaryDir>

namespace KovaTest {

// A statement's records, written to a file in one go.
class ExportRecords
{
public:
    // `script` makes the database.
    explicit ExportRecords(const QString &script = QStringLiteral("CREATE TABLE T (A)"));

    void open(const QString &statement);
    // All records and columns, in the format of the file's ending.
    QByteArray write(const QString &file, KOVAVSFDataGridLib::ExportOptions options = {});
    KOVAVSFDataGridLib::ExportColumns columns() const;
    KOVAVSFDataGridLib::RecordRange all() const { return {1, recordset->RecordCount()}; }
    QString path(const QString &file) const { return folder.filePath(file); }

    QTemporaryDir folder;
    TestDatabase database;
    std::shared_ptr<ADODB::Recordset> recordset = std::make_shared<ADODB::Recordset>();
};

QByteArray contentOf(const QString &path);

} // namespace KovaTest
