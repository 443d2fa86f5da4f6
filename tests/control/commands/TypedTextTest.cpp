// A value is still being typed when a host saves the record or moves to another one: it is committed first.
#include "Shop.h"

#include <QtTest/QTest>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class TypedText : public Shop
{
protected:
    // Leaves the editor open over a field of the third record.
    void type(const QString &field, const QString &text)
    {
        ASSERT_TRUE(load());
        clickCell(3, 1);
        click(u"SingleRecord"_s);
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(edit->isVisible());
        edit->setText(text);
    }
    bool callHost(const char *method) { return QMetaObject::invokeMethod(grid.RecordSet(), method); }
    void expectTaken()
    {
        EXPECT_EQ(stored(u"城市"_s, 3), u"沈阳"_s);
        EXPECT_EQ(texts(u"城市"_s).at(2), u"沈阳"_s);
        EXPECT_FALSE(edit->isVisible());
        EXPECT_TRUE(messages.texts().isEmpty());
    }
    void expectKept(const QString &text)
    {
        EXPECT_EQ(grid.CurrPosition(), 3);
        EXPECT_EQ(listed(u"ID"_s), u"3"_s);
        EXPECT_TRUE(edit->isVisible());
        EXPECT_EQ(edit->text(), text);
        EXPECT_EQ(computed(u"count(*)"_s, 3), u"1"_s);
    }
};

} // namespace

TEST_F(TypedText, IsSavedWhenTheHostLocatesAnotherRecord)
{
    type(u"城市"_s, u"沈阳"_s);
    EXPECT_TRUE(grid.LocateSelRecord(5));
    expectTaken();
    EXPECT_EQ(grid.CurrPosition(), 5);
    EXPECT_EQ(listed(u"ID"_s), u"5"_s);
}

TEST_F(TypedText, IsSavedWhenTheHostMovesByName)
{
    type(u"城市"_s, u"沈阳"_s);
    ASSERT_TRUE(callHost("MoveNext"));
    expectTaken();
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);
    EXPECT_NE(listed(u"城市"_s), u"沈阳"_s) << "the next record got nothing of it";
}

TEST_F(TypedText, IsSavedWhenTheHostSaves)
{
    type(u"城市"_s, u"沈阳"_s);
    ASSERT_TRUE(callHost("Update"));
    expectTaken();
    EXPECT_EQ(listed(u"ID"_s), u"3"_s);
    EXPECT_EQ(listed(u"城市"_s), u"沈阳"_s);
}

TEST_F(TypedText, IsSavedWhenTheHostAddsARecord)
{
    type(u"城市"_s, u"沈阳"_s);
    ASSERT_TRUE(callHost("AddNew"));
    expectTaken();
    EXPECT_EQ(listed(u"城市"_s), QString());
    ASSERT_TRUE(callHost("CancelUpdate"));
}

TEST_F(TypedText, IsTakenWhenTheHostChangesTheFont)
{
    type(u"城市"_s, u"沈阳"_s);
    QFont font = grid.font();
    font.setPointSize(font.pointSize() + 2);
    grid.setFont(font);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_EQ(listed(u"城市"_s), u"沈阳"_s);
}

TEST_F(TypedText, IsGivenUpWhenTheHostGivesUpTheRecord)
{
    type(u"城市"_s, u"沈阳"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(listed(u"城市"_s), u"沈阳"_s);
    ASSERT_TRUE(callHost("CancelUpdate"));
    EXPECT_NE(stored(u"城市"_s, 3), u"沈阳"_s);
}

TEST_F(TypedText, ThatDoesNotFitKeepsTheRecordAndStays)
{
    type(u"ID"_s, u"三"_s);
    EXPECT_TRUE(grid.LocateSelRecord(5));
    expectKept(u"三"_s);
    QSignalSpy errors(grid.RecordSet(), SIGNAL(HostError(qint32, QString)));
    ASSERT_TRUE(callHost("MoveNext"));
    EXPECT_EQ(errors.count(), 1);
    expectKept(u"三"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_FALSE(edit->isVisible());
    ASSERT_TRUE(callHost("MoveNext"));
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);
}
