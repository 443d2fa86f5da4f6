// The control without a mouse.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Keyboard : Shop
{
    qint64 record() const { return grid.RecordSet()->property("AbsolutePosition").toLongLong(); }
    QString described() const
    {
        return QAccessible::queryAccessibleInterface(table)->text(QAccessible::Description);
    }
    // As an input method for Chinese sends a word that is committed in parts.
    static void composeTwice(QWidget &editor, const QString &first, const QString &second)
    {
        compose(editor, first);
        compose(editor, second);
    }
};

} // namespace

TEST_F(Keyboard, AfterALoadTheGridHasTheKeyboard)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(grid.window()->focusWidget(), table);
    grid.findChild<QLineEdit *>(u"txtPage"_s)->setFocus();
    ASSERT_TRUE(load());
    EXPECT_EQ(grid.window()->focusWidget(), table);
}

TEST_F(Keyboard, OnOnePageTheEndKeysGoToTheFirstAndTheLastRecord)
{
    ASSERT_TRUE(load());
    QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(record(), records);
    EXPECT_EQ(grid.GetGridRowL(), records);
    QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(record(), 1);
    click(u"Last"_s);
    EXPECT_EQ(record(), 1) << "the button is about pages";
}

TEST_F(Keyboard, AHostCanKeepTheEndKeys)
{
    ASSERT_TRUE(load());
    int told = 0;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataKeyDown, &grid, [&](qint16 &code, qint16 &) {
        told += code == 35;
        code = 0;
    });
    QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(record(), 1);
    EXPECT_EQ(told, 1);
}

TEST_F(Keyboard, TabReachesEveryPartInTheOrderInWhichItIsSeen)
{
    ASSERT_TRUE(load());
    QStringList names;
    for (int steps = 0; steps < 5; ++steps) {
        names.append(grid.window()->focusWidget()->objectName());
        QTest::keyClick(grid.window()->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(u' ').toStdString(), "vsfgDataGrid txtPage cmdPgae lblStatement CheckSelAllRow");
}

TEST_F(Keyboard, TheQuickFilterLosesNothingOfAnInputMethod)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
        auto &box = part<QComboBox>(dialog, "InputCombo1");
        composeTwice(*box.lineEdit(), u"龙井"_s, u"茶"_s);
        EXPECT_EQ(box.currentText(), u"龙井茶"_s);
        key(dialog, Qt::Key_Return);
    }});
    QTest::keyClick(table, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(texts(u"名称"_s), QStringList{u"龙井茶"_s});
}

TEST_F(Keyboard, TypingIntoARecordLosesNothingOfAnInputMethod)
{
    ASSERT_TRUE(load());
    QTest::keyClick(table, Qt::Key_3, Qt::ControlModifier);
    ASSERT_TRUE(isSingleRecordShown());
    list->setCurrentIndex(list->model()->index(listedRow(u"名称"_s), 1));
    list->setFocus();
    // What opens the editor is the first event of a word that is still being composed.
    QInputMethodEvent composing(u"lu"_s, {});
    QCoreApplication::sendEvent(list, &composing);
    ASSERT_TRUE(edit->isVisible());
    QInputMethodEvent done;
    done.setCommitString(u"绿"_s);
    QCoreApplication::sendEvent(edit, &done);
    compose(*edit, u"茶"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(listed(u"名称"_s), u"绿茶"_s);
    QTest::keyClick(list, Qt::Key_Escape);
}

TEST_F(Keyboard, AssistiveToolsHearTheRowTheSelectionAndTheFilter)
{
    ASSERT_TRUE(load());
    EXPECT_TRUE(described().startsWith(u"第 1 条，共 12 条"_s)) << qPrintable(described());
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_TRUE(described().startsWith(u"第 2 条，共 12 条"_s)) << qPrintable(described());
    auto *interface = QAccessible::queryAccessibleInterface(table);
    ASSERT_NE(interface, nullptr);
    QAccessibleTableInterface *const rows = interface->tableInterface();
    ASSERT_NE(rows, nullptr);
    auto *cell = rows->cellAt(1, 1);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), u"普洱茶"_s);
    const QAccessibleTableCellInterface *const place = cell->tableCellInterface();
    ASSERT_NE(place, nullptr);
    QStringList headings;
    for (QAccessibleInterface *heading : place->columnHeaderCells()) {
        headings.append(heading->text(QAccessible::Name));
        // Qt makes it for the caller alone.
        QAccessible::deleteAccessibleInterface(QAccessible::registerAccessibleInterface(heading));
    }
    EXPECT_TRUE(headings.join(u' ').startsWith(u"名称"_s)) << qPrintable(headings.join(u' '));
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return described().contains(u"选定行数 2"_s); }))
        << qPrintable(described());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s, u"名称"_s); }});
    QTest::keyClick(table, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(described().contains(u"筛选条件：名称"_s)) << qPrintable(described());
}
