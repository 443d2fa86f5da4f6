// The ways of JourneyTest through a real Access file, which can't be written.
#include "Shop.h"

#include "support/Dialogs.h"
#include "support/SampleFiles.h"

#include <QtCore/QFile>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class AccessJourney : public Shop
{
protected:
    void SetUp() override
    {
        const QString path = sampleFile(u"nwind.mdb"_s);
        if (path.isEmpty())
            GTEST_SKIP() << "nwind.mdb is not here; see sampleFile()";
        grid.PutConnectionString(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
        ASSERT_TRUE(load(u"SELECT * FROM [Products]"_s,
                         u"SELECT [ProductID],[ProductName],[UnitPrice] FROM [Products]"_s));
        EXPECT_EQ(rows(), Products);
    }

    static constexpr int Products = 77;
    const QStringList part{u"ProductID"_s, u"ProductName"_s, u"UnitPrice"_s};
};

} // namespace

TEST_F(AccessJourney, PartSortAndHistory)
{
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"UnitPrice > 50"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"UnitPrice"_s}, true); }});
    EXPECT_EQ(columns().size(), 10);
    click(u"Part"_s);
    EXPECT_EQ(columns(), part);
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 7);
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"UnitPrice"_s).first(), u"263.5"_s);
    EXPECT_EQ(texts(u"ProductName"_s).first(), u"Côte de Blaye"_s);
    click(u"ToPreview"_s);
    click(u"ToOrigin"_s);
    EXPECT_EQ(rows(), Products);
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(AccessJourney, QuickFilterFindsLettersOfAnyCaseAndNumbers)
{
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"CÔTE"_s); },
                           [](QDialog &dialog) { find(dialog, u"38"_s, u"ProductID"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ProductName"_s), QStringList(u"Côte de Blaye"_s));
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ProductID"_s), QStringList(u"38"_s));
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(AccessJourney, ACellFiltersByItsValue)
{
    ASSERT_TRUE(load(u"SELECT * FROM Orders"_s, u"SELECT OrderID FROM Orders"_s));
    const QString city = texts(u"ShipCity"_s).first();
    const auto expected = texts(u"ShipCity"_s).count(city);
    choose(14, 1, grid.GetBindFieldIndex(u"ShipCity"_s));
    EXPECT_EQ(rows(), expected);
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(AccessJourney, ANumberFiltersByItsShownText)
{
    const QString stock = texts(u"UnitsInStock"_s).first();
    const auto expected = texts(u"UnitsInStock"_s).count(stock);
    choose(14, 1, grid.GetBindFieldIndex(u"UnitsInStock"_s));
    EXPECT_EQ(rows(), expected) << qUtf8Printable(messages.texts().join(u'|'));
    EXPECT_EQ(texts(u"UnitsInStock"_s).count(stock), expected);
}

TEST_F(AccessJourney, ADeletionIsRefusedAndNothingIsLost)
{
    const QStringList before = texts(u"ProductName"_s);
    messages.answerNext(QMessageBox::Yes);
    choose(9, 1);
    ASSERT_EQ(messages.shown().size(), 2U);
    EXPECT_EQ(messages.texts().last(), u"删除操作与数据库的约束冲突，不能删除此记录！"_s);
    EXPECT_TRUE(messages.shown().back().cause.contains(u"只能读取"_s))
        << qUtf8Printable(messages.shown().back().cause);
    EXPECT_EQ(texts(u"ProductName"_s), before);
    click(u"Part"_s);
    EXPECT_EQ(rows(), Products);
}

TEST_F(AccessJourney, APictureIsShownWithoutComplaint)
{
    ASSERT_TRUE(load(u"SELECT * FROM Categories"_s, u"SELECT CategoryName FROM Categories"_s));
    EXPECT_EQ(rows(), 8);
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"CategoryName"_s), texts(u"CategoryName"_s).first());
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}
