#include "ado/providers/access/file/AccessPage.h"

#include "ado/Error.h"
#include "ado/Texts.h"

namespace ADODB {

void AccessBytes::throwDamaged(const char *what)
{
    throw Error(adErrReadFile, Texts::damaged().arg(QLatin1StringView(what)), QStringLiteral("Access"),
                QStringLiteral("HY000"), 0);
}

int AccessPage::rows() const
{
    const int count = AccessBytes::number<quint16>(bytes(), rowCountOffset);
    if (count > mostRows)
        AccessBytes::throwDamaged("a page claims too many records");
    return count;
}

AccessPage::Row AccessPage::row(int row) const
{
    constexpr quint16 offsetBits = 0x1fff;
    constexpr quint16 elsewhere = 0x4000;
    constexpr quint16 deleted = 0x8000;
    if (row >= rows())
        AccessBytes::throwDamaged("a record is missing");
    // Rows fill the page from its end, so this row ends where the previous one starts.
    const int entry = rowCountOffset + 2 + row * 2;
    const auto place = AccessBytes::number<quint16>(bytes(), entry);
    const int start = place & offsetBits;
    const int end = row == 0 ? size : AccessBytes::number<quint16>(bytes(), entry - 2) & offsetBits;
    const bool isDeleted = (place & deleted) != 0;
    // The offsets of deleted rows may be stale, but one that another row points to is still in use.
    const bool isInside = start <= end && end <= size;
    return {isDeleted && !isInside ? QByteArrayView() : AccessBytes::part(bytes(), start, end - start),
            isDeleted, (place & elsewhere) != 0};
}

} // namespace ADODB
