// The host program's line for a connection string shows no password.
#include "tab/ConnectionEdit.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ConnectionEdit, ShowsDotsForPasswords)
{
    struct Case
    {
        QString connection;
        QString seen;
    };
    const Case cases[] = {
        {u"DSN=a;UID=b;PWD=abc;Database=d"_s, u"DSN=a;UID=b;PWD=•••;Database=d"_s},
        {u"password = 'a;b''c' ; Server=s"_s, u"password =••••••••••; Server=s"_s},
        {u"Jet OLEDB:Database Password=x"_s, u"Jet OLEDB:Database Password=•"_s},
        {u"PWD={a};b}}c};UID=u"_s, u"PWD=•••;b}}c};UID=u"_s},
        {u"PWD={a}};b;UID=u"_s, u"PWD=••••••••••••"_s},
        {u"Extended Properties=\"DSN=a;PWD=b;UID=c\";x=1"_s,
         u"Extended Properties=•••••••••••••••••••;x=1"_s},
        {u"PWD="_s, u"PWD="_s},
        {u"PWD"_s, u"PWD"_s},
        {u"Data Source=/home/pwd/a.db"_s, u"Data Source=/home/pwd/a.db"_s},
        {u""_s, u""_s},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ConnectionEdit::masked(c.connection).toStdString(), c.seen.toStdString());
}

TEST(ConnectionEdit, KeepsWhatIsTypedAndShowsDots)
{
    ConnectionEdit edit({});
    const QString typed = u"UID=me;PWD={a;b};x=1"_s;
    for (const QChar c : typed) {
        QTest::keyClicks(&edit, c);
        EXPECT_FALSE(edit.text().contains(u"a;b"));
    }
    EXPECT_EQ(edit.connection(), typed);
    EXPECT_EQ(edit.text(), u"UID=me;PWD=•••••;x=1"_s);
    edit.selectAll();
    edit.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), edit.text());
}

TEST(ConnectionEdit, TakesEditsInsideThePassword)
{
    ConnectionEdit edit(u"PWD=abcd;UID=u"_s);
    edit.setCursorPosition(6);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.connection(), u"PWD=acd;UID=u"_s);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.connection(), u"PWD=ad;UID=u"_s);
    QTest::keyClicks(&edit, u"xy"_s);
    EXPECT_EQ(edit.connection(), u"PWD=axyd;UID=u"_s);
    EXPECT_EQ(edit.cursorPosition(), 7);
    edit.setSelection(4, 4);
    QTest::keyClicks(&edit, u"z"_s);
    EXPECT_EQ(edit.connection(), u"PWD=z;UID=u"_s);
    edit.setSelection(0, 3); // another keyword, and the value is seen
    QTest::keyClicks(&edit, u"DSN"_s);
    EXPECT_EQ(edit.connection(), u"DSN=z;UID=u"_s);
    QTest::keySequence(&edit, QKeySequence::Undo);
    EXPECT_EQ(ConnectionEdit::masked(edit.connection()), edit.text());
}

// Random edits, beside a plain text that gets the same ones.
TEST(ConnectionEdit, FollowsAnyEdit)
{
    QRandomGenerator random(7);
    const QString letters = u"PWD=;{}'\"aé"_s;
    for (int round = 0; round < 300; ++round) {
        QString plain = u"UID=a;PWD=aab'a;x=aaa"_s;
        ConnectionEdit edit(plain);
        for (int i = 0; i < 30; ++i) {
            const int at = random.bounded(static_cast<int>(plain.size()) + 1);
            const int length = random.bounded(static_cast<int>(plain.size()) - at + 1);
            edit.setSelection(at, length);
            if (length == 0)
                edit.setCursorPosition(at);
            if (random.bounded(3) == 0 && length > 0) {
                QTest::keyClick(&edit, Qt::Key_Delete);
                plain.remove(at, length);
            } else {
                const QChar c = letters[random.bounded(static_cast<int>(letters.size()))];
                edit.insert(c);
                QMetaObject::invokeMethod(&edit, "textEdited", Q_ARG(QString, edit.text()));
                plain.replace(at, length, c);
            }
            ASSERT_EQ(edit.connection(), plain);
            ASSERT_EQ(edit.text(), ConnectionEdit::masked(plain));
        }
    }
}
