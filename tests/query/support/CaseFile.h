#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <ostream>
#include <vector>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace KovaTest {

// A block of "name: value" lines of a case file. In values, "·" is a blank, "⏎" a line feed and "→" a tab, so
// that they are visible; a line that begins with "#" is a comment.
struct Case
{
    QString place; // file and line, for messages
    QHash<QString, QString> values;

    QString operator[](const QString &name) const { return values.value(name); }
    bool Has(const QString &name) const { return values.contains(name); }
    // A value written as a | b | c; no value is an empty list.
    QStringList List(const QString &name) const;
};

// All cases of a file in tests/query/data. The test fails if there are none.
std::vector<Case> ReadCases(const QString &fileName);
// Those of several files.
std::vector<Case> ReadCases(const QStringList &fileNames);

} // namespace KovaTest
