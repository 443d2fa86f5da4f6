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

// Hints and captions are always visible; a message ends a sentence, or continues with a reason.
bool isMessage(const QString &name, const QString &text)
{
    static const QStringList withoutFullStop{u"InsertCancelled"_s, u"AtLeastOneField"_s,
                                             u"CantReadAtRunTime"_s, u"CantSetAtRunTime"_s};
    static const QRegularExpression sentence(u"([。！!？?.](（%\\d）)?|：(%\\d(（%\\d）)?)?)\\s*$"_s);
    static const QRegularExpression noMessage(
        u"^（|Hint$|Tip$|^DataSource$|^Driver$|^RemoveCondition$|^KeepCondition$|^FormatOfColumn$|"
        u"^FormatSample$|^ColumnOfSummary$|^FilteredBy$|^TableName$|^TicksTitle$|^AboutText$|^FilterName$"_s);
    return withoutFullStop.contains(name) ||
           (sentence.match(text).hasMatch() && !name.contains(noMessage) && !text.contains(noMessage));
}

// The texts of a table `…Texts.h`, by name, in each of the forms that the tables have.
QMap<QString, QString> textsIn(const QString &file)
{
    static const QRegularExpression entry(u"(?:Text|QString) (\\w+)(?: =|\\(\\)\\s*\\{\\s*return)\\s*"
                                          u"(?:u|(?:tr|counted)\\()\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QMap<QString, QString> texts;
    QRegularExpressionMatchIterator matches = entry.globalMatch(contentOf(file));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        texts.insert(match.captured(1), match.captured(2).replace(u"\\\""_s, u"\""_s));
    }
    return texts;
}

// The number of messages in the table.
int expectExplained(const QString &table, const QString &explained)
{
    static const QRegularExpression place(u"%\\d"_s);
    const QMap<QString, QString> texts = textsIn(table);
    EXPECT_FALSE(texts.isEmpty()) << qPrintable(table);
    int messages = 0;
    for (const auto &[name, text] : texts.asKeyValueRange()) {
        if (!isMessage(name, text))
            continue;
        ++messages;
        const QString shown = QString(text).replace(place, u"…"_s).trimmed();
        EXPECT_TRUE(explained.contains(shown)) << qPrintable(name) << ": " << qPrintable(shown);
    }
    return messages;
}

} // namespace

TEST(Messages, AreAllExplained)
{
    const QString source = QString::fromUtf8(KOVA_SOURCE_DIR);
    const QString explained = contentOf(source + u"/docs/messages.md"_s);
    int messages = 0;
    for (const QString &folder : {u"/src"_s, u"/apps"_s}) {
        QDirIterator tables(source + folder, {u"*Texts.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        EXPECT_TRUE(tables.hasNext()) << qPrintable(folder);
        while (tables.hasNext())
            messages += expectExplained(tables.next(), explained);
    }
    EXPECT_GT(messages, 90) << "a table is not read any more";
}

// The English document is made from this one; tools/english_messages makes it again.
TEST(Messages, AreAllInTheEnglishDocument)
{
    const QString source = QString::fromUtf8(KOVA_SOURCE_DIR);
    static const QRegularExpression row(u"^\\| (?!---)"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression chinese(u"[\\x{2e80}-\\x{9fff}]"_s);
    const QString english = contentOf(source + u"/docs/messages.en.md"_s);
    EXPECT_EQ(english.count(row), contentOf(source + u"/docs/messages.md"_s).count(row));
    for (const QString &line : english.split(u'\n'))
        EXPECT_FALSE(line.contains(chinese)) << qPrintable(line);
}
