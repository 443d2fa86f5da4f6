#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <gtest/gtest.h>

namespace KovaTest {

// The texts of a corpus, one per line: \n, \r, \t, \\ and \uXXXX are characters; "#" and a blank begin a
// comment.
inline QStringList readCorpus(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qUtf8Printable(path);
    QStringList texts;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.startsWith(QStringLiteral("# ")))
            continue;
        QString text;
        for (qsizetype i = 0; i < line.size(); ++i) {
            const QChar next = line[i] == u'\\' && i + 1 < line.size() ? line[i + 1] : QChar();
            if (next.isNull()) {
                text += line[i];
                continue;
            }
            ++i;
            if (next == u'u') {
                text += QChar(line.mid(i + 1, 4).toUShort(nullptr, 16));
                i += 4;
            } else {
                text += next == u'n' ? u'\n' : next == u'r' ? u'\r' : next == u't' ? u'\t' : next.unicode();
            }
        }
        texts += text;
    }
    return texts;
}

} // namespace KovaTest
