#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <cstdlib>

namespace KovaTest {

// The fuzzer's bytes as texts, cut at each zero; texts that are missing are empty.
inline QStringList TextsOf(const std::uint8_t *data, std::size_t size)
{
    QStringList texts;
    for (const QByteArray &piece :
         QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\0'))
        texts.append(QString::fromUtf8(piece));
    return texts;
}

// What must hold for every input; the fuzzer reports the input that breaks it.
inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace KovaTest
