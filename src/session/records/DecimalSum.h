#pragma once

#include "session/records/WideInteger.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A sum of numbers. Exact for integers and decimals with at most 36 digits, also for decimals that the
// database stores as doubles; other floating point values are added as floating point.
class DecimalSum
{
public:
    void add(qint64 value);
    void add(double value);
    // Adds a finite number of a decimal field with `scale` decimals (0 ... 15), which its database stores as
    // a double: the decimal that was meant, with 15 digits, or more where the field's decimals need them.
    void addDecimal(double value, int scale);
    // Adds a database's decimal text. If it isn't one, returns false and changes nothing.
    bool addText(QByteArrayView text);

    // False if the sum is only right to about 15 digits.
    bool isExact() const { return m_isExact; }
    QString text() const;
    // Of up to 10^17 numbers. At least 15 significant digits; for an exact sum, all integer digits and the
    // decimals of the values.
    QString average(qint64 count) const;
    // -1, 0 or 1.
    int sign() const;

private:
    bool addExactly(WideInteger value, int scale);
    bool addUnits(double value, int decimals, int scale);
    bool addDigits(double value, int scale);
    bool addAsReal(const QByteArray &text);
    double approximate() const;

    WideInteger m_exact; // in units of 10^-m_scale
    int m_scale = 0;
    double m_real = 0;
    double m_rest = 0; // the rounding errors of m_real
    bool m_isExact = true;
};

} // namespace KOVAVSFDataGridLib
