#include "session/records/LinkText.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QUrl linkIn(const QString &text)
{
    constexpr qsizetype longest = 2000; // characters
    const QString address = text.size() <= longest ? text.trimmed() : QString();
    const auto isNoPart = [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; };
    const qsizetype colon = address.indexOf(u':');
    const QString scheme = address.first(std::max<qsizetype>(colon, 0)).toLower();
    const bool isPage = scheme == "http"_L1 || scheme == "https"_L1;
    if ((!isPage && scheme != "mailto"_L1) || std::any_of(address.begin(), address.end(), isNoPart))
        return {};
    const QUrl url(address, QUrl::TolerantMode);
    const bool isWhole = isPage ? !url.host().isEmpty() : url.path().contains(u'@');
    return url.isValid() && isWhole ? url : QUrl();
}

} // namespace KOVAVSFDataGridLib
