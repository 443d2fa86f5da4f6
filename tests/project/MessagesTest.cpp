// docs/messages.md explains every message that a user can meet.
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

// Hints and captions are there before anything happens; a message ends a sentence, or goes on with a reason.
bool isMessage(const QString &name, const QString &text)
{
    static const QStringList withoutFullStop{u"InsertCancelled"_s, u"AtLeastOneField"_s,
                                             u"CantReadAtRunTime"_s, u"CantSetAtRunTime"_s};
    static const QRegularExpression sentence(u"([。！!？?.](（%\\d）)?|：(%\\d(（%\\d）)?)?)\\s*$"_s);
    static const QRegularExpression noMessage(u"^（|Hint$|Tip$|^DataSource$|^Driver$"_s);
    return withoutFullStop.contains(name) ||
           (sentence.match(text).hasMatch() && !name.contains(noMessage) && !text.contains(noMessage));
}

// The texts of a table `…Texts.h`, by name, in each of the forms that the tables have.
QMap<QString, QString> textsIn(const QString &file)
{
    static const QRegularExpression entry(
        u"(?:KOVA_TEXT\\((\\w+),|QString (\\w+)(?: =|\\(\\)\\s*\\{\\s*return))\\s*"
        u"(?:u|QStringLiteral\\()?\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QMap<QString, QString> texts;
    QRegularExpressionMatchIterator matches = entry.globalMatch(contentOf(file));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        texts.insert(match.captured(1) + match.captured(2), match.captured(3).replace(u"\\\""_s, u"\""_s));
    }
    return texts;
}

} // namespace

TEST(Messages, AreAllExplained)
{
    const QString source = QString::fromUtf8(KOVA_SOURCE_DIR);
    const QString explained = contentOf(source + u"/docs/messages.md"_s);
    int messages = 0;
    QDirIterator tables(source + u"/src"_s, {u"*Texts.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (tables.hasNext()) {
        const QMap<QString, QString> texts = textsIn(tables.next());
        EXPECT_FALSE(texts.isEmpty()) << qPrintable(tables.filePath());
        for (const auto &[name, text] : texts.asKeyValueRange()) {
            if (!isMessage(name, text))
                continue;
            ++messages;
            static const QRegularExpression place(u"%\\d"_s);
            const QString shown = QString(text).replace(place, u"…"_s).trimmed();
            EXPECT_TRUE(explained.contains(shown)) << qPrintable(name) << ": " << qPrintable(shown);
        }
    }
    EXPECT_GT(messages, 90) << "a table is not read any more";
}
