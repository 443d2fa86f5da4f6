#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QtEndian>

#include <array>

namespace ADODB {

// Reads little-endian numbers. Throws the error for a damaged file if an offset is out of range.
namespace AccessBytes {

[[noreturn]] void throwDamaged(const char *what);

inline QByteArrayView part(QByteArrayView bytes, qsizetype from, qsizetype size)
{
    if (from < 0 || size < 0 || size > bytes.size() || from > bytes.size() - size)
        throwDamaged("a value lies outside its record");
    return bytes.sliced(from, size);
}

template<typename Number>
Number number(QByteArrayView bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(part(bytes, at, sizeof(Number)).data());
}

} // namespace AccessBytes

// A copy of one page of the file. Row numbers start at 0.
class AccessPage
{
public:
    static constexpr int largestSize = 4096;
    static constexpr int mostRows = 256; // a pointer to a row stores the row number in one byte

    struct Row
    {
        QByteArrayView bytes;
        bool isDeleted;
        bool isElsewhere; // the bytes are the AccessAddress of the row
    };

    quint32 number = 0; // in the file; page 0 is the file header and has no rows
    int size = 0;
    int rowCountOffset = 0;
    std::array<char, largestSize> buffer{};

    QByteArrayView bytes() const { return {buffer.data(), size}; }
    int rows() const;
    Row row(int row) const;
};

// The address of a row: its page, and its number on that page.
struct AccessAddress
{
    quint32 page;
    int row;

    explicit AccessAddress(quint32 pointer) : page(pointer >> 8), row(static_cast<int>(pointer & 0xff)) {}
};

} // namespace ADODB
