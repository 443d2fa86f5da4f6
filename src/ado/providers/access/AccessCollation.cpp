#include "ado/providers/access/AccessCollation.h"

#include "ado/ValueText.h"
#include "ado/providers/access/AccessCall.h"
#include "ado/providers/access/AccessOrder.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>

namespace ADODB::AccessCollation {

namespace {

constexpr char32_t anything = U'%';
constexpr char32_t anyOne = U'_';

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// Letter by letter, so that a letter stays one where _ counts them.
QList<uint> folded(QByteArrayView utf8)
{
    QList<uint> letters = QString::fromUtf8(utf8).toUcs4();
    for (uint &letter : letters)
        letter = QChar::toCaseFolded(letter);
    return letters;
}

struct Letter
{
    char32_t code;
    bool isPlain; // whatever it is, it means itself
};

std::vector<Letter> parsed(QByteArrayView pattern, char32_t escape)
{
    std::vector<Letter> letters;
    bool isEscaped = false;
    for (const uint code : QString::fromUtf8(pattern).toUcs4()) {
        if (escape != 0 && code == escape && !isEscaped) {
            isEscaped = true;
            continue;
        }
        letters.push_back({QChar::toCaseFolded(code), isEscaped || (code != anything && code != anyOne)});
        isEscaped = false;
    }
    return letters;
}

// Goes back to the last % only, which is enough: what an earlier one could take instead, the last one can
// too.
bool matches(const QList<uint> &text, const std::vector<Letter> &pattern)
{
    const auto patternSize = pattern.size();
    qsizetype at = 0;
    std::size_t next = 0;
    qsizetype retryAt = 0;
    std::size_t retryNext = patternSize + 1;
    while (at < text.size()) {
        if (next < patternSize && !pattern[next].isPlain && pattern[next].code == anything) {
            retryNext = ++next;
            retryAt = at;
        } else if (next < patternSize &&
                   (pattern[next].isPlain ? pattern[next].code == text[at] : pattern[next].code == anyOne)) {
            ++next;
            ++at;
        } else if (retryNext <= patternSize) {
            next = retryNext;
            at = ++retryAt;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(next), pattern.end(),
                       [](const Letter &letter) { return !letter.isPlain && letter.code == anything; });
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

void letGo(void *order)
{
    const std::unique_ptr<AccessOrder> owner(static_cast<AccessOrder *>(order));
}

// LIKE has its pattern before the text.
void like(AccessCall &call)
{
    const int pattern = 0;
    const int text = 1;
    const int escape = 2;
    if (call.isNull(pattern) || call.isNull(text) || (call.count() > escape && call.isNull(escape)))
        return;
    const QList<uint> escapes = call.count() > escape ? call.text(escape).toUcs4() : QList<uint>();
    call.answer(isLike(call.text(text).toUtf8(), call.text(pattern).toUtf8(),
                       escapes.isEmpty() ? char32_t(0) : escapes.first()));
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

bool isLike(QByteArrayView text, QByteArrayView pattern, char32_t escape)
{
    return matches(folded(text), parsed(pattern, escape));
}

void install(sqlite3 *db, quint16 language)
{
    auto order = std::make_unique<AccessOrder>(language);
    if (sqlite3_create_collation_v2(db, TextName, SQLITE_UTF8, order.get(), orderTexts, letGo) == SQLITE_OK)
        order.release(); // the database's by now
    sqlite3_create_collation_v2(db, DateName, SQLITE_UTF8, nullptr, orderDates, nullptr);
    AccessCall::offer<like>(db, "like", 2);
    AccessCall::offer<like>(db, "like", 3);
}

} // namespace ADODB::AccessCollation
