#include "print/PrintOptions.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "print/PageWriter.h"
#include "print/PrintTexts.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr double margin = 12; // mm

void readOption(PrintOptions &options, const ADODB::ConnectionString::Part &part)
{
    const auto is = [&part](QLatin1StringView keyword, QLatin1StringView value) {
        return part.keyword.compare(keyword, Qt::CaseInsensitive) == 0 &&
               part.value.compare(value, Qt::CaseInsensitive) == 0;
    };
    if (part.keyword.compare("Title"_L1, Qt::CaseInsensitive) == 0)
        options.title = part.value;
    else if (is("Records"_L1, "All"_L1) || is("Records"_L1, "Marked"_L1))
        options.isMarkedOnly = is("Records"_L1, "Marked"_L1);
    else if (is("Orientation"_L1, "Portrait"_L1))
        options.orientation = QPageLayout::Portrait;
    else if (is("Orientation"_L1, "Landscape"_L1))
        options.orientation = QPageLayout::Landscape;
    else if (is("Orientation"_L1, "Auto"_L1))
        options.orientation.reset();
    else
        throw ADODB::Error(ADODB::adErrInvalidArgument,
                           PrintTexts::UnknownOption.arg(part.keyword, part.value));
}

} // namespace

QPageLayout PrintOptions::layoutFor(const ExportColumns &columns) const
{
    return {QPageSize(QPageSize::A4),
            orientation.value_or(isForLandscape(columns) ? QPageLayout::Landscape : QPageLayout::Portrait),
            QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter};
}

PrintOptions printOptionsFrom(const QString &text)
{
    PrintOptions options;
    const ADODB::ConnectionString written(text); // the syntax is the same
    for (const ADODB::ConnectionString::Part &part : written.parts())
        readOption(options, part);
    return options;
}

} // namespace KOVAVSFDataGridLib
