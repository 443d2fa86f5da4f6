#include "export/ExportFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "export/ExportTexts.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>

#include <new>

namespace KOVAVSFDataGridLib {

ExportOutcome exportToFile(const QString &file, const ExportOptions &options,
                           const ADODB::Recordset &recordset, const RecordRange &range,
                           const ExportColumns &columns, const std::function<bool(qint64)> &shouldContinue)
{
    QSaveFile target(file);
    const auto cantWrite = [&](const QString &why) {
        return ADODB::Error(ADODB::adErrWriteFile,
                            ExportTexts::CantWrite.arg(QDir::toNativeSeparators(file), why));
    };
    if (!target.open(QIODevice::WriteOnly))
        throw cantWrite(target.errorString());
    ExportOutcome outcome;
    try {
        const std::unique_ptr<RecordWriter> writer = newWriter(target, options);
        outcome.isWritten = writeRecords(recordset, range, columns, *writer, shouldContinue);
        outcome.losses = lossesOf(*writer);
    } catch (const ADODB::Error &error) {
        throw cantWrite(error.Description());
    } catch (const std::bad_alloc &) { // one value can be larger than what is left
        throw cantWrite(ADODB::Texts::outOfMemory);
    }
    if (outcome.isWritten && !target.commit())
        throw cantWrite(target.errorString());
    return outcome;
}

} // namespace KOVAVSFDataGridLib
