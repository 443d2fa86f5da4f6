#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QtEndian>

#include <array>

namespace ADODB {

// Numbers as Access files hold them. Throws the error of a damaged file when they would lie outside.
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

// A copy of one page of the file. Rows are counted from 0.
class AccessPage
{
public:
    static constexpr int largestSize = 4096;
    static constexpr int mostRows = 256; // the number of a row is one byte where a row is pointed to

    struct Row
    {
        QByteArrayView bytes;
        bool isDeleted;
        bool isElsewhere; // the bytes say where: see AccessAddress
    };

    quint32 number = 0; // in the file, whose page 0 is its head and has no rows
    int size = 0;
    int rowCountOffset = 0;
    std::array<char, largestSize> buffer{};

    QByteArrayView bytes() const { return {buffer.data(), size}; }
    int rows() const;
    Row row(int row) const;
};

// Where a row is: the page and the number of the row there.
struct AccessAddress
{
    quint32 page;
    int row;

    explicit AccessAddress(quint32 pointer) : page(pointer >> 8), row(static_cast<int>(pointer & 0xff)) {}
};

} // namespace ADODB
