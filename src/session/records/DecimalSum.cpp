#include "session/records/DecimalSum.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int shownDigits = 15;
constexpr double mostUnits = 1e15; // up to it, every integer has at most `shownDigits` digits

constexpr auto powersOfTen = [] {
    std::array<double, shownDigits + 1> powers{1};
    for (std::size_t i = 1; i <= shownDigits; ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

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

void DecimalSum::addDecimal(double value, int scale)
{
    constexpr int usualDecimals = 4;
    if (!addUnits(value, scale, scale) && !(scale < usualDecimals && addUnits(value, usualDecimals, scale)) &&
        !addDigits(value, scale))
        add(value);
}

// The usual case: the number is meant as a multiple of 10^-decimals. Below 10^15 units, this is what it gives
// with 15 digits, though arithmetic may have changed its last bit; above, only its nearest double is meant.
bool DecimalSum::addUnits(double value, int decimals, int scale)
{
    constexpr double exactIntegers = 1LL << std::numeric_limits<double>::digits;
    const double power = powersOfTen[static_cast<std::size_t>(decimals)];
    const double scaled = value * power;
    if (!(std::abs(scaled) < exactIntegers))
        return false;
    auto units = static_cast<qint64>(scaled + std::copysign(0.5, scaled));
    const auto rounded = static_cast<double>(units);
    const bool isMeant =
        std::abs(scaled) < mostUnits
            ? std::abs(scaled - rounded) <= std::abs(scaled) * std::numeric_limits<double>::epsilon()
            : rounded / power == value;
    if (!isMeant)
        return false;
    for (; decimals > scale && units % 10 == 0; --decimals)
        units /= 10;
    return addExactly(units, decimals);
}

bool DecimalSum::addDigits(double value, int scale)
{
    std::array<char, 32> text;
    char *const begin = text.data();
    char *const last = begin + text.size();
    const bool needsAll = std::abs(value) * powersOfTen[static_cast<std::size_t>(scale)] >= mostUnits;
    const char *const end =
        needsAll ? std::to_chars(begin, last, value, std::chars_format::scientific).ptr
                 : std::to_chars(begin, last, value, std::chars_format::scientific, shownDigits - 1).ptr;
    const char *const exponent = std::find(static_cast<const char *>(begin), end, 'e');
    qint64 digits = 0; // at most 17
    int power = 0;
    std::from_chars(exponent + (exponent[1] == '+' ? 2 : 1), end, power);
    int decimals = -power;
    bool isAfterPoint = false;
    for (const char *at = begin; at != exponent; ++at) {
        if (*at >= '0' && *at <= '9') {
            digits = digits * 10 + (*at - '0');
            decimals += isAfterPoint ? 1 : 0;
        }
        isAfterPoint = isAfterPoint || *at == '.';
    }
    for (; decimals > scale && digits % 10 == 0; --decimals)
        digits /= 10;
    WideInteger units = value < 0 ? -digits : digits;
    for (; decimals < 0; ++decimals) {
        if (!units.appendZero())
            return false;
    }
    return addExactly(units, decimals);
}

bool DecimalSum::addText(QByteArrayView text)
{
    WideInteger value;
    int digits = 0;
    int scale = -1; // -1 before the decimal point
    const bool isNegative = text.startsWith('-');
    for (const char c : isNegative ? text.sliced(1) : text) {
        if (c == '.' && scale < 0) {
            scale = 0;
        } else if (c >= '0' && c <= '9' && digits < WideInteger::mostDigits) {
            value.appendZero();
            value.add(c - '0');
            digits += digits > 0 || c != '0' ? 1 : 0;
            scale += scale >= 0 ? 1 : 0;
        } else {
            return addAsReal(text.toByteArray());
        }
    }
    if (text.isEmpty() || (digits == 0 && !text.contains('0')))
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

bool DecimalSum::addExactly(WideInteger value, int scale)
{
    WideInteger sum = m_exact;
    for (int i = scale; i < m_scale; ++i) {
        if (!value.appendZero())
            return false;
    }
    for (int i = m_scale; i < scale; ++i) {
        if (!sum.appendZero())
            return false;
    }
    if (!sum.add(value))
        return false;
    m_exact = sum;
    m_scale = std::max(m_scale, scale);
    return true;
}

double DecimalSum::approximate() const
{
    const auto exact = m_exact.approximate() / std::pow(10.0L, m_scale);
    return static_cast<double>(exact + m_real + m_rest);
}

QString DecimalSum::text() const
{
    if (!m_isExact)
        return shown(approximate());
    return decimalText(m_exact.digits(), m_scale, m_exact.sign() < 0);
}

// An exact sum is divided by long division, which loses no digit of the integer part or of the values.
QString DecimalSum::average(qint64 count) const
{
    if (count <= 0)
        return {};
    if (!m_isExact)
        return shown(approximate() / static_cast<double>(count));
    WideInteger quotient;
    qint64 rest = 0;
    const auto divide = [&](int digit) {
        rest = rest * 10 + digit;
        quotient.appendZero();
        quotient.add(rest / count);
        rest %= count;
    };
    for (const QChar digit : m_exact.digits())
        divide(digit.digitValue());
    int scale = m_scale;
    for (; rest > 0 && (quotient.sign() == 0 || quotient.digits().size() < shownDigits); ++scale)
        divide(0);
    if (rest >= count - rest)
        quotient.add(1);
    if (quotient.sign() == 0)
        return u"0"_s;
    QString digits = quotient.digits();
    for (; scale > 0 && digits.endsWith(u'0'); --scale)
        digits.chop(1);
    return decimalText(digits, scale, m_exact.sign() < 0);
}

int DecimalSum::sign() const
{
    if (!m_isExact)
        return approximate() < 0 ? -1 : approximate() > 0 ? 1 : 0;
    return m_exact.sign();
}

} // namespace KOVAVSFDataGridLib
