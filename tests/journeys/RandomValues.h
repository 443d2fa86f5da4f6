#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>

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
    double number = 0;

    auto operator<=>(const Key &other) const
    {
        if (const int order = text.compare(other.text); order != 0)
            return order <=> 0;
        return number < other.number   ? std::strong_ordering::less
               : number > other.number ? std::strong_ordering::greater
                                       : std::strong_ordering::equal;
    }
    bool operator==(const Key &) const = default;
};

using Cell = std::optional<Key>;
enum Column { Text, Number, Day, Moment, YesNo };
constexpr int columns = 5;
using Row = std::array<Cell, columns>;

inline Key keyOf(const QString &text)
{
    return {.text = text.toUtf8()};
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

    bool means(const Key &value) const { return end ? first <= value && value < *end : value == first; }
    bool endsBefore(const Key &value) const { return end ? *end <= value : first < value; }
};

inline const QDate today(2024, 2, 29);

inline const std::vector<QDate> &days()
{
    static const std::vector<QDate> days{
        {2022, 12, 31}, {2023, 1, 1},  {2023, 12, 31}, {2024, 1, 1},  {2024, 1, 31},  {2024, 2, 1},
        {2024, 2, 19},  {2024, 2, 25}, {2024, 2, 26},  {2024, 2, 28}, {2024, 2, 29},  {2024, 3, 1},
        {2024, 3, 3},   {2024, 3, 4},  {2024, 3, 31},  {2024, 4, 1},  {2024, 12, 31}, {2025, 1, 1}};
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

    // Letters of one case only: whether case counts is the column's affair.
    QString text(bool hasEmoji)
    {
        static const QStringList pieces{u"'"_s,  u"\\"_s, u"%"_s,   u"_"_s,  u"["_s,  u"]"_s,  u"!"_s,
                                        u"茶"_s, u"a"_s,  u"b c"_s, u"\""_s, u"，"_s, u"、"_s, u" FROM x"_s};
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

private:
    std::minstd_rand m_random;
};

} // namespace KovaTest
