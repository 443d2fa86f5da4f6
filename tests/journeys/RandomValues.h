#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>
#include <QtCore/QTimeZone>

#include <array>
#include <optional>
#include <random>
#include <vector>

namespace KovaTest {

using namespace Qt::StringLiterals;

// Texts as their bytes, numbers, Booleans, and moments as milliseconds: all in one order.
struct Key
{
    QByteArray text = {};
    QByteArray liked = {}; // the text as LIKE sees it
    double number = 0;

    auto operator<=>(const Key &other) const
    {
        if (const int order = text.compare(other.text); order != 0)
            return order <=> 0;
        return number < other.number   ? std::strong_ordering::less
               : number > other.number ? std::strong_ordering::greater
                                       : std::strong_ordering::equal;
    }
    bool operator==(const Key &other) const { return text == other.text && number == other.number; }
};

using Cell = std::optional<Key>;
// Loose is a text for which case or trailing blanks are ignored, and Zoned a timestamp with a time zone, if
// the engine has these.
enum Column { Text, Number, Day, Moment, YesNo, Loose, Zoned };
constexpr int columns = 7;
using Row = std::array<Cell, columns>;

constexpr bool isText(Column column)
{
    return column == Text || column == Loose;
}

// How an engine compares the texts of a column.
struct TextRule
{
    bool hasUpperCase = false; // sorted as text, if case is ignored
    bool ignoresCase = false;
    bool ignoresEnd = false; // blanks there
    bool likeIgnoresCase = false;
    bool likeIgnoresEnd = false; // of the text, not of the pattern

    QString folded(const QString &text) const { return hasUpperCase ? text.toUpper() : text.toLower(); }
    static QString withoutEnd(QString text)
    {
        while (text.endsWith(u' '))
            text.chop(1);
        return text;
    }
    // What is equal has equal ones, in the order of the engine.
    QByteArray compared(const QString &text) const
    {
        const QString end = ignoresEnd ? withoutEnd(text) : text;
        return (ignoresCase ? folded(end) : end).toUtf8();
    }
    // What LIKE sees of a pattern, and of a value.
    QByteArray pattern(const QString &text) const { return (likeIgnoresCase ? folded(text) : text).toUtf8(); }
    QByteArray liked(const QString &text) const { return pattern(likeIgnoresEnd ? withoutEnd(text) : text); }
};

inline Key keyOf(const QString &text, const TextRule &rule)
{
    return {.text = rule.compared(text), .liked = rule.liked(text)};
}

inline Key keyOf(const QDateTime &moment)
{
    return {.number = static_cast<double>(moment.toMSecsSinceEpoch())};
}

inline Key keyOf(QDate day)
{
    return keyOf(day.startOfDay(Qt::UTC));
}

// What a user types, and the values that are meant: from the first one to just before the end, or one alone.
struct Typed
{
    QString text;
    Key first;
    std::optional<Key> end = {};
    QByteArray pattern = {}; // of a text, as LIKE sees it

    bool means(const Key &value) const { return end ? first <= value && value < *end : value == first; }
    bool endsBefore(const Key &value) const { return end ? *end <= value : first < value; }
};

inline const QDate today(2024, 2, 29);

inline const std::vector<QDate> &days()
{
    static const std::vector<QDate> days{
        {2022, 12, 31},
        {2023, 1, 1},
        {2023, 12, 31},
        {2024, 1, 1},
        {2024, 1, 31},
        {2024, 2, 1},
        {2024, 2, 19},
        {2024, 2, 25},
        {2024, 2, 26},
        {2024, 2, 28},
        {2024, 2, 29},
        {2024, 3, 1},
        {2024, 3, 3},
        {2024, 3, 4},
        {2024, 3, 31},
        {2024, 4, 1},
        {2024, 12, 31},
        {2025, 1, 1},
        // The day before the clocks were changed at midnight, the day without a midnight, and the next one.
        {2018, 11, 3},
        {2018, 11, 4},
        {2018, 11, 5}};
    return days;
}

// By the calendar, seen from `today`.
inline const std::vector<Typed> &namedDays()
{
    const auto range = [](const QString &text, QDate first, QDate end) {
        return Typed{text, keyOf(first), keyOf(end)};
    };
    static const std::vector<Typed> named{range(u"今天"_s, today, {2024, 3, 1}),
                                          range(u"昨天"_s, {2024, 2, 28}, today),
                                          range(u"本周"_s, {2024, 2, 26}, {2024, 3, 4}),
                                          range(u"上周"_s, {2024, 2, 19}, {2024, 2, 26}),
                                          range(u"本月"_s, {2024, 2, 1}, {2024, 3, 1}),
                                          range(u"上月"_s, {2024, 1, 1}, {2024, 2, 1}),
                                          range(u"本季"_s, {2024, 1, 1}, {2024, 4, 1}),
                                          range(u"今年"_s, {2024, 1, 1}, {2025, 1, 1}),
                                          range(u"去年"_s, {2023, 1, 1}, {2024, 1, 1}),
                                          range(u"最近 5 天"_s, {2024, 2, 25}, {2024, 3, 1}),
                                          range(u"2023-12"_s, {2023, 12, 1}, {2024, 1, 1}),
                                          range(u"3月"_s, {2024, 3, 1}, {2024, 4, 1})};
    return named;
}

class Generator
{
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool oneIn(int count) { return below(count) == 0; }
    template<class Values>
    auto oneOf(const Values &values)
    {
        return values[static_cast<typename Values::size_type>(below(static_cast<int>(values.size())))];
    }

    QString text(bool hasEmoji)
    {
        static const QStringList pieces{u"'"_s,  u"\\"_s, u"%"_s,  u"_"_s, u"["_s,       u"]"_s,
                                        u"!"_s,  u"茶"_s, u"a"_s,  u"A"_s, u"b c"_s,     u"B c"_s,
                                        u"\""_s, u"，"_s, u"、"_s, u" "_s, u" FROM x"_s, u"a "_s};
        QString text;
        for (int count = below(4); count > 0; --count)
            text += hasEmoji && oneIn(12) ? u"🍵"_s : oneOf(pieces);
        return text;
    }

    QDateTime moment()
    {
        static const std::vector<QTime> times{{0, 0}, {0, 0, 1}, {12, 0}, {23, 59, 59}};
        return {oneOf(days()), oneOf(times), Qt::UTC};
    }
    // One that there was in the zone.
    QDateTime momentIn(const QTimeZone &zone)
    {
        for (;;) {
            const QDateTime wall = moment();
            const QDateTime there(wall.date(), wall.time(), zone);
            if (there.isValid() && there.date() == wall.date() && there.time() == wall.time())
                return there;
        }
    }

private:
    std::minstd_rand m_random;
};

} // namespace KovaTest
