// Filters that stay for a table: in the dialog, over the next start, and by the host's hand.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QSettings>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct KeptFilters : Shop
{
    KeptFilters() { QSettings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s).remove(u"Filters"_s); }

    QString saved()
    {
        QString text;
        EXPECT_TRUE(QMetaObject::invokeMethod(&grid, "SaveFilters", Q_RETURN_ARG(QString, text)));
        return text;
    }
    bool restore(const QString &text)
    {
        bool isDone = false;
        EXPECT_TRUE(QMetaObject::invokeMethod(&grid, "RestoreFilters", Q_RETURN_ARG(bool, isDone),
                                              Q_ARG(QString, text)));
        return isDone;
    }
    static QStringList entries(QDialog &dialog, const char *menu)
    {
        QMetaObject::invokeMethod(&part<QMenu>(dialog, "mnuSaved"), "aboutToShow");
        QStringList texts;
        for (const QAction *action : part<QMenu>(dialog, menu).actions())
            texts.append(action->text());
        return texts;
    }
    static void filter(QDialog &dialog, const QString &condition)
    {
        compose(part<QLineEdit>(dialog, "txtCondition"), condition);
        press(dialog, "cmd_Filter");
    }
};

} // namespace

TEST_F(KeptFilters, TheHostTakesThemOutAndHandsThemIn)
{
    EXPECT_EQ(saved(), QString());
    ASSERT_TRUE(load());
    EXPECT_EQ(saved(), u"{\"filters\":1,\"named\":[],\"recent\":[]}"_s);
    const QString text = u"{\"filters\":1,\"named\":[{\"name\":\"今天的\",\"rows\":[{\"field\":\"日期\","
                         u"\"operator\":\"equals\","
                         "\"value\":\"今天\"}]}],\"recent\":[]}"_s;
    EXPECT_TRUE(restore(text));
    EXPECT_TRUE(saved().contains(u"今天的"_s));
    WindowAnswers dialogs({[](QDialog &dialog) {
        EXPECT_EQ(entries(dialog, "mnuRename"), QStringList{u"今天的"_s});
        press(dialog, "cmd_Cancel");
    }});
    click(u"Filter"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 订单"_s, QString()));
    EXPECT_FALSE(saved().contains(u"今天的"_s)) << "each table has its own";
}

TEST_F(KeptFilters, EachDatabaseAndEachKeyOfTheHostHasItsOwn)
{
    const QString text = u"{\"filters\":1,\"named\":[{\"name\":\"大\",\"condition\":\"ID > 5\"}]}"_s;
    ASSERT_TRUE(load());
    EXPECT_TRUE(restore(text));
    grid.setProperty("LayoutKey", u"仓库窗口"_s);
    EXPECT_FALSE(saved().contains(u"大"_s));
    grid.setProperty("LayoutKey", QString());
    EXPECT_TRUE(saved().contains(u"大"_s));

    const ShopDatabase other;
    grid.PutConnectionString(other.database.connectionString());
    ASSERT_TRUE(load());
    EXPECT_FALSE(saved().contains(u"大"_s));
    grid.PutConnectionString(u"data source="_s + database.path() +
                             u";User ID=li;Password=x;Provider=SQLite"_s);
    ASSERT_TRUE(load());
    EXPECT_TRUE(saved().contains(u"大"_s)) << "the same database, whoever logs in";
}

TEST_F(KeptFilters, WhoWantsToSeeTheStatementSeesItTheNextTime)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               EXPECT_FALSE(part<QLineEdit>(dialog, "txtCondition").isVisible());
                               press(dialog, "chkSql");
                               press(dialog, "cmd_Cancel");
                           },
                           [](QDialog &dialog) {
                               EXPECT_TRUE(part<QLineEdit>(dialog, "txtCondition").isVisible());
                               press(dialog, "cmd_Cancel");
                           }});
    click(u"Filter"_s);
    click(u"Filter"_s);
}

TEST_F(KeptFilters, TheWordsThatWereSearchedForStayToo)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) {
                               EXPECT_EQ(part<QComboBox>(dialog, "InputCombo1").itemText(0), u"茶"_s);
                               press(dialog, "CancelBtn");
                           }});
    click(u"QuickFilter"_s);
    const QSettings settings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s);
    EXPECT_EQ(settings.value(u"Find/Words"_s).toStringList().value(0), u"茶"_s);
    click(u"QuickFilter"_s);
}

TEST_F(KeptFilters, ATextThatIsNoneIsRefusedAndChangesNothing)
{
    EXPECT_FALSE(restore(u"{\"filters\":1}"_s)) << "nothing is open";
    EXPECT_EQ(messages.texts().last(), u"没有打开的结果，无法恢复筛选。"_s);
    ASSERT_TRUE(load());
    EXPECT_TRUE(restore(u"{\"filters\":1,\"named\":[{\"name\":\"a\",\"condition\":\"ID > 1\"}]}"_s));
    const QString before = saved();
    EXPECT_FALSE(restore(u"{\"filters\":"_s));
    EXPECT_TRUE(messages.texts().last().contains(u"JSON"_s));
    EXPECT_FALSE(restore(u"{\"filters\":1,\"named\":[{\"name\":\"a\"}]}"_s));
    EXPECT_TRUE(messages.texts().last().contains(u"named[0]"_s));
    EXPECT_EQ(saved(), before);
}

TEST_F(KeptFilters, WhatFilteredIsTheFirstOfTheRecentOnes)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 10"_s); },
                           [](QDialog &dialog) {
                               filter(dialog, u"没有 > 10"_s);
                               EXPECT_TRUE(dialog.isVisible()) << "a refused condition can be mended";
                               press(dialog, "cmd_Cancel");
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(entries(dialog, "mnuRecent"), QStringList{u"ID > 10"_s})
                                   << "the refused one is none of them";
                               press(dialog, "cmd_Cancel");
                           }});
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"11"_s, u"12"_s}));
    click(u"Filter"_s);
    click(u"Filter"_s);
}
