#include "Measure.h"
#include "MillionRecords.h"

#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "export/ExportFile.h"
#include "export/TableMimeData.h"
#include "export/writers/TabTextWriter.h"
#include "session/records/SelectionSummary.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <sqlite3.h>

// The cost of exporting 1,000,000 x 12 records, compared with writing the same bytes from memory.

using namespace KOVAVSFDataGridLib;

namespace {

ExportColumns columnsOf(const ADODB::Recordset &recordset)
{
    ExportColumns columns;
    for (int i = 0; i < recordset.Fields().Count(); ++i)
        columns.push_back({i, recordset.Fields().Item(i).Name(), recordset.Fields().Item(i).Type(), 0, 80});
    return columns;
}

void writePieces(QIODevice &copy, const QByteArray &bytes)
{
    constexpr qsizetype piece = 256 << 10;
    for (qsizetype at = 0; at < bytes.size(); at += piece)
        copy.write(bytes.sliced(at, std::min(piece, bytes.size() - at)));
}

// Only to the system's cache, not to disk.
void writeAgain(const QString &file, const QByteArray &bytes)
{
    QFile::remove(file);
    QFile copy(file);
    if (copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        writePieces(copy, bytes);
}

// Like an export: flushed to disk, and then renamed over the old file.
void writeSafely(const QString &file, const QByteArray &bytes)
{
    QSaveFile copy(file);
    if (copy.open(QIODevice::WriteOnly))
        writePieces(copy, bytes);
    copy.commit();
}

void readBySqlite()
{
    sqlite3 *database = nullptr;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_open(":memory:", &database) == SQLITE_OK &&
        sqlite3_prepare_v2(database, millionRecords, -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW) {
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
}

// A loop over the same records with SQLite alone, which writes the results of its functions unchanged.
void writeBySqlite(const QString &file)
{
    sqlite3 *database = nullptr;
    sqlite3_stmt *statement = nullptr;
    std::FILE *const csv = std::fopen(qPrintable(file), "wb");
    if (csv && sqlite3_open(":memory:", &database) == SQLITE_OK &&
        sqlite3_prepare_v2(database, millionRecords, -1, &statement, nullptr) == SQLITE_OK) {
        const int columns = sqlite3_column_count(statement);
        std::string line;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            line.clear();
            for (int column = 0; column < columns; ++column) {
                const auto *const text =
                    reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
                const bool isQuoted = text && std::strpbrk(text, ",\"\r\n");
                if (isQuoted)
                    line += '"';
                for (const char *c = text; isQuoted && *c; ++c)
                    line.append(*c == '"' ? 2 : 1, *c);
                if (isQuoted)
                    line += '"';
                else if (text)
                    line += text;
                line += column + 1 < columns ? ',' : '\n';
            }
            std::fwrite(line.data(), 1, line.size(), csv);
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    if (csv)
        std::fclose(csv);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

// Arguments are the formats to write, by their file endings; without any, all are written.
int main(int argc, char **argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QStringList wanted;
    for (int i = 1; i < argc; ++i)
        wanted += u'.' + QString::fromLocal8Bit(argv[i]);
    const QTemporaryDir folder;
    ADODB::Recordset recordset;
    openMillionRecords(recordset);
    const ExportColumns columns = columnsOf(recordset);
    const RecordRange all{1, recordset.RecordCount()};
    const auto shouldContinue = [](qint64) { return true; };

    for (const ExportFormat format : availableFormats()) {
        if (!wanted.isEmpty() && !wanted.contains(fileEnding(format)))
            continue;
        ExportOptions options;
        options.format = format;
        const QString file = folder.filePath(QStringLiteral("out") + fileEnding(format));
        const auto write = [&] { exportToFile(file, options, recordset, all, columns, shouldContinue); };
        write();
        QFile written(file);
        if (!written.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = written.readAll();
        // In turn, so that whatever else the machine does strikes all of them.
        std::vector<double> exported;
        std::vector<double> again;
        std::vector<double> safely;
        std::vector<double> ratios;
        const int rounds = format == ExportFormat::Xlsx ? 1 : 7; // which takes its time
        for (int round = 0; round < rounds; ++round) {
            exported.push_back(measure(write, 1));
            QThreadPool::globalInstance()->waitForDone(); // for the old file, which the others must not pay
            again.push_back(measure([&] { writeAgain(folder.filePath(QStringLiteral("again")), bytes); }, 1));
            safely.push_back(
                measure([&] { writeSafely(folder.filePath(QStringLiteral("safe")), bytes); }, 1));
            ratios.push_back(exported.back() / safely.back());
        }
        std::printf("%-7s %6.1f MB, medians of %d: %8.1f ms; the bytes alone %6.1f ms; as safely %6.1f ms, "
                    "ratio %5.2f\n",
                    qPrintable(fileEnding(format)), static_cast<double>(bytes.size()) / 1e6, rounds,
                    median(exported), median(again), median(safely), median(ratios));
        written.remove();
    }
    if (!wanted.isEmpty())
        return 0;
    std::printf("a loop of SQLite alone: %.1f ms, of which reading %.1f ms\n",
                measure([&] { writeBySqlite(folder.filePath(QStringLiteral("sqlite"))); }),
                measure([] { readBySqlite(); }));
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
