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

// The texts of all calls tr("…") and counted("…"), as the compiler reads them.
QStringList translatableTexts(const QString &source)
{
    static const QRegularExpression call(u"\\b(?:tr|counted)\\(((?:\\s*\"(?:[^\"\\\\]|\\\\.)*\")+)\\s*\\)"_s);
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
    QStringList forms; // for one and for many, or only one
    bool isFinished = false;

    bool isCounted() const { return forms.size() > 1; }
};

// The forms of a counted text, which are on lines of their own.
QStringList nonEmptyLines(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    }
    return lines;
}

// By the text; a text that several rooms have can have a translation for each.
QMultiMap<QString, Translation> translationsIn(const QString &file)
{
    QMultiMap<QString, Translation> translations;
    QXmlStreamReader xml(contentOf(top + file));
    QString source;
    bool isCounted = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "message"_L1) {
            isCounted = xml.attributes().hasAttribute(u"numerus"_s);
        } else if (xml.name() == "source"_L1) {
            source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            const bool isFinished = !xml.attributes().hasAttribute(u"type"_s);
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            translations.insert(source, {isCounted ? nonEmptyLines(text) : QStringList(text), isFinished});
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
        EXPECT_TRUE(translation.isFinished) << text;
        for (const QString &form : translation.forms) {
            EXPECT_FALSE(form.isEmpty()) << text;
            EXPECT_FALSE(form.contains(chinese)) << text;
            EXPECT_EQ(hasAccessKey(form), hasAccessKey(source)) << text;
            EXPECT_EQ(endsWithColon(form), endsWithColon(source)) << text;
            EXPECT_EQ(form.contains(u'…'), source.contains(u'…')) << text;
            // "The largest" says the number one without a digit.
            QStringList arguments = argumentsOf(source);
            if (translation.isCounted() && form == translation.forms.first() && !form.contains(u"%1"_s))
                arguments.removeOne(u"%1"_s);
            EXPECT_EQ(argumentsOf(form), arguments) << text;
        }
    }
}

// Chinese has one form for all numbers, English two: "1 record", "2 records".
TEST_P(Translations, HaveAFormForOneWhereTheyCount)
{
    // A number before one of Chinese's words for counting; after 第 it is the number of one thing.
    static const QRegularExpression counts(
        u"(?<!第 )%\\d ?(?:条|个|处|项|行|列|页|位|天|秒|次|字节|字符|像素)"_s);
    static const QStringList neverOne{
        u"没有安装名为“%1”的 ODBC 驱动程序（%2 位版本，与本程序相同），已安装的有：%3。"_s,
        u"没有安装连接字符串所需的 ODBC 驱动程序。请安装%1（%2 位版本，与本程序相同）。已安装的有：%3。"_s,
        u"无法唯一确定要修改的记录（有 %1 条相同的记录），没有保存任何更改。"_s,
        u"XLSX 最多有 %1 列，而结果有 %2 列。"_s,
        u"最近 %1 天"_s,
        u"只列出前 %1 个值，其余的请用搜索查找"_s,
        u"共 %2 个值，只列出前 %1 个，其余的请用搜索查找"_s,
        u"超过 %1 个字符，不显示结构"_s,
        u"此内容超过 %1 个字符，不能在这里修改，请按 F3 查看。"_s,
        u"%1 个字段之一 %2"_s,
    };
    static const QStringList sameForOne{
        u"时限为 %1 秒"_s,       u"%1 秒内没有读完已有的值，请直接输入。"_s,
        u"%1 × %2 像素"_s,       u"%1 秒内没有读完已有的值，只列出前面一部分记录中的值。"_s,
        u"还有 %1 个"_s,         u"更多…（还有 %1 个）"_s,
        u"全部 %1 条"_s,         u"全部 %1 条(&A)"_s,
        u"选定的 %1 条"_s,       u"选定的 %1 条(&S)"_s,
        u"显示的 %1 个(&W)"_s,   u"全部 %1 个(&L)"_s,
        u"按字段（%1 位）"_s,    u"第 %1 条，共 %2 条"_s,
        u"新记录，共 %1 条"_s,   u"已选 %1 个，共 %2 个"_s,
        u"共 %1 处"_s,           u"第 %1 处，共 %2 处"_s,
        u"第 %1 页，共 %2 页"_s, u"第 %1 页，共 %2 页（预览前 %3 页）"_s,
        u"第%1页共%2页"_s,
    };
    for (const auto &[source, translation] : translations.asKeyValueRange()) {
        const bool isPlain = neverOne.contains(source) || sameForOne.contains(source);
        EXPECT_EQ(translation.isCounted(), counts.match(source).hasMatch() && !isPlain)
            << qPrintable(source) << ": write counted(\"…\"), or name it here";
        if (translation.isCounted()) {
            EXPECT_EQ(translation.forms.size(), 2) << qPrintable(source);
            EXPECT_NE(translation.forms.first(), translation.forms.last()) << qPrintable(source);
        }
    }
}

// What is Chinese and no text for users in one language: the reason for each file.
TEST(ChineseTexts, AreInTheTables)
{
    static const QStringList others{
        u"src/ado/values/DisplayFormat.cpp"_s,       // the name of a format in saved layouts
        u"src/export/writers/FormulaGuard.cpp"_s,    // characters that a spreadsheet evaluates
        u"src/filter/conditions/FilterDays.cpp"_s,   // words that are accepted in every language
        u"src/filter/conditions/FilterValue.cpp"_s,  // words and separators, also for every language
        u"src/filter/ticks/TickState.cpp"_s,         // a year in filters that were saved in Chinese
        u"src/grid/painting/GlyphTable.cpp"_s,       // a sample of the script
        u"apps/kovagrid/database/SampleWords.cpp"_s, // the sample company
    };
    static const QRegularExpression call(
        u"\\b(?:tr|counted|translate)\\((?:\"[\\w:]+\",)?(?:\\s*\"(?:[^\"\\\\]|\\\\.)*\")+\\s*\\)"_s);
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
