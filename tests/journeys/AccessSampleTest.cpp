// What the common journeys can't have, because only Access itself writes it: saved queries, pictures in
// their OLE wrapping, letters of an old code page.
#include "../control/commands/Hands.h"

#include "support/Dialogs.h"
#include "support/SampleFiles.h"

#include <gtest/gtest.h>

#include <optional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class AccessSampleJourney : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString path = sampleFile(u"nwind.mdb"_s);
        if (path.isEmpty())
            GTEST_SKIP() << "nwind.mdb is not here; see sampleFile()";
        hands.emplace(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path, KOVAVSFDataGrid::dbAccess);
    }

    void expectNoMessage() const
    {
        EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    }

    std::optional<Hands> hands;
};

} // namespace

TEST_F(AccessSampleJourney, ASavedQueryIsReshapedLikeATable)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::filter(dialog, u"[ExtendedPrice] > 10000"_s); },
                           [](QDialog &dialog) { Hands::sort(dialog, {u"ExtendedPrice"_s}, true); },
                           [](QDialog &dialog) { Hands::find(dialog, u"CÔTE"_s); }});
    ASSERT_TRUE(hands->load(u"SELECT * FROM [Invoices]"_s,
                            u"SELECT [OrderID],[ProductName],[ExtendedPrice] FROM [Invoices]"_s));
    EXPECT_EQ(hands->rows(), 2155);
    hands->click(u"Part"_s);
    EXPECT_EQ(hands->columns(), QStringList({u"OrderID"_s, u"ProductName"_s, u"ExtendedPrice"_s}));
    hands->click(u"Filter"_s);
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"ExtendedPrice"_s).first(), u"15810"_s);
    EXPECT_EQ(hands->texts(u"ProductName"_s).first(), u"Côte de Blaye"_s);
    hands->click(u"ToOrigin"_s);
    hands->click(u"QuickFilter"_s);
    EXPECT_EQ(hands->texts(u"ProductName"_s).count(u"Côte de Blaye"_s), hands->rows());
    EXPECT_EQ(hands->rows(), 24);
    expectNoMessage();
}

TEST_F(AccessSampleJourney, APictureIsShownWithoutComplaint)
{
    ASSERT_TRUE(hands->load(u"SELECT * FROM Categories"_s, u"SELECT CategoryName FROM Categories"_s));
    EXPECT_EQ(hands->rows(), 8);
    EXPECT_EQ(hands->texts(u"Picture"_s).first(), u"<10746 字节>"_s);
    hands->click(u"SingleRecord"_s);
    EXPECT_EQ(hands->listed(u"CategoryName"_s), hands->texts(u"CategoryName"_s).first());
    expectNoMessage();
}
