// Filters under names, from the control's dialog: saved, recalled, renamed and deleted by real clicks and
// keys in real menus.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <utility>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// A sequence of user actions, each as soon as its target exists: in a dialog, a menu or a submenu, whose
// event loops are nested.
class Steps : public QObject
{
public:
    template<typename T>
    void in(const char *name, std::function<void(T &)> use)
    {
        m_steps.push_back({[name]() -> QWidget * {
                               QWidget *const top = QApplication::activePopupWidget()
                                                        ? QApplication::activePopupWidget()
                                                        : QApplication::activeModalWidget();
                               return top && top->objectName() == QLatin1StringView(name) ? top : nullptr;
                           },
                           [use](QWidget &widget) { use(dynamic_cast<T &>(widget)); }});
    }
    void inDialog(const char *name, std::function<void(QDialog &)> use) { in<QDialog>(name, std::move(use)); }
    void inMenu(const char *name, std::function<void(QMenu &)> use) { in<QMenu>(name, std::move(use)); }
    void openMenu()
    {
        inDialog("frm_Filter", [](QDialog &dialog) { press(dialog, "cmdSaved"); });
    }
    void typeName(const QString &name)
    {
        inDialog("dlgFilterName", [name](QDialog &dialog) {
            auto *const edit = dialog.findChild<QLineEdit *>();
            ASSERT_TRUE(edit && edit->hasSelectedText());
            compose(*edit, name);
            QTest::keyClick(edit, Qt::Key_Return);
        });
    }
    void start()
    {
        m_since.start();
        poll();
    }
    bool areDone() const { return m_next == m_steps.size(); }

private:
    struct Step
    {
        std::function<QWidget *()> find;
        std::function<void(QWidget &)> use;
    };

    // The next look is planned before the step, which may wait for it.
    void poll()
    {
        if (areDone())
            return;
        constexpr qint64 patience = 10000; // milliseconds
        if (m_since.hasExpired(patience)) {
            ADD_FAILURE() << "waits for step " << m_next;
            m_next = m_steps.size();
            while (QApplication::activePopupWidget())
                QApplication::activePopupWidget()->close();
            if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                dialog->reject();
            return;
        }
        QTimer::singleShot(5, this, [this] { poll(); });
        QWidget *const found = m_steps[m_next].find();
        // Seen twice, because what was open above it may still be on its way out.
        if (std::exchange(m_seen, found) != found || !found || !found->isVisible())
            return;
        m_seen = nullptr;
        m_steps[m_next++].use(*found);
    }

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    QWidget *m_seen = nullptr;
    QElapsedTimer m_since;
};

class NamedFilters : public Shop, public testing::WithParamInterface<bool>
{
protected:
    NamedFilters()
    {
        QSettings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s).remove(u"Filters"_s);
        grid.PutLanguage(GetParam() ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents();
    }
    ~NamedFilters() override { grid.PutLanguage({}); }

    static QStringList names(const QMenu &menu)
    {
        QStringList texts;
        for (const QAction *action : menu.actions()) {
            if (action->isSeparator())
                break;
            if (!action->menu() && action->objectName().isEmpty())
                texts.append(action->text());
        }
        return texts;
    }
    static void clickOn(QMenu &menu, QAction *action)
    {
        ASSERT_TRUE(action && action->isEnabled());
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    }
    static void clickOn(QMenu &menu, const QString &caption)
    {
        for (QAction *action : menu.actions()) {
            if (action->text() == caption)
                return clickOn(menu, action);
        }
        ADD_FAILURE() << qUtf8Printable(caption);
    }
    void openFilter(Steps &steps)
    {
        steps.start();
        click(u"Filter"_s);
        EXPECT_TRUE(steps.areDone());
    }
    // Of the fifth record's city, under that name.
    void saveFilter(const QString &name)
    {
        table->setCurrentIndex(table->model()->index(4, 3));
        Steps steps;
        steps.openMenu();
        steps.inMenu("mnuSaved", [](QMenu &menu) { clickOn(menu, menu.findChild<QAction *>(u"actSave"_s)); });
        steps.typeName(name);
        steps.inDialog("frm_Filter", [](QDialog &dialog) { press(dialog, "cmd_Filter"); });
        openFilter(steps);
        EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
        click(u"ToOrigin"_s);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, NamedFilters, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(NamedFilters, AreSavedAndRecalledByTheMouse)
{
    ASSERT_TRUE(load());
    saveFilter(u"大连的"_s);
    table->setCurrentIndex(table->model()->index(0, 3));
    Steps steps;
    steps.inDialog("frm_Filter", [](QDialog &dialog) {
        compose(part<QLineEdit>(dialog, "txtValue1"), u"西安"_s);
        press(dialog, "cmdSaved");
    });
    messages.answerNext(QMessageBox::Yes); // what is typed is given up
    steps.inMenu("mnuSaved", [](QMenu &menu) {
        EXPECT_EQ(names(menu), QStringList(u"大连的"_s));
        clickOn(menu, u"大连的"_s);
    });
    steps.inDialog("frm_Filter", [](QDialog &dialog) {
        EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").text(), u"大连"_s);
        press(dialog, "cmd_Filter");
    });
    openFilter(steps);
    EXPECT_EQ(messages.texts().size(), 1);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
}

TEST_P(NamedFilters, AreRenamedByTheMouseAndDeletedByTheKeyboard)
{
    ASSERT_TRUE(load());
    saveFilter(u"大连的"_s);
    Steps steps;
    steps.openMenu();
    steps.inMenu("mnuSaved", [](QMenu &menu) { clickOn(menu, part<QMenu>(menu, "mnuRename").menuAction()); });
    steps.inMenu("mnuRename", [](QMenu &menu) { clickOn(menu, u"大连的"_s); });
    steps.typeName(u"海边"_s);
    steps.openMenu();
    messages.answerNext(QMessageBox::Yes); // delete it
    steps.inMenu("mnuSaved", [](QMenu &menu) {
        EXPECT_EQ(names(menu), QStringList(u"海边"_s));
        const QKeySequence key = QKeySequence::mnemonic(part<QMenu>(menu, "mnuDelete").menuAction()->text());
        QTest::keyClick(&menu, key[0].key());
    });
    steps.inMenu("mnuDelete", [](QMenu &menu) {
        if (!menu.activeAction())
            QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    steps.openMenu();
    steps.inMenu("mnuSaved", [](QMenu &menu) {
        EXPECT_FALSE(part<QMenu>(menu, "mnuRename").menuAction()->isEnabled()) << "there is none left";
        EXPECT_FALSE(part<QMenu>(menu, "mnuDelete").menuAction()->isEnabled());
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    steps.inDialog("frm_Filter", [](QDialog &dialog) { press(dialog, "cmd_Cancel"); });
    openFilter(steps);
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_EQ(messages.texts().front(),
              GetParam() ? u"Delete the filter \"海边\"?"_s : u"确实要删除筛选“海边”吗？"_s);
    EXPECT_FALSE(grid.SaveFilters().contains(u"海边"_s));
}

TEST_P(NamedFilters, ARecentOneIsRecalledFromItsMenu)
{
    ASSERT_TRUE(load());
    saveFilter(u"大连的"_s);
    table->setCurrentIndex(table->model()->index(0, 0));
    Steps steps;
    steps.openMenu();
    steps.inMenu("mnuSaved", [](QMenu &menu) { clickOn(menu, part<QMenu>(menu, "mnuRecent").menuAction()); });
    steps.inMenu("mnuRecent", [](QMenu &menu) { clickOn(menu, menu.actions().value(0)); });
    steps.inDialog("frm_Filter", [](QDialog &dialog) {
        EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").text(), u"大连"_s);
        press(dialog, "cmd_Filter");
    });
    openFilter(steps);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
}

TEST_P(NamedFilters, HaveTheConditionsThatWereKept)
{
    ASSERT_TRUE(load());
    {
        WindowAnswers words({[](QDialog &dialog) { find(dialog, u"茶"_s, {}); }});
        click(u"QuickFilter"_s);
    }
    ASSERT_EQ(rows(), 6);
    Steps saving;
    saving.openMenu();
    saving.inMenu("mnuSaved", [](QMenu &menu) { clickOn(menu, menu.findChild<QAction *>(u"actSave"_s)); });
    saving.typeName(u"各种茶"_s);
    saving.inDialog("frm_Filter", [](QDialog &dialog) { press(dialog, "cmd_Filter"); });
    openFilter(saving);
    EXPECT_EQ(rows(), 6);
    click(u"ToOrigin"_s);
    table->setCurrentIndex(table->model()->index(4, 3));
    Steps recalling;
    recalling.openMenu();
    recalling.inMenu("mnuSaved", [](QMenu &menu) { clickOn(menu, u"各种茶"_s); });
    recalling.inDialog("frm_Filter", [](QDialog &dialog) {
        EXPECT_TRUE(part<QAbstractButton>(dialog, "chkKept1").isChecked());
        EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").text(), QString()) << "the current cell gives way";
        press(dialog, "cmd_Filter");
    });
    openFilter(recalling);
    EXPECT_EQ(rows(), 6);
}
