// Every part that a person can reach has a name for assistive tools.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <memory>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

bool isQtsOwn(const QObject &part)
{
    return part.objectName().startsWith(u"qt_"_s) || qobject_cast<const QHeaderView *>(&part);
}

bool hasChinese(const QString &text)
{
    return std::ranges::any_of(text, [](QChar c) { return c.script() == QChar::Script_Han; });
}

// On Unix, Qt says what a combo box holds in place of its name, which readers find by other ways.
QString spokenName(const QWidget &widget)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        for (const QLabel *label : combo->window()->findChildren<QLabel *>()) {
            if (label->buddy() == combo)
                return label->text();
        }
        return combo->accessibleName();
    }
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&widget));
    return interface ? interface->text(QAccessible::Name) : QString();
}

QString spokenName(const QDialog &dialog, const char *name)
{
    return spokenName(part<QWidget>(dialog, name));
}

// The number of parts of the window that can be pressed or focused, or are bars or menus. Checks that each
// has a name (in English without Chinese characters), and that those that can be focused have a role.
int expectNames(const QWidget &window, bool isEnglish = false)
{
    int reached = 0;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isMenu = qobject_cast<QMenu *>(widget) != nullptr;
        const bool isFocusable = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
        const bool isSeen = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QToolBar *>(widget);
        if (isQtsOwn(*widget) || isQtsOwn(*widget->parent()) ||
            (!isMenu && !((isSeen || isFocusable) && widget->isVisible() && widget->isEnabled())))
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        const QString name = spokenName(*widget);
        const std::string which = (QLatin1StringView(widget->metaObject()->className()) + u' ' +
                                   widget->objectName() + u" in "_s + window.objectName())
                                      .toStdString();
        EXPECT_FALSE(name.isEmpty()) << which;
        EXPECT_FALSE(isEnglish && hasChinese(name)) << which << ": " << qUtf8Printable(name);
        const auto role = interface ? interface->role() : QAccessible::NoRole;
        // Qt has no role for views of graphics.
        const bool hasRole = isFocusable && !qobject_cast<QAbstractScrollArea *>(widget);
        EXPECT_FALSE(hasRole && (role == QAccessible::Client || role == QAccessible::NoRole)) << which;
        ++reached;
    }
    return reached;
}

struct Accessible : Shop
{
};

// A table without a Chinese letter, so that any that is spoken is the control's.
class Spoken : public testing::TestWithParam<bool>, protected Hands
{
protected:
    Spoken()
        : Spoken(std::make_unique<TestDatabase>(
              u"CREATE TABLE goods (ID INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL,"
              " price NUMERIC(8,2), day DATE, stopped BOOLEAN, memo TEXT, picture BLOB);"
              "INSERT INTO goods VALUES (1,'tea',128,'2024-01-05',0,'a' || char(10) || 'b',"
              "x'424D'), (2,'rice',NULL,'2024-02-29',1,NULL,NULL)"_s))
    {
        grid.setProperty("Language", isEnglish ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents(); // each widget is notified
    }
    ~Spoken() override { grid.setProperty("Language", QString()); }

    int expectNames(const QWidget &window) const { return ::expectNames(window, isEnglish); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        grid.activateWindow(); // which a dialog was before
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, key, modifiers);
    }
    void openColumnMenu(const QString &field, const QString &action)
    {
        table->setCurrentIndex(table->model()->index(0, grid.GetBindFieldIndex(field) - 1));
        press(Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        auto *menu = grid.findChild<QMenu *>(u"ColumnMenu"_s);
        ASSERT_TRUE(menu->isVisible());
        expectNames(*menu);
        QAction *entry = menu->findChild<QAction *>(action);
        ASSERT_TRUE(entry) << qUtf8Printable(action);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }
    // The parts of the window, which is then closed.
    WindowAnswers::Answer expectNamesAndClose(int atLeast)
    {
        return [this, atLeast](QDialog &dialog) {
            EXPECT_GE(expectNames(dialog), atLeast) << qUtf8Printable(dialog.objectName());
            EXPECT_FALSE(dialog.windowTitle().isEmpty());
            dialog.reject();
        };
    }

    const bool isEnglish = GetParam();

private:
    explicit Spoken(std::unique_ptr<TestDatabase> database)
        : Hands(database->connectionString(), KOVAVSFDataGrid::dbAccess), m_database(std::move(database))
    {
    }
    std::unique_ptr<TestDatabase> m_database;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, Spoken, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(Spoken, EveryWindowHasANameForEachOfItsParts)
{
    ASSERT_TRUE(load(u"SELECT * FROM goods"_s, u"SELECT ID,name FROM goods"_s));
    press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_GT(expectNames(grid), 25) << "with the find bar";
    WindowAnswers dialogs({expectNamesAndClose(4), // sort
                           expectNamesAndClose(4), // fields
                           expectNamesAndClose(2), // quick filter
                           expectNamesAndClose(6), // export
                           expectNamesAndClose(8), // print
                           expectNamesAndClose(2), // value
                           expectNamesAndClose(5), // values of a column
                           expectNamesAndClose(5), // days of a column
                           expectNamesAndClose(3), // format
                           expectNamesAndClose(12)});
    press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_L, Qt::ControlModifier);
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_P, Qt::ControlModifier);
    press(Qt::Key_F3, {});
    openColumnMenu(u"name"_s, u"ColumnMenuFilterByColumn"_s);
    openColumnMenu(u"day"_s, u"ColumnMenuFilterByColumn"_s);
    openColumnMenu(u"price"_s, u"ColumnMenuFormatColumn"_s);
    press(Qt::Key_F11, {});
}

TEST_P(Spoken, TheFilterDialogSaysWhichConditionAPartBelongsTo)
{
    ASSERT_TRUE(load(u"SELECT * FROM goods"_s, {}));
    WindowAnswers dialogs(
        {[this](QDialog &dialog) {
             KovaTest::press(dialog, "cmdAddRow");
             KovaTest::press(dialog, "chkSql");
             EXPECT_GE(expectNames(dialog), 15);
             EXPECT_EQ(spokenName(dialog, "cmbField2"),
                       isEnglish ? u"Field (condition 2)"_s : u"字段（条件 2）"_s);
             EXPECT_EQ(spokenName(dialog, "chkNot1"), isEnglish ? u"Not (condition 1)"_s : u"非（条件 1）"_s);

             KovaTest::press(dialog, "chkGroups");
             KovaTest::press(dialog, "cmdEnclose2");
             EXPECT_GE(expectNames(dialog), 15);
             EXPECT_EQ(spokenName(dialog, "grpMoveRow2"),
                       isEnglish ? u"Move condition 2, on level 2"_s : u"移动条件 2，在第 2 级"_s);
             QTest::keyClick(&part<QWidget>(dialog, "grpMoveRow2"), Qt::Key_Down);
             EXPECT_EQ(spokenName(dialog, "grpMoveRow2"),
                       isEnglish ? u"Move condition 2, on level 1"_s : u"移动条件 2，在第 1 级"_s);
             auto &kind = part<QComboBox>(dialog, "cmbGroup1");
             QTest::keyClick(&kind, Qt::Key_Down);
             EXPECT_EQ(QAccessible::queryAccessibleInterface(&kind)->text(QAccessible::Value),
                       kind.currentText());

             auto &operators = part<QComboBox>(dialog, "cmbOperator1");
             operators.setCurrentIndex(operators.findText(isEnglish ? u"is in list"_s : u"在列表中"_s));
             QTest::keyClick(&part<QLineEdit>(dialog, "txtValue1"), Qt::Key_F4);
             operators.setCurrentIndex(0);
             QTest::keyClick(&part<QComboBox>(dialog, "cmbField1"), Qt::Key_Down);
             KovaTest::press(dialog, "cmd_Filter");
             const auto *value = QAccessible::queryAccessibleInterface(&part<QLineEdit>(dialog, "txtValue1"));
             EXPECT_FALSE(value->text(QAccessible::Description).isEmpty()) << "what is wrong with it";
             filter(dialog, u"ID > 1"_s);
         },
         expectNamesAndClose(4)});
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(grid.findChild<QWidget *>(u"FilterBar"_s)->isVisible());
    EXPECT_GT(expectNames(grid), 20) << "with the filter bar";
}

TEST_P(Spoken, TheSingleRecordHasNamesForItsEditors)
{
    ASSERT_TRUE(load(u"SELECT * FROM goods"_s, {}));
    click(u"SingleRecord"_s);
    for (const QString &field : {u"ID"_s, u"name"_s, u"price"_s, u"day"_s, u"stopped"_s, u"memo"_s}) {
        list->setFocus();
        list->setCurrentIndex(list->model()->index(listedRow(field), 1));
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_NE(QApplication::focusWidget(), list);
        EXPECT_EQ(QApplication::focusWidget()->accessibleName(), field);
        EXPECT_GT(expectNames(grid), 15);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }
}

TEST_F(Accessible, EveryPartOfTheControlHasAName)
{
    ASSERT_TRUE(load());
    EXPECT_GT(expectNames(grid), 20);
    click(u"SingleRecord"_s);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(listedRow(u"名称"_s), 1));
    QTest::keyClick(list, Qt::Key_F2);
    ASSERT_TRUE(edit->isVisible());
    expectNames(grid);
    EXPECT_EQ(edit->accessibleName(), u"名称"_s) << "the field that is edited";
}

TEST_F(Accessible, EveryPartOfTheViewerHasAName)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &viewer) {
        EXPECT_GT(expectNames(viewer), 12);
        EXPECT_FALSE(viewer.windowTitle().isEmpty());
        viewer.reject();
    }});
    click(u"FullScreen"_s);
}

TEST_F(Accessible, TheMenuItemsHaveCaptionsOfTheirOwn)
{
    QStringList captions;
    for (const QAction *action : grid.findChild<QMenu *>(u"PopMnuData"_s)->actions()) {
        if (action->isSeparator())
            continue;
        EXPECT_FALSE(captions.contains(action->text())) << qUtf8Printable(action->text());
        captions.append(action->text());
    }
    EXPECT_GE(captions.size(), 11);
}
