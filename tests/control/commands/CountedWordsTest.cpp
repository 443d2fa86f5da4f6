// Words that depend on a number: English has one form for one and another for many, Chinese has one for all.
#include "Shop.h"

#include "support/WindowAnswers.h"

#include <KOVAVSFDataGridLib/ado/ValueText.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct CountedWords : Shop
{
    CountedWords() { speak(u"en"_s); }
    // The language is the application's, and other tests come after this one.
    ~CountedWords() override { grid.PutLanguage({}); }

    void speak(const QString &name)
    {
        grid.PutLanguage(name);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // What the bar says about a condition of the host.
    QString conditionOf(const QString &condition)
    {
        EXPECT_TRUE(load());
        answerFilter(condition);
        const auto *shown = grid.findChild<QToolButton *>(u"Condition1"_s);
        return shown ? shown->text().section(u"  "_s, 0, 0) : QString();
    }
    // What F3 says about the size of a statement's only value.
    QString sizeOf(const QString &value)
    {
        EXPECT_TRUE(load(u"SELECT %1 AS V"_s.arg(value), {}));
        clickCell(1, 1);
        grid.activateWindow();
        QCoreApplication::processEvents();
        table->setFocus();
        QTest::keyClick(table, Qt::Key_F3);
        const auto *window = grid.findChild<QDialog *>(u"ValueDialog"_s);
        return window ? window->findChild<QLabel *>(u"lblSummary"_s)->text().section(u", "_s, 0, 0)
                      : QString();
    }

    ExpectedWarning noPopup{u"This plugin does not support"_s};
};

} // namespace

TEST_F(CountedWords, OfBytesInCells)
{
    EXPECT_EQ(ADODB::ValueText(QByteArray(1, 'x')), u"<1 byte>"_s);
    EXPECT_EQ(ADODB::ValueText(QByteArray()), u"<0 bytes>"_s);
    EXPECT_EQ(ADODB::ValueText(QByteArray(1234, 'x')), u"<1234 bytes>"_s);
    ASSERT_TRUE(load(u"SELECT x'31' AS V, x'3132' AS W"_s, {}));
    EXPECT_EQ(texts(u"V"_s), QStringList(u"<1 byte>"_s));
    EXPECT_EQ(texts(u"W"_s), QStringList(u"<2 bytes>"_s));
    speak(u"zh-CN"_s);
    EXPECT_EQ(texts(u"V"_s), QStringList(u"<1 字节>"_s));
}

TEST_F(CountedWords, OfConditions)
{
    const QString top = u"[Unit Price] IN (SELECT KovaValue FROM (SELECT [Unit Price] AS KovaValue FROM 商品 "
                        "ORDER BY [Unit Price] %1 LIMIT %2) KovaFirst)"_s;
    const QString firstText =
        u"名称 IN (SELECT KovaValue FROM (SELECT 名称 AS KovaValue FROM 商品 WHERE 名称 "
        "<> '' ORDER BY 名称 LIMIT %1) KovaFirstTexts)"_s;
    EXPECT_EQ(conditionOf(top.arg(u"DESC"_s).arg(1)), u"Unit Price is the largest"_s);
    EXPECT_EQ(conditionOf(top.arg(u"DESC"_s).arg(2)), u"Unit Price is one of the 2 largest"_s);
    EXPECT_EQ(conditionOf(top.arg(u"ASC"_s).arg(1)), u"Unit Price is the smallest"_s);
    EXPECT_EQ(conditionOf(firstText.arg(1)), u"名称 is the first in order"_s);
    EXPECT_EQ(conditionOf(firstText.arg(2)), u"名称 is one of the first 2 in order"_s);
    speak(u"zh-CN"_s);
    EXPECT_EQ(conditionOf(top.arg(u"DESC"_s).arg(1)), u"Unit Price 是最大的 1 个之一"_s);
}

TEST_F(CountedWords, OfTheValueWindow)
{
    grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false);
    EXPECT_EQ(sizeOf(u"'x'"_s), u"1 character"_s);
    EXPECT_EQ(sizeOf(u"'xy'"_s), u"2 characters"_s);
    EXPECT_EQ(sizeOf(u"x'ff'"_s), u"1 byte"_s);
    EXPECT_EQ(sizeOf(u"zeroblob(2000)"_s), u"2,000 bytes"_s);
}

TEST_F(CountedWords, OfPagesInFullScreen)
{
    ASSERT_TRUE(load());
    const auto pagesInFullScreen = [&] {
        QString shown;
        WindowAnswers viewer({[&](QDialog &dialog) {
            shown = dialog.findChild<QLabel *>(u"lblPageCount"_s)->text();
            dialog.reject();
        }});
        grid.activateWindow(); // nobody else does off-screen, after the viewer was closed
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_F11);
        return shown;
    };
    EXPECT_EQ(pagesInFullScreen(), u"Page 1 of 1"_s);
    speak(u"zh-CN"_s);
    EXPECT_EQ(pagesInFullScreen(), u"第1页共1页"_s);
}

TEST_F(CountedWords, OfTheListOfStatements)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID = 1"_s));
    const QStringList entries = historyEntries();
    ASSERT_FALSE(entries.isEmpty());
    EXPECT_TRUE(entries.front().contains(u"\t1 record  "_s)) << qPrintable(entries.front());
}
