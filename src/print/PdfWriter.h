#pragma once

#include "print/PageWriter.h"

#include <QtCore/QSaveFile>
#include <QtGui/QPdfWriter>

class QPageLayout;

namespace KOVAVSFDataGridLib {

// Writes records to a PDF file in the layout of PageWriter. An existing file is replaced only in end(), after
// the new one is complete.
class PdfWriter final : public RecordWriter
{
public:
    // Throws ADODB::Error if the file can't be opened.
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
