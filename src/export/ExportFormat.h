#pragma once

#include "export/Encoder.h"
#include "export/RecordWriter.h"

#include <QtCore/QList>

#include <memory>
#include <optional>

class QIODevice;

namespace KOVAVSFDataGridLib {

enum class ExportFormat { Csv, Xlsx, JsonLines, Html };

// How a file is written.
struct ExportOptions
{
    ExportFormat format = ExportFormat::Csv;
    TextEncoding encoding = TextEncoding::Utf8WithMark; // of CSV
    bool hasHeadings = true;                            // JSON has them anyway
    bool guardsFormulas = true;                         // of CSV; the others know what a text is
};

// Those that this build can write.
QList<ExportFormat> availableFormats();
// The ending of its files, with the point.
QString fileEnding(ExportFormat format);
// By the file's ending, in any letter case; nothing when it is none of these.
std::optional<ExportFormat> formatOfFile(const QString &file);
// What to tell a user whose file has no such ending.
QString unknownFormatText(const QString &file);

// `device` is open for writing and must outlive the answer. Throws ADODB::Error when the encoding is missing.
std::unique_ptr<RecordWriter> newWriter(QIODevice &device, const ExportOptions &options);
// What could not be written unchanged, to be shown to the user; empty when there is nothing.
QString lossesOf(const RecordWriter &writer);

} // namespace KOVAVSFDataGridLib
