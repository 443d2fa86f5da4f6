// The button that saves a single record, beside the mark that it is not saved.
#include "Shop.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordSave : public Shop, public testing::WithParamInterface<bool>
{
protected:
    RecordSave()
    {
        grid.PutLanguage(isEnglish ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents();
    }
    ~RecordSave() override { grid.PutLanguage({}); }

    QPushButton &save() const { return *grid.findChild<QPushButton *>(u"cmdSaveRecord"_s); }
    bool isMarked() const
    {
        const QString mark = isEnglish ? u"(not saved)"_s : u"（未保存）"_s;
        return grid.findChild<QLabel *>(u"lblStatement"_s)->text().contains(mark);
    }
    void type(const QString &field, const QString &text)
    {
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    void showRecord(int row)
    {
        ASSERT_TRUE(load());
        clickCell(row, 1);
        click(u"SingleRecord"_s);
    }

    const bool isEnglish = GetParam();
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, RecordSave, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(RecordSave, IsThereFromTheFirstLetterUntilAClickOnIt)
{
    showRecord(3);
    EXPECT_FALSE(save().isVisible());
    EXPECT_FALSE(isMarked());
    type(u"城市"_s, u"Dali"_s);
    EXPECT_TRUE(save().isVisible());
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(save().text(), isEnglish ? u"&Save"_s : u"保存(&S)"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&save())->text(QAccessible::Name),
              isEnglish ? u"Save this record (Ctrl+S)"_s : u"保存这条记录（Ctrl+S）"_s);
    QTest::mouseClick(&save(), Qt::LeftButton);
    EXPECT_EQ(stored(u"城市"_s, 3), u"Dali"_s);
    EXPECT_FALSE(save().isVisible());
    EXPECT_FALSE(isMarked());
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_TRUE(list->hasFocus());
    EXPECT_EQ(messages.texts(), QStringList());
}

TEST_P(RecordSave, GoesWithWhatIsGivenUp)
{
    showRecord(3);
    type(u"城市"_s, u"Dali"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_FALSE(save().isVisible());
    type(u"城市"_s, u"Dali"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(save().isVisible()) << "it is in the record, and not in the database";
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(save().isVisible());
    EXPECT_FALSE(isMarked());
    type(u"城市"_s, u"Dali"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"城市"_s, 3), u"Dali"_s);
    EXPECT_FALSE(save().isVisible());
}

TEST_P(RecordSave, IsReachedAndPressedByTheKeyboard)
{
    showRecord(3);
    type(u"城市"_s, u"Dali"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    for (int i = 0; i < 20 && !save().hasFocus(); ++i)
        QTest::keyClick(grid.window()->windowHandle(), Qt::Key_Tab);
    ASSERT_TRUE(save().hasFocus());
    QTest::keyClick(grid.window()->windowHandle(), Qt::Key_Space);
    EXPECT_EQ(stored(u"城市"_s, 3), u"Dali"_s);
    EXPECT_FALSE(save().isVisible());
    EXPECT_TRUE(list->hasFocus());
    type(u"城市"_s, u"Lhasa"_s);
    QTest::keyClick(grid.window()->windowHandle(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !save().isVisible(); })) << "its access key presses it visibly";
    EXPECT_EQ(stored(u"城市"_s, 3), u"Lhasa"_s);
}

TEST_P(RecordSave, StaysWhereTheDatabaseRefuses)
{
    showRecord(3);
    type(u"ID"_s, u"5"_s);
    QTest::mouseClick(&save(), Qt::LeftButton);
    EXPECT_EQ(messages.texts().size(), 1) << "another record has this number";
    EXPECT_TRUE(save().isVisible());
    EXPECT_TRUE(isMarked());
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(save().isVisible());
}

TEST_P(RecordSave, ANewRecordHasItOnceSomethingIsWritten)
{
    ASSERT_TRUE(load());
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Plus, Qt::ControlModifier);
    ASSERT_TRUE(isSingleRecordShown());
    EXPECT_FALSE(save().isVisible());
    type(u"名称"_s, u"Oolong"_s);
    QTest::mouseClick(&save(), Qt::LeftButton);
    EXPECT_EQ(stored(u"名称"_s, 13), u"Oolong"_s);
    EXPECT_FALSE(save().isVisible());
}

TEST_P(RecordSave, IsNotThereWhereTheHostAllowsNoChange)
{
    ASSERT_TRUE(load());
    grid.setProperty("ReadOnly", true);
    click(u"SingleRecord"_s);
    type(u"城市"_s, u"Dali"_s);
    EXPECT_FALSE(save().isVisible());
    EXPECT_FALSE(isMarked());
    QTest::keyClick(edit, Qt::Key_Escape);
    grid.setProperty("ReadOnly", false);
    type(u"城市"_s, u"Dali"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    ASSERT_TRUE(save().isVisible());
    grid.setProperty("ReadOnly", true);
    EXPECT_FALSE(save().isVisible());
}

TEST_P(RecordSave, IsSeenWholeInANarrowControl)
{
    showRecord(3);
    type(u"城市"_s, u"Dali"_s);
    for (const int width : {1200, 600, 420}) {
        grid.window()->resize(width, 400);
        QCoreApplication::processEvents();
        if (!edit->isVisible()) // as before: another size ends an edit
            type(u"城市"_s, u"Dali"_s);
        EXPECT_TRUE(save().isVisible());
        EXPECT_GE(save().width(), save().sizeHint().width()) << width;
        EXPECT_LE(save().geometry().right(), grid.findChild<QWidget *>(u"CheckSelAllRow"_s)->x()) << width;
    }
}
