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
    // Rows fill the page from its end, so the one before ends this one.
    const int entry = rowCountOffset + 2 + row * 2;
    const auto place = AccessBytes::number<quint16>(bytes(), entry);
    const int start = place & offsetBits;
    const int end = row == 0 ? size : AccessBytes::number<quint16>(bytes(), entry - 2) & offsetBits;
    const bool isDeleted = (place & deleted) != 0;
    // Nobody keeps the places of deleted rows in order, but one that another row points to is still in use.
    const bool isInside = start <= end && end <= size;
    return {isDeleted && !isInside ? QByteArrayView() : AccessBytes::part(bytes(), start, end - start),
            isDeleted, (place & elsewhere) != 0};
}

} // namespace ADODB
