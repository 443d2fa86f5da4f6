// The access keys of the control's menus and dialogs, in both languages: each letter means one thing.
#include "Shop.h"

#include "support/AccessKeys.h"
#include "support/Dialogs.h"

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class AccessKeys : public Shop, public testing::WithParamInterface<const char *>
{
protected:
    AccessKeys() { speak(QLatin1StringView(GetParam())); }
    ~AccessKeys() override { speak({}); } // the language is everybody's

    void speak(const QString &language)
    {
        grid.PutLanguage(language);
        QCoreApplication::processEvents();
    }
    QMenu *popup() const { return grid.findChild<QMenu *>(u"PopMnuData"_s); }
    QMenu *columnMenu() const { return grid.findChild<QMenu *>(u"ColumnMenu"_s); }

    // Opens and closes a menu by a click of the right button, and returns what its open state shares.
    template<typename Open>
    static QStringList sharedIn(QMenu &menu, const Open &open)
    {
        QStringList shared{u"not opened"_s};
        const auto watch = QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
            shared = sharedAccessKeys(menu);
            for (const QAction *action : menu.actions()) {
                if (action->menu())
                    shared += sharedAccessKeys(*action->menu());
            }
        });
        WindowAnswers closed;
        closed.clickInMenu({});
        open();
        QObject::disconnect(watch);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return shared;
    }

    // Uses a dialog that `open` shows; `use` presses what changes its parts.
    template<typename Open>
    static void expectInDialog(const Open &open, const std::vector<const char *> &pressed = {})
    {
        WindowAnswers answers({[&](QDialog &dialog) {
            expectOwnKeys(dialog);
            for (const char *name : pressed) {
                press(dialog, name);
                QCoreApplication::processEvents();
                expectOwnKeys(dialog);
            }
            for (QMenu *menu : dialog.findChildren<QMenu *>()) {
                Q_EMIT menu->aboutToShow();
                EXPECT_EQ(sharedAccessKeys(*menu), QStringList()) << qPrintable(menu->objectName());
            }
            dialog.reject();
        }});
        open();
    }
    static void expectOwnKeys(const QWidget &window)
    {
        const QStringList captions = accessCaptions(window);
        EXPECT_GT(captions.size(), 1) << qPrintable(window.objectName());
        EXPECT_EQ(sharedAccessKeys(captions), QStringList()) << qPrintable(window.objectName());
    }
    void openColumnMenu(int col)
    {
        clickCell(1, col);
        grid.activateWindow(); // a menu or a dialog may have been there
        QCoreApplication::processEvents();
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    }
    void chooseOfColumn(int col, const QString &key)
    {
        openColumnMenu(col);
        QAction *const entry = columnMenu()->findChild<QAction *>(u"ColumnMenu"_s + key);
        ASSERT_TRUE(entry && entry->isEnabled()) << qPrintable(key);
        QTest::mouseClick(columnMenu(), Qt::LeftButton, {}, columnMenu()->actionGeometry(entry).center());
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, AccessKeys, testing::Values("zh-CN", "en"),
                         [](const auto &language) { return std::string(language.param).substr(0, 2); });

} // namespace

TEST_P(AccessKeys, OfTheMenusAreTheirOwn)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(sharedIn(*popup(), [&] { clickCell(2, 2, Qt::RightButton); }), QStringList());
    EXPECT_EQ(sharedIn(*popup(),
                       [&] {
                           QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::RightButton, {},
                                             QPoint(60, 5));
                       }),
              QStringList())
        << "with the column's entries";
    openColumnMenu(2);
    EXPECT_TRUE(columnMenu()->isVisible());
    EXPECT_EQ(sharedAccessKeys(*columnMenu()), QStringList());
    columnMenu()->close();
    click(u"SingleRecord"_s);
    EXPECT_EQ(sharedIn(*popup(), [&] { clickCell(2, 1, Qt::RightButton); }), QStringList());
}

TEST_P(AccessKeys, OfTheControlAreTheirOwn)
{
    ASSERT_TRUE(load());
    choose(27, 1); // the bar that finds
    expectOwnKeys(grid);
    click(u"SingleRecord"_s);
    expectOwnKeys(grid);
    makeCurrent(u"城市"_s);
    QTest::keyClicks(list, u"x"_s);
    ASSERT_TRUE(grid.findChild<QWidget *>(u"cmdSaveRecord"_s)->isVisible());
    expectOwnKeys(grid);
    QTest::keyClick(edit, Qt::Key_Escape);
}

TEST_P(AccessKeys, OfTheDialogsAreTheirOwn)
{
    ASSERT_TRUE(load());
    expectInDialog([&] { click(u"Filter"_s); }, {"cmdAddRow", "chkSql", "chkGroups"});
    for (const QString &key : {u"QuickFilter"_s, u"SelField"_s, u"Sort"_s})
        expectInDialog([&] { click(key); });
    for (const int item : {21, 22}) // export, print
        expectInDialog([&] { grid.findChild<QAction *>(u"PopMnuDataAction%1"_s.arg(item))->trigger(); });
    expectInDialog([&] { chooseOfColumn(2, u"FilterByColumn"_s); });
    for (const int col : {3, 6}) // a number, and true or false
        expectInDialog([&] { chooseOfColumn(col, u"FormatColumn"_s); });
    choose(28, 2, 2);
    auto *const value = grid.findChild<QDialog *>(u"ValueDialog"_s);
    ASSERT_TRUE(value);
    expectOwnKeys(*value);
}

TEST_P(AccessKeys, OfTheViewerAreTheirOwn)
{
    ASSERT_TRUE(load());
    WindowAnswers answers({[&](QDialog &viewer) {
        expectOwnKeys(viewer);
        auto *const view = viewer.findChild<QTableView *>(u"vsfgShowData"_s);
        ASSERT_TRUE(view);
        EXPECT_EQ(sharedIn(part<QMenu>(viewer, "PopMnu"),
                           [&] {
                               QTest::mouseClick(view->viewport(), Qt::RightButton, {},
                                                 view->visualRect(view->model()->index(1, 1)).center());
                           }),
                  QStringList());
        viewer.reject();
    }});
    click(u"FullScreen"_s);
}

TEST_P(AccessKeys, OfTheConnectionsDialogsAreTheirOwn)
{
    WindowAnswers answers({[](QDialog &connect) {
                               expectOwnKeys(connect);
                               press(connect, "OptionLINK");
                               press(connect, "cmd_link");
                               press(connect, "Check_con");
                               press(connect, "OKButton"); // goes on to the statement
                               expectOwnKeys(connect);
                               connect.reject();
                           },
                           [](QDialog &builder) {
                               auto &target = part<QComboBox>(builder, "cmbTarget");
                               for (int i = 0; i < target.count(); ++i) {
                                   target.setCurrentIndex(i);
                                   expectOwnKeys(builder);
                               }
                               press(builder, "OKButton");
                           }});
    grid.GetConnection();
}

TEST_P(AccessKeys, OfTheMessageBoxesAreTheirOwn)
{
    ASSERT_TRUE(load());
    clickCell(2, 2);
    choose(9, 2); // delete
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QTest::keyClicks(list, u"x"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    database.run(u"UPDATE 商品 SET 名称 = 'y' WHERE ID = 2"_s); // by somebody else, who can be looked at
    click(u"AllRecord"_s);
    messages.answerNext(QMessageBox::Discard);
    grid.Clear();
    ASSERT_GE(messages.shown().size(), 3U);
    QSet<qsizetype> sizes;
    for (const ShownMessage &shown : messages.shown()) {
        EXPECT_EQ(sharedAccessKeys(shown.captions), QStringList()) << qPrintable(shown.text);
        sizes.insert(shown.captions.size());
    }
    EXPECT_EQ(sizes, QSet<qsizetype>({2, 4})) << "a question, an offer, and one of four answers";
}
