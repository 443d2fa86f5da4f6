#pragma once

#include "export/RecordWriter.h"

#include <QtGui/QPageLayout>

#include <optional>

namespace KOVAVSFDataGridLib {

// Printing options set by a host.
struct PrintOptions
{
    bool isMarkedOnly = false;
    std::optional<QString> title;
    std::optional<QPageLayout::Orientation> orientation;

    // A4. If no orientation is set, landscape for wide columns.
    QPageLayout layoutFor(const ExportColumns &columns) const;
};

// Parses `Keyword=value;…` (see IKOVAVSFDataGrid::PrintData). Throws ADODB::Error for anything unknown.
PrintOptions printOptionsFrom(const QString &text);

} // namespace KOVAVSFDataGridLib
