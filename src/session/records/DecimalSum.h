#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A sum of numbers, exact for integers and decimals for as long as it has at most 36 digits; what a database
// keeps as floating point is added as such.
class DecimalSum
{
public:
    void add(qint64 value);
    void add(double value);
    // A decimal as databases write it; false, and no change, when it isn't one.
    bool addText(QByteArrayView text);

    QString text() const;
    // At least 15 significant digits; of an exact sum, all before the point and those of its decimals.
    QString average(qint64 count) const;
    // -1, 0 or 1.
    int sign() const;

private:
    __extension__ using Wide = __int128;

    static QString digitsOf(Wide value);
    bool addExactly(Wide value, int scale);
    bool addAsReal(const QByteArray &text);
    double approximate() const;

    Wide m_exact = 0; // in units of 10^-m_scale
    int m_scale = 0;
    double m_real = 0;
    double m_rest = 0; // what m_real's additions have lost
    bool m_isExact = true;
};

} // namespace KOVAVSFDataGridLib
