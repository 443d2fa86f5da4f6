#pragma once

#include "print/PageWriter.h"

#include <QtCore/QSaveFile>
#include <QtGui/QPdfWriter>

class QPageLayout;

namespace KOVAVSFDataGridLib {

// Writes records to a PDF file as PageWriter draws them. A file that is there already is replaced by end(),
// when the new one is complete; until then it stays as it is.
class PdfWriter final : public RecordWriter
{
public:
    // Throws ADODB::Error when the file can't be opened.
    PdfWriter(const QString &file, const QPageLayout &layout, const PageOptions &options);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

private:
    QSaveFile m_file;
    QPdfWriter m_device;
    PageWriter m_pages;
};

} // namespace KOVAVSFDataGridLib
