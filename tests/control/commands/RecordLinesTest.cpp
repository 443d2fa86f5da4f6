// The editor of a text of several lines.
#include "Shop.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QToolTip>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordLines : public Shop
{
protected:
    QPlainTextEdit *lines() { return grid.findChild<QPlainTextEdit *>(u"txtLines"_s); }
};

} // namespace

TEST_F(RecordLines, ALongTextHasSeveralLines)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, 'a' || char(13,10) || 'b' || char(160) || 'c'), (2, 'd')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(list->viewport()->rect().contains(lines()->geometry()));
    QTest::keyClick(lines(), Qt::Key_Return);
    EXPECT_FALSE(lines()->isVisible());
    const auto hex = [this](int id) {
        return database.ask(u"SELECT hex(内容) FROM 备忘 WHERE ID = %1"_s.arg(id));
    };
    click(u"AllRecord"_s);
    EXPECT_EQ(hex(1), u"610D0A62C2A063"_s) << "nothing was typed";

    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(lines(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(lines(), u"d"_s);
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(hex(1), u"610D0A62C2A0630D0A64"_s) << "the line breaks of the text, and its blank";
}

// The editor shows every line break as the same.
TEST_F(RecordLines, EndsOfLinesStayAsTheyAreWhereNothingIsTyped)
{
    const QStringList texts{u"a\r\nb\nc"_s,          u"a\nc\r\nq"_s,   u"a\rb\nc\r"_s,
                            u"a\r\r\nc"_s,           u"\n\r"_s,        u"\u2029c\uFDD0\nq"_s,
                            u"a\u2029b\nc\u2028d"_s, u"a\uFDD0b\nc"_s, u"\uFDD1\r\n\uFFFC"_s,
                            u"a\n\U0001F600\r"_s};
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT, 备注 TEXT)"_s);
    const auto expectStored = [&](const QString &text) {
        EXPECT_EQ(database.ask(u"SELECT hex(内容) FROM 备忘"_s),
                  QString::fromLatin1(text.toUtf8().toHex().toUpper()))
            << qPrintable(text);
    };
    const auto editLines = [&](const std::function<void()> &type) {
        click(u"SingleRecord"_s);
        makeCurrent(u"内容"_s);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(lines()->isVisible());
        type();
        QTest::keyClick(lines(), Qt::Key_Return);
    };
    for (const QString &text : texts) {
        database.run(u"DELETE FROM 备忘; INSERT INTO 备忘 VALUES (1, CAST(x'%1' AS TEXT), 'a')"_s.arg(
            QString::fromLatin1(text.toUtf8().toHex())));
        ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
        editLines([] {});
        EXPECT_TRUE(writeListed(u"备注"_s, u"b"_s)) << "another field is changed";
        click(u"AllRecord"_s);
        EXPECT_EQ(database.ask(u"SELECT 备注 FROM 备忘"_s), u"b"_s);
        expectStored(text);

        for (const Qt::Key end : {Qt::Key_End, Qt::Key_Home}) {
            editLines([&] {
                QTest::keyClick(lines(), end, Qt::ControlModifier);
                QTest::keyClicks(lines(), u"x"_s);
            });
            click(u"AllRecord"_s);
            expectStored(end == Qt::Key_End ? text + u'x' : u'x' + text + u'x');
        }
        const qsizetype middle = text.indexOf(u'c');
        if (middle < 0)
            continue;
        editLines([&] {
            QTextCursor cursor = lines()->document()->find(u"c"_s);
            ASSERT_FALSE(cursor.isNull());
            cursor.insertText(u"Z"_s);
        });
        click(u"AllRecord"_s);
        expectStored(u'x' + QString(text).replace(middle, 1, u'Z') + u'x');
    }
}

TEST_F(RecordLines, ALineThatIsTakenOutLeavesTheOthers)
{
    database.run(
        u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
        "INSERT INTO 备忘 VALUES (1, 'a' || char(13,10) || 'b' || char(10) || 'c' || char(13) || 'd')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(lines(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(lines(), Qt::Key_Down);
    QTest::keyClick(lines(), Qt::Key_Delete);
    QTest::keyClick(lines(), Qt::Key_Delete);
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT 内容 FROM 备忘"_s), u"a\r\nc\rd"_s);
}

TEST_F(RecordLines, ATextThatIsTooLongForATextBoxIsNotEdited)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, replace(hex(zeroblob(5000001)), '00', 'ab'))"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(QToolTip::text().contains(u"F3"_s)) << qPrintable(QToolTip::text());
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT length(内容) FROM 备忘"_s), u"10000002"_s);
}

TEST_F(RecordLines, ALongTextIsGivenUpWithEsc)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, 'a' || char(10) || 'b')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, 'x');
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_EQ(lines()->toPlainText(), u"x"_s);
    QTest::keyClick(lines(), Qt::Key_Escape);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_TRUE(list->hasFocus());
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT 内容 FROM 备忘"_s), u"a\nb"_s);
}

TEST_F(RecordLines, AShortTextGoesOnInSeveralLines)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"ab"_s);
    edit->setCursorPosition(1);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(lines()->hasFocus());
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"城市"_s, 3), u"a\nb"_s);
}

TEST_F(RecordLines, ANumberHasOneLine)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"Unit Price"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_TRUE(edit->isVisible());
}
