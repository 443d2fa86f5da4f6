#include "export/ExportFormat.h"

#include "export/ExportTexts.h"
#include "export/writers/CsvWriter.h"
#include "export/writers/HtmlWriter.h"
#include "export/writers/JsonLinesWriter.h"
#ifdef KOVA_WITH_XLSX
#include "export/writers/XlsxWriter.h"
#endif

#include <QtCore/QFileInfo>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QList<ExportFormat> availableFormats()
{
    QList<ExportFormat> formats{ExportFormat::Csv, ExportFormat::JsonLines, ExportFormat::Html};
#ifdef KOVA_WITH_XLSX
    formats.insert(1, ExportFormat::Xlsx);
#endif
    return formats;
}

QString fileEnding(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return u".csv"_s;
    case ExportFormat::Xlsx:
        return u".xlsx"_s;
    case ExportFormat::JsonLines:
        return u".jsonl"_s;
    case ExportFormat::Html:
        return u".html"_s;
    }
    Q_UNREACHABLE();
}

std::optional<ExportFormat> formatOfFile(const QString &file)
{
    for (const ExportFormat format : availableFormats()) {
        if (file.endsWith(fileEnding(format), Qt::CaseInsensitive))
            return format;
    }
    if (file.endsWith(".htm"_L1, Qt::CaseInsensitive))
        return ExportFormat::Html;
    return {};
}

QString unknownFormatText(const QString &file)
{
    QStringList endings;
    for (const ExportFormat format : availableFormats())
        endings.append(fileEnding(format));
    return ExportTexts::UnknownFormat.arg(QFileInfo(file).fileName(),
                                          endings.join(ExportTexts::BetweenEndings()));
}

std::unique_ptr<RecordWriter> newWriter(QIODevice &device, const ExportOptions &options)
{
    switch (options.format) {
    case ExportFormat::Csv:
        return std::make_unique<CsvWriter>(
            device, CsvWriter::Options{options.encoding, options.hasHeadings, options.guardsFormulas});
    case ExportFormat::JsonLines:
        return std::make_unique<JsonLinesWriter>(device);
    case ExportFormat::Html:
        return std::make_unique<HtmlWriter>(device, options.hasHeadings);
    case ExportFormat::Xlsx:
#ifdef KOVA_WITH_XLSX
        return std::make_unique<XlsxWriter>(device, options.hasHeadings);
#else
        break;
#endif
    }
    Q_UNREACHABLE();
}

QString lossesOf(const RecordWriter &writer)
{
#ifdef KOVA_WITH_XLSX
    const auto *const book = dynamic_cast<const XlsxWriter *>(&writer);
    if (book && book->cutTexts() > 0)
        return ExportTexts::CutTexts(book->cutTexts());
#else
    Q_UNUSED(writer)
#endif
    return {};
}

} // namespace KOVAVSFDataGridLib
