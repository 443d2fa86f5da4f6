#pragma once

#include "export/Encoder.h"
#include "export/RecordWriter.h"

#include <QtCore/QList>

#include <memory>
#include <optional>

class QIODevice;

namespace KOVAVSFDataGridLib {

enum class ExportFormat { Csv, Xlsx, JsonLines, Html };

// How to write a file.
struct ExportOptions
{
    ExportFormat format = ExportFormat::Csv;
    TextEncoding encoding = TextEncoding::Utf8WithMark; // of CSV
    bool hasHeadings = true;                            // ignored for JSON, which always has names
    bool guardsFormulas = true;                         // of CSV; the other formats have text types
};

// The formats that this build supports.
QList<ExportFormat> availableFormats();
// The file name ending, including the dot.
QString fileEnding(ExportFormat format);
// By the file's ending (case-insensitive); no value if it is none of these.
std::optional<ExportFormat> formatOfFile(const QString &file);
// The message for a file without such an ending.
QString unknownFormatText(const QString &file);

// `device` must be open for writing and outlive the writer. Throws ADODB::Error if the encoding is missing.
std::unique_ptr<RecordWriter> newWriter(QIODevice &device, const ExportOptions &options);
// Tells the user what could not be written unchanged; empty if there is nothing.
QString lossesOf(const RecordWriter &writer);

} // namespace KOVAVSFDataGridLib
