#include "export/ExportFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "export/ExportTexts.h"
#include "export/platform/BeginSaving.h"
#include "export/platform/ReplacedFile.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <new>

namespace KOVAVSFDataGridLib {

namespace {

// Starts to flush to disk while it is written, so that the final flush is short.
class SavedMeanwhile final : public QSaveFile
{
public:
    using QSaveFile::QSaveFile;

protected:
    qint64 writeData(const char *bytes, qint64 size) override
    {
        constexpr qint64 savedTogether = qint64{4} << 20; // bytes
        const qint64 written = QSaveFile::writeData(bytes, size);
        m_written += std::max(written, qint64{0});
        if (m_written - m_saved >= savedTogether && flush()) {
            beginSaving(*this, m_saved, m_written - m_saved);
            m_saved = m_written;
        }
        return written;
    }

private:
    qint64 m_written = 0;
    qint64 m_saved = 0;
};

} // namespace

ExportOutcome exportToFile(const QString &file, const ExportOptions &options,
                           const ADODB::Recordset &recordset, const RecordRange &range,
                           const ExportColumns &columns, const std::function<bool(qint64)> &shouldContinue)
{
    SavedMeanwhile target(file);
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
    } catch (const std::bad_alloc &) { // a single value can exceed the remaining memory
        throw cantWrite(ADODB::Texts::outOfMemory);
    }
    const ReplacedFile replaced(file);
    if (outcome.isWritten && !target.commit())
        throw cantWrite(target.errorString());
    return outcome;
}

} // namespace KOVAVSFDataGridLib
