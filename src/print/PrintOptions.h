#pragma once

#include "export/RecordWriter.h"

#include <QtGui/QPageLayout>

#include <optional>

namespace KOVAVSFDataGridLib {

// How a host wants something printed.
struct PrintOptions
{
    bool isMarkedOnly = false;
    std::optional<QString> title;
    std::optional<QPageLayout::Orientation> orientation;

    // A4; where no orientation was asked for, it lies on its side for wide columns.
    QPageLayout layoutFor(const ExportColumns &columns) const;
};

// Reads `Keyword=value;…` (see IKOVAVSFDataGrid::PrintData). Throws ADODB::Error for what it doesn't know.
PrintOptions printOptionsFrom(const QString &text);

} // namespace KOVAVSFDataGridLib
