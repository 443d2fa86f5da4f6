// Numbers of records as people read them: with their thousands apart, wherever one is shown.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct GroupedNumbers : Shop
{
    // 1234 records, each with a text that can be found.
    const QString many =
        u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 1234) SELECT I, '行' AS T FROM N"_s;
    ExpectedWarning noPopup{u"This plugin does not support"_s};
};

} // namespace

TEST_F(GroupedNumbers, AreInDialogs)
{
    ASSERT_TRUE(load(many, {}));
    WindowAnswers answers(
        {[](QDialog &dialog) {
             EXPECT_EQ(part<QAbstractButton>(dialog, "optAllRecords").text(), u"全部 1,234 条(&A)"_s);
             dialog.reject();
         },
         [](QDialog &dialog) {
             EXPECT_EQ(part<QComboBox>(dialog, "cmbRecords").itemText(0), u"全部 1,234 条"_s);
             dialog.reject();
         }});
    grid.findChild<QAction *>(u"PopMnuDataAction21"_s)->trigger(); // export
    grid.findChild<QAction *>(u"PopMnuDataAction22"_s)->trigger(); // print
}

TEST_F(GroupedNumbers, AreInTheLines)
{
    ASSERT_TRUE(load(many, {}));
    EXPECT_TRUE(grid.findChild<QLabel *>(u"lblStatement"_s)->text().startsWith(u"第 1 条，共 1,234 条"_s));
    choose(27, 1); // the find bar
    QInputMethodEvent typed;
    typed.setCommitString(u"行"_s);
    QCoreApplication::sendEvent(grid.findChild<QLineEdit *>(u"txtFindShown"_s), &typed);
    auto *const found = grid.findChild<QLabel *>(u"lblFound"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return found->text() == u"共 1,234 处"_s; }))
        << qPrintable(found->text());
}

TEST_F(GroupedNumbers, AreInTheListOfStatements)
{
    ASSERT_TRUE(load(many, {}));
    const QStringList entries = historyEntries();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_TRUE(entries.front().contains(u"\t1,234 条  "_s)) << qPrintable(entries.front());
}
