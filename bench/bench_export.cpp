#include "Measure.h"
#include "MillionRecords.h"

#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "export/ExportFile.h"
#include "export/TableMimeData.h"
#include "export/writers/TabTextWriter.h"
#include "session/records/SelectionSummary.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstdio>

// What it costs to write 1,000,000 x 12 records, beside writing the same bytes once they are there.

using namespace KOVAVSFDataGridLib;

namespace {

ExportColumns columnsOf(const ADODB::Recordset &recordset)
{
    ExportColumns columns;
    for (int i = 0; i < recordset.Fields().Count(); ++i)
        columns.push_back({i, recordset.Fields().Item(i).Name(), recordset.Fields().Item(i).Type(), 0, 80});
    return columns;
}

void writeAgain(const QString &file, const QByteArray &bytes)
{
    QFile::remove(file);
    QFile copy(file);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return;
    constexpr qsizetype piece = 256 << 10;
    for (qsizetype at = 0; at < bytes.size(); at += piece)
        copy.write(bytes.sliced(at, std::min(piece, bytes.size() - at)));
}

} // namespace

int main()
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QTemporaryDir folder;
    ADODB::Recordset recordset;
    openMillionRecords(recordset);
    const ExportColumns columns = columnsOf(recordset);
    const RecordRange all{1, recordset.RecordCount()};
    const auto shouldContinue = [](qint64) { return true; };

    for (const ExportFormat format : availableFormats()) {
        ExportOptions options;
        options.format = format;
        const QString file = folder.filePath(QStringLiteral("out") + fileEnding(format));
        const double milliseconds =
            measure([&] { exportToFile(file, options, recordset, all, columns, shouldContinue); },
                    format == ExportFormat::Xlsx ? 1 : timesMeasured); // which takes its time
        QFile written(file);
        if (!written.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = written.readAll();
        const double again = measure([&] { writeAgain(folder.filePath(QStringLiteral("again")), bytes); });
        std::printf("%-7s %6.1f MB %9.1f ms, the bytes alone %8.1f ms, ratio %5.2f\n",
                    qPrintable(fileEnding(format)), static_cast<double>(bytes.size()) / 1e6, milliseconds,
                    again, milliseconds / again);
        written.remove();
    }
    for (const qint64 records : {qint64{100000}, qint64{1000000}}) {
        std::printf("copy %lld x 12 as text: %.1f ms\n", static_cast<long long>(records), measure([&] {
                        TabTextWriter writer(true);
                        writeRecords(recordset, {1, records}, columns, writer, shouldContinue);
                    }));
    }
    for (const std::size_t column : {std::size_t{1}, std::size_t{2}, std::size_t{4}}) {
        std::printf("summary of 1,000,000 cells of %s: %.1f ms\n", qPrintable(columns[column].heading),
                    measure([&] {
                        SelectionSummary summary(recordset, all, {columns[column]});
                        while (!summary.isDone())
                            summary.addNextCells();
                    }));
    }
    return 0;
}
