#include "print/PdfWriter.h"

#include "ado/Error.h"
#include "print/PrintTexts.h"

#include <QtCore/QDir>
#include <QtGui/QPageLayout>

namespace KOVAVSFDataGridLib {

namespace {

ADODB::Error cantWrite(const QSaveFile &file)
{
    return {ADODB::adErrWriteFile,
            PrintTexts::CantWrite.arg(QDir::toNativeSeparators(file.fileName()), file.errorString())};
}

} // namespace

PdfWriter::PdfWriter(const QString &file, const QPageLayout &layout, const PageOptions &options)
    : m_file(file), m_device(&m_file), m_pages(m_device, options)
{
    if (!m_file.open(QIODevice::WriteOnly))
        throw cantWrite(m_file);
    m_device.setPageLayout(layout);
    m_device.setTitle(options.title);
}

void PdfWriter::begin(const ExportColumns &columns)
{
    m_pages.begin(columns);
}

void PdfWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    m_pages.row(cells);
}

void PdfWriter::end()
{
    m_pages.end();
    if (!m_file.commit())
        throw cantWrite(m_file);
}

} // namespace KOVAVSFDataGridLib
