#include "session/records/DecimalSum.h"

#include <algorithm>
#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int mostDigits = 36; // 10^36 times a hundred still fits 127 bits
constexpr int shownDigits = 15;

QString shown(double value)
{
    return QString::number(value + 0.0, 'G', shownDigits);
}

// With the decimal point before the last `scale` digits.
QString decimalText(QString digits, int scale, bool isNegative)
{
    if (scale > 0) {
        digits = digits.rightJustified(scale + 1, u'0');
        digits.insert(digits.size() - scale, u'.');
    }
    return isNegative ? u'-' + digits : digits;
}

} // namespace

void DecimalSum::add(qint64 value)
{
    if (!addExactly(value, 0))
        add(static_cast<double>(value));
}

// Neumaier summation: small terms beside large ones are not lost.
void DecimalSum::add(double value)
{
    m_isExact = false;
    const double sum = m_real + value;
    m_rest += std::abs(m_real) >= std::abs(value) ? (m_real - sum) + value : (value - sum) + m_real;
    m_real = sum;
}

bool DecimalSum::addText(QByteArrayView text)
{
    Wide value = 0;
    int digits = 0;
    int scale = -1; // -1 before the decimal point
    const bool isNegative = text.startsWith('-');
    for (const char c : isNegative ? text.sliced(1) : text) {
        if (c == '.' && scale < 0) {
            scale = 0;
        } else if (c >= '0' && c <= '9' && digits < mostDigits) {
            value = value * 10 + (c - '0');
            digits += digits > 0 || c != '0' ? 1 : 0;
            scale += scale >= 0 ? 1 : 0;
        } else {
            return addAsReal(text.toByteArray());
        }
    }
    if (text.isEmpty() || (digits == 0 && value == 0 && !text.contains('0')))
        return false;
    if (!addExactly(isNegative ? -value : value, std::max(scale, 0)))
        add(text.toByteArray().toDouble());
    return true;
}

// For numbers with an exponent, or with too many digits to be added exactly.
bool DecimalSum::addAsReal(const QByteArray &text)
{
    bool isNumber = false;
    const double real = text.toDouble(&isNumber);
    isNumber = isNumber && std::isfinite(real) && !text.trimmed().isEmpty();
    if (isNumber)
        add(real);
    return isNumber;
}

bool DecimalSum::addExactly(Wide value, int scale)
{
    static constexpr Wide limit = [] {
        Wide power = 1;
        for (int i = 0; i < mostDigits; ++i)
            power *= 10;
        return power;
    }();
    Wide sum = m_exact;
    for (int i = scale; i < m_scale; ++i) {
        if (value >= limit / 10 || value <= -limit / 10)
            return false;
        value *= 10;
    }
    for (int i = m_scale; i < scale; ++i) {
        if (sum >= limit / 10 || sum <= -limit / 10)
            return false;
        sum *= 10;
    }
    sum += value;
    if (sum >= limit || sum <= -limit)
        return false;
    m_exact = sum;
    m_scale = std::max(m_scale, scale);
    return true;
}

double DecimalSum::approximate() const
{
    const auto exact = static_cast<long double>(m_exact) / std::pow(10.0L, m_scale);
    return static_cast<double>(exact + m_real + m_rest);
}

QString DecimalSum::digitsOf(Wide value)
{
    QString digits;
    do {
        digits.prepend(QChar(u'0' + static_cast<char16_t>(value % 10)));
        value /= 10;
    } while (value > 0);
    return digits;
}

QString DecimalSum::text() const
{
    if (!m_isExact)
        return shown(approximate());
    const bool isNegative = m_exact < 0;
    return decimalText(digitsOf(isNegative ? -m_exact : m_exact), m_scale, isNegative);
}

// An exact sum is divided by long division, which loses no digit of the integer part or of the values.
QString DecimalSum::average(qint64 count) const
{
    if (count <= 0)
        return {};
    if (!m_isExact)
        return shown(approximate() / static_cast<double>(count));
    const bool isNegative = m_exact < 0;
    const Wide size = isNegative ? -m_exact : m_exact;
    Wide quotient = size / count;
    Wide rest = size % count;
    int scale = m_scale;
    for (; rest > 0 && (quotient == 0 || digitsOf(quotient).size() < shownDigits); ++scale) {
        quotient = quotient * 10 + rest * 10 / count;
        rest = rest * 10 % count;
    }
    if (rest * 2 >= count)
        ++quotient;
    for (; scale > 0 && quotient % 10 == 0; --scale)
        quotient /= 10;
    return decimalText(digitsOf(quotient), scale, isNegative && quotient > 0);
}

int DecimalSum::sign() const
{
    if (!m_isExact)
        return approximate() < 0 ? -1 : approximate() > 0 ? 1 : 0;
    return m_exact < 0 ? -1 : m_exact > 0 ? 1 : 0;
}

} // namespace KOVAVSFDataGridLib
