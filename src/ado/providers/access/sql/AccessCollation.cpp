#include "ado/providers/access/sql/AccessCollation.h"

#include "ado/providers/access/functions/AccessCall.h"
#include "ado/providers/access/sql/AccessOrder.h"
#include "ado/providers/access/sql/AccessPattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>

namespace ADODB::AccessCollation {

namespace {

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

int orderTexts(void *order, int sizeA, const void *a, int sizeB, const void *b)
{
    return static_cast<const AccessOrder *>(order)->compare({static_cast<const char *>(a), sizeA},
                                                            {static_cast<const char *>(b), sizeB});
}

int orderDates(void *, int sizeA, const void *a, int sizeB, const void *b)
{
    return compareDates({static_cast<const char *>(a), sizeA}, {static_cast<const char *>(b), sizeB});
}

void release(void *order)
{
    const std::unique_ptr<AccessOrder> owner(static_cast<AccessOrder *>(order));
}

// SQLite passes the pattern before the text, for both operators.
void like(AccessCall &call)
{
    const int escape = 2;
    if (call.isNull(0) || call.isNull(1) || (call.count() > escape && call.isNull(escape)))
        return;
    const QList<uint> escapes = call.count() > escape ? call.text(escape).toUcs4() : QList<uint>();
    const char32_t given = escapes.isEmpty() ? char32_t(0) : escapes.first();
    call.answer(AccessPattern::ofAdo(call.text(0).toUtf8(), given).matches(call.text(1).toUtf8()));
}

void glob(AccessCall &call)
{
    if (!call.isNull(0) && !call.isNull(1))
        call.answer(AccessPattern::ofAccess(call.text(0).toUtf8()).matches(call.text(1).toUtf8()));
}

} // namespace

int compareTexts(QByteArrayView a, QByteArrayView b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype i = 0;
    for (; i < shorter && isAscii(a[i]) && isAscii(b[i]); ++i) {
        if (const int difference = lower(a[i]) - lower(b[i]); difference != 0)
            return difference;
    }
    if (i == shorter)
        return a.size() < b.size() ? -1 : a.size() > b.size();
    return QString::fromUtf8(a.sliced(i)).compare(QString::fromUtf8(b.sliced(i)), Qt::CaseInsensitive);
}

QByteArrayView comparedDate(QByteArrayView date)
{
    const QByteArrayView midnight(" 00:00:00");
    return date.endsWith(midnight) ? date.chopped(midnight.size()) : date;
}

int compareDates(QByteArrayView a, QByteArrayView b)
{
    return compareTexts(comparedDate(a), comparedDate(b));
}

void install(sqlite3 *db, quint16 language)
{
    auto order = std::make_unique<AccessOrder>(language);
    if (sqlite3_create_collation_v2(db, textName, SQLITE_UTF8, order.get(), orderTexts, release) == SQLITE_OK)
        static_cast<void>(order.release()); // now owned by the database
    sqlite3_create_collation_v2(db, dateName, SQLITE_UTF8, nullptr, orderDates, nullptr);
    AccessCall::offer<like>(db, "like", 2);
    AccessCall::offer<like>(db, "like", 3);
    AccessCall::offer<glob>(db, "glob", 2);
}

} // namespace ADODB::AccessCollation
