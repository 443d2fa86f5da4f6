#include "query/clsStringComFuncs.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(StringComFuncs, SplitsByPrefixAndSuffix)
{
    QStringList pieces{u"old"_s};
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString1(u"a<b>c<d>e"_s, pieces, u"<"_s, u">"_s, true));
    EXPECT_EQ(pieces, (QStringList{u"old"_s, u"a<"_s, u"b>c<"_s, u"d>e"_s}));
}

TEST(StringComFuncs, PrefixIsUsedOnlyWhenASuffixFollows)
{
    QStringList pieces;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString1(u">a<b"_s, pieces, u"<"_s, u">"_s, true));
    EXPECT_EQ(pieces, QStringList{u">a<b"_s});
}

TEST(StringComFuncs, PrefixSplitWithoutExtendAddsNothing)
{
    QStringList pieces;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString1(u"a<b>c"_s, pieces, u"<"_s, u">"_s, false));
    EXPECT_TRUE(pieces.isEmpty());
}

TEST(StringComFuncs, PrefixSplitAddsNoEmptyRest)
{
    QStringList pieces;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString1(u"a<"_s, pieces, u"<"_s, u">"_s, true));
    EXPECT_EQ(pieces, QStringList{u"a<"_s});
    pieces.clear();
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString1(u"aa"_s, pieces, u"a"_s, u"a"_s, true));
    EXPECT_EQ(pieces, (QStringList{u"a"_s, u"a"_s}))
        << "the rest is the last prefix, without a suffix behind it";
}

TEST(StringComFuncs, PrefixSplitNeedsThreeTexts)
{
    QStringList pieces;
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString1({}, pieces, u"<"_s, u">"_s, true));
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString1(u"a"_s, pieces, {}, u">"_s, true));
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString1(u"a"_s, pieces, u"<"_s, {}, true));
    EXPECT_TRUE(pieces.isEmpty());
}

TEST(StringComFuncs, SplitsBySeparatorAfterWhatIsThere)
{
    QStringList pieces{u"old"_s};
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString2(u"a,b,,c"_s, pieces, u","_s));
    EXPECT_EQ(pieces, (QStringList{u"old"_s, u"a"_s, u"b"_s, QString(), u"c"_s}));
}

TEST(StringComFuncs, KeepsTheSeparatorsFirstCharacterOnDemand)
{
    QStringList pieces;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString2(u"a::b::"_s, pieces, u"::"_s, true));
    EXPECT_EQ(pieces, (QStringList{u"a:"_s, u"b:"_s}));
}

TEST(StringComFuncs, LongSeparatorCutsIntoThePieceAndFailsWhenItIsTooShort)
{
    QStringList pieces;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString2(u"ab::c"_s, pieces, u"::"_s));
    EXPECT_EQ(pieces, (QStringList{u"a"_s, u"c"_s}));
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString2(u"ab::::c"_s, pieces, u"::"_s));
    EXPECT_EQ(pieces, (QStringList{u"a"_s, u"c"_s, u"a"_s}));
}

TEST(StringComFuncs, SeparatorSplitNeedsTwoTexts)
{
    QStringList pieces;
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString2({}, pieces, u","_s));
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString2(u"a"_s, pieces, {}));
    EXPECT_TRUE(pieces.isEmpty());
}

TEST(StringComFuncs, NameKeepsTheSeparatorAndContentLosesACharacter)
{
    QString name = u"old"_s;
    QString content = u"old"_s;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString3(u"key=value"_s, name, content, u"="_s));
    EXPECT_EQ(name, u"key="_s);
    EXPECT_EQ(content, u"alue"_s);
}

TEST(StringComFuncs, NameAndContentAreEmptyWithoutSeparator)
{
    QString name = u"old"_s;
    QString content = u"old"_s;
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString3(u"key"_s, name, content, u"="_s));
    EXPECT_EQ(name, QString());
    EXPECT_EQ(content, QString());
    EXPECT_TRUE(clsStringComFuncs().QNComSplitString3({}, name, content, u"="_s));
}

TEST(StringComFuncs, ContentTooShortToLoseACharacterIsAFailure)
{
    QString name;
    QString content;
    EXPECT_FALSE(clsStringComFuncs().QNComSplitString3(u"key="_s, name, content, u"="_s));
    EXPECT_EQ(name, u"key="_s);
    EXPECT_EQ(content, QString());
}
