#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// An integer of at most 36 digits. Only some processors have integers of 128 bits.
class WideInteger
{
public:
    static constexpr int mostDigits = 36;

    constexpr WideInteger() = default;
    constexpr WideInteger(qint64 value) : m_high(value / base), m_low(value % base) {}

    // Each returns false and changes nothing if the result has too many digits.
    constexpr bool add(const WideInteger &other)
    {
        qint64 high = m_high + other.m_high;
        qint64 low = m_low + other.m_low;
        if (low >= base || (high < 0 && low > 0)) {
            low -= base;
            ++high;
        } else if (low <= -base || (high > 0 && low < 0)) {
            low += base;
            --high;
        }
        if (high >= base || high <= -base)
            return false;
        m_high = high;
        m_low = low;
        return true;
    }
    constexpr bool appendZero() // times ten
    {
        constexpr qint64 tenth = base / 10;
        if (m_high >= tenth || m_high <= -tenth)
            return false;
        m_high = m_high * 10 + m_low / tenth;
        m_low = m_low % tenth * 10;
        return true;
    }

    constexpr WideInteger operator-() const
    {
        WideInteger negative;
        negative.m_high = -m_high;
        negative.m_low = -m_low;
        return negative;
    }
    // -1, 0 or 1.
    constexpr int sign() const
    {
        const qint64 part = m_high != 0 ? m_high : m_low;
        return part < 0 ? -1 : part > 0 ? 1 : 0;
    }
    long double approximate() const
    {
        return static_cast<long double>(m_high) * static_cast<long double>(base) +
               static_cast<long double>(m_low);
    }
    // Without a sign.
    QString digits() const
    {
        const QString low = QString::number(m_low < 0 ? -m_low : m_low);
        if (m_high == 0)
            return low;
        return QString::number(m_high < 0 ? -m_high : m_high) + low.rightJustified(mostDigits / 2, u'0');
    }

private:
    static constexpr qint64 base = 1'000'000'000'000'000'000; // of mostDigits / 2 digits

    // The value is m_high * base + m_low; both have its sign.
    qint64 m_high = 0;
    qint64 m_low = 0;
};

} // namespace KOVAVSFDataGridLib
