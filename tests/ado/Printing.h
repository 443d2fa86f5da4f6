#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <ostream>

// Lets GoogleTest print values that differ. GoogleTest looks for these functions in the namespace of the
// type, which is the global one for Qt's classes.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QVariant &value, std::ostream *out)
{
    *out << (value.typeName() ? value.typeName() : "Null") << ' ' << value.toString().toStdString();
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << bytes.toHex(' ').toStdString();
}
