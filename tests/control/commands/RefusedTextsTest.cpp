// Texts of layouts and filters that are none: why, in the language of the interface.
#include "Shop.h"

#include <QtCore/QRegularExpression>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RefusedTexts : public Shop, public testing::WithParamInterface<bool>
{
protected:
    RefusedTexts()
    {
        grid.PutLanguage(isEnglish ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents();
    }
    ~RefusedTexts() override { grid.PutLanguage({}); }

    QString reasonForFilters(const QString &text)
    {
        messages.clear();
        EXPECT_FALSE(grid.RestoreFilters(text)) << qUtf8Printable(text);
        return messages.texts().join(u'\n');
    }
    QString reasonForLayout(const QString &text)
    {
        messages.clear();
        EXPECT_FALSE(grid.RestoreLayout(text)) << qUtf8Printable(text);
        return messages.texts().join(u'\n');
    }

    const bool isEnglish = GetParam();
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, RefusedTexts, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(RefusedTexts, SayWhatIsWrongInTheUsersLanguage)
{
    ASSERT_TRUE(load());
    static const QRegularExpression letters(u"[A-Za-z]"_s);
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    QStringList reasons;
    for (const QString &text :
         {u"{"_s, u"[1"_s, u"{\"a\" 1}"_s, u"[1 2]"_s, u"{\"a\":x}"_s, u"{\"a\":1.x}"_s,
          u"{\"a\":\"\\u12\"}"_s, u"{\"a\":\"b"_s, u"{1}"_s, QString(5000, u'['), u"{} {}"_s, u"no"_s}) {
        for (const QString &reason : {reasonForFilters(text), reasonForLayout(text)}) {
            EXPECT_TRUE(reason.contains(u"JSON"_s)) << qUtf8Printable(reason);
            EXPECT_FALSE(QString(reason).remove(u"JSON"_s).contains(isEnglish ? chinese : letters))
                << qUtf8Printable(reason);
            reasons.append(reason);
        }
    }
    reasons.removeDuplicates();
    EXPECT_GE(reasons.size(), 16) << "different mistakes have different words";
}

TEST_P(RefusedTexts, CountCharactersAndNotBytes)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(
        reasonForFilters(u"{\"今天的筛选\":错}"_s),
        isEnglish
            ? u"The text with the filters is not valid JSON (character 9: the value here is not correct)."_s
            : u"筛选文本不是有效的 JSON（第 9 个字符：这里的值不正确）。"_s);
    EXPECT_EQ(reasonForLayout(u"?"_s),
              isEnglish ? u"The layout text is not valid JSON (character 1: the value here is not correct)."_s
                        : u"布局文本不是有效的 JSON（第 1 个字符：这里的值不正确）。"_s);
}

TEST_P(RefusedTexts, SayPlainlyThatTheyAreEmpty)
{
    ASSERT_TRUE(load());
    const QString before = grid.SaveLayout();
    for (const QString &text : {u""_s, u" \n"_s}) {
        EXPECT_EQ(reasonForFilters(text),
                  isEnglish ? u"The text with the filters is empty."_s : u"筛选文本是空的。"_s);
        EXPECT_EQ(reasonForLayout(text), isEnglish ? u"The layout text is empty."_s : u"布局文本是空的。"_s);
    }
    EXPECT_EQ(grid.SaveLayout(), before);
}
