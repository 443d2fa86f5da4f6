// Every text for users is in a table and has a translation.
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString top = QStringLiteral(KOVA_SOURCE_DIR "/");
const QRegularExpression chinese(u"[\\x{2e80}-\\x{9fff}\\x{ff00}-\\x{ffef}]"_s);

QString contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QStringList sourcesIn(const QStringList &folders)
{
    QStringList paths;
    for (const QString &folder : folders) {
        QDirIterator files(top + folder, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
    }
    EXPECT_FALSE(paths.isEmpty());
    return paths;
}

QString withoutComments(QString source)
{
    // A literal stays, so that what looks like a comment in it stays too.
    static const QRegularExpression token(
        u"(R\"-\\(.*?\\)-\"|R\"\\(.*?\\)\"|\"(?:[^\"\\\\\\n]|\\\\.)*\"|'(?:[^'\\\\\\n]|\\\\.)')|//[^\\n]*|/\\*.*?\\*/"_s,
        QRegularExpression::DotMatchesEverythingOption);
    return source.replace(token, u"\\1"_s);
}

// The texts of all calls tr("…"), as the compiler reads them.
QStringList translatableTexts(const QString &source)
{
    static const QRegularExpression call(u"\\btr\\(((?:\\s*\"(?:[^\"\\\\]|\\\\.)*\")+)\\s*\\)"_s);
    static const QRegularExpression literal(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QStringList texts;
    for (const QRegularExpressionMatch &found : call.globalMatch(source)) {
        QString text;
        for (const QRegularExpressionMatch &part : literal.globalMatch(found.captured(1)))
            text += part.captured(1);
        text.replace(u"\\n"_s, u"\n"_s).replace(u"\\\""_s, u"\""_s);
        texts.append(text);
    }
    return texts;
}

struct Translation
{
    QString text;
    bool isFinished = false;
};

// By the text; a text that several rooms have can have a translation for each.
QMultiMap<QString, Translation> translationsIn(const QString &file)
{
    QMultiMap<QString, Translation> translations;
    QXmlStreamReader xml(contentOf(top + file));
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "source"_L1) {
            source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            const bool isFinished = !xml.attributes().hasAttribute(u"type"_s);
            translations.insert(source, {xml.readElementText(), isFinished});
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return translations;
}

QStringList argumentsOf(const QString &text)
{
    static const QRegularExpression argument(u"%\\d"_s);
    QStringList arguments;
    for (const QRegularExpressionMatch &found : argument.globalMatch(text))
        arguments.append(found.captured());
    arguments.sort();
    return arguments;
}

bool hasAccessKey(const QString &text)
{
    static const QRegularExpression key(u"&\\w"_s);
    return text.contains(key);
}

bool endsWithColon(const QString &text)
{
    return text.trimmed().endsWith(u':') || text.endsWith(u'：');
}

struct Catalogue
{
    const char *name;
    QStringList folders;
    QString file;
};

struct Translations : testing::TestWithParam<Catalogue>
{
    const QMultiMap<QString, Translation> translations = translationsIn(GetParam().file);
};

INSTANTIATE_TEST_SUITE_P(
    English, Translations,
    testing::Values(Catalogue{"library", {u"src"_s}, u"translations/KOVAVSFDataGridLib_en.ts"_s},
                    Catalogue{"kovagrid", {u"apps"_s}, u"translations/kovagrid_en.ts"_s}),
    [](const auto &catalogue) { return catalogue.param.name; });

} // namespace

TEST_P(Translations, AreThereForEveryTextAndForNothingElse)
{
    QSet<QString> written;
    for (const QString &path : sourcesIn(GetParam().folders)) {
        for (const QString &text : translatableTexts(withoutComments(contentOf(path)))) {
            EXPECT_TRUE(translations.contains(text)) << qPrintable(path) << ": " << qPrintable(text);
            written.insert(text);
        }
    }
    EXPECT_GT(written.size(), 40);
    for (const QString &text : translations.uniqueKeys())
        EXPECT_TRUE(written.contains(text)) << "no source has " << qPrintable(text);
}

TEST_P(Translations, AreFinishedAndSayTheSame)
{
    for (const auto &[source, translation] : translations.asKeyValueRange()) {
        const std::string text = source.toStdString();
        EXPECT_TRUE(translation.isFinished && !translation.text.isEmpty()) << text;
        EXPECT_FALSE(translation.text.contains(chinese)) << text;
        EXPECT_EQ(argumentsOf(translation.text), argumentsOf(source)) << text;
        EXPECT_EQ(hasAccessKey(translation.text), hasAccessKey(source)) << text;
        EXPECT_EQ(endsWithColon(translation.text), endsWithColon(source)) << text;
        EXPECT_EQ(translation.text.contains(u'…'), source.contains(u'…')) << text;
    }
}

// What is Chinese and no text for users in one language: the reason for each file.
TEST(ChineseTexts, AreInTheTables)
{
    static const QStringList others{
        u"src/ado/values/DisplayFormat.cpp"_s,          // the name of a format in saved layouts
        u"src/export/writers/FormulaGuard.cpp"_s,       // characters that a spreadsheet evaluates
        u"src/filter/conditions/FilterDays.cpp"_s,      // words that are accepted in every language
        u"src/filter/conditions/FilterValue.cpp"_s,     // words and separators, also for every language
        u"src/filter/ticks/TickState.cpp"_s,            // a year in filters that were saved in Chinese
        u"src/grid/painting/GlyphTable.cpp"_s,          // a sample of the script
        u"apps/kovagrid/database/SampleDatabase.cpp"_s, // the sample company
    };
    static const QRegularExpression call(
        u"\\b(?:tr|translate)\\((?:\"[\\w:]+\",)?(?:\\s*\"(?:[^\"\\\\]|\\\\.)*\")+\\s*\\)"_s);
    QStringList needless = others;
    for (const QString &path :
         sourcesIn({u"src"_s, u"apps"_s, u"designer"_s, u"python"_s, u"include"_s, u"examples"_s})) {
        const QString name = path.mid(top.size());
        const QString rest = withoutComments(contentOf(path)).remove(call);
        needless.removeAll(rest.contains(chinese) ? name : QString());
        for (const QString &line : rest.split(u'\n'))
            EXPECT_FALSE(line.contains(chinese) && !others.contains(name))
                << qPrintable(name) << ": " << qPrintable(line.trimmed());
    }
    EXPECT_EQ(needless, QStringList());
}
