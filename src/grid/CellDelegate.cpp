#include "grid/CellDelegate.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

QString CellDelegate::displayText(const QVariant &value, const QLocale &) const
{
    const QString text = value.toString();
    const auto isLineBreak = [](QChar c) { return c == u'\n' || c == u'\r'; };
    const auto lineEnd =
        std::find_if(text.begin(), text.begin() + std::min<qsizetype>(text.size(), LongestText), isLineBreak);
    const qsizetype length = lineEnd - text.begin();
    return length == text.size() ? text : text.first(length) + u'…';
}

} // namespace KOVAVSFDataGridLib
