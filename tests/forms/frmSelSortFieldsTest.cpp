#include "forms/frmSelSortFields.h"

#include "forms/widgets/SortList.h"
#include "support/Dialogs.h"

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

#include <memory>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Qt passes a drop on only after a drag of its own, which there is none of without a window system.
struct ReachableDrop : SortList
{
    using SortList::dropEvent;
};

struct SortFields : testing::Test
{
    void fill(const QStringList &all, const QStringList &sort = {})
    {
        dialog.SetTitle(u"订单"_s);
        EXPECT_TRUE(dialog.AppendListFields(&all));
        EXPECT_TRUE(dialog.AppendListSortFields(&sort));
        EXPECT_TRUE(dialog.AppendSortOrder());
        present(dialog);
    }
    SortList &list() const { return part<SortList>(dialog, "lvSortFields"); }
    QComboBox &combo(const char *name) const { return part<QComboBox>(dialog, name); }
    bool isEnabled(const char *name) const { return part(dialog, name).isEnabled(); }
    // One "field order" text for each row.
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < list().topLevelItemCount(); ++row)
            rows.append(list().topLevelItem(row)->text(0) + u' ' + list().topLevelItem(row)->text(1));
        return rows;
    }
    QPoint middleOf(int row) const { return list().visualItemRect(list().topLevelItem(row)).center(); }
    void select(int row) { QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, middleOf(row)); }
    // Ends a drag of the selected row at a place in the list.
    void drop(QPoint place) const
    {
        const std::unique_ptr<QMimeData> dragged(
            list().model()->mimeData(list().selectionModel()->selectedIndexes()));
        QDropEvent event(place, list().model()->supportedDragActions(), dragged.get(), Qt::LeftButton, {});
        (list().*&ReachableDrop::dropEvent)(&event);
        EXPECT_TRUE(event.isAccepted());
    }
    QString accepted()
    {
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
        return dialog.strRetFields();
    }

    frmSelSortFields dialog;
};

} // namespace

TEST_F(SortFields, ShowsTheFirstFieldAndAscendingToBeginWith)
{
    fill({u"NAME"_s, u"AGE"_s});
    EXPECT_EQ(combo("cmbFields").currentText(), u"NAME"_s);
    EXPECT_EQ(combo("cmbOrder").currentText(), u"升序"_s);
    EXPECT_EQ(combo("cmbOrder").itemText(1), u"降序"_s);
    EXPECT_EQ(part<QLineEdit>(dialog, "txtTableName").text(), u"订单"_s);
}

TEST_F(SortFields, SaysHowToBeginAndThenHowToGoOn)
{
    fill({u"NAME"_s, u"AGE"_s});
    const auto &hint = part<QLabel>(dialog, "lblHint");
    const QString begin = hint.text();
    EXPECT_TRUE(begin.contains(u"添加"_s)) << "the button to press";
    press(dialog, "cmdAddField");
    EXPECT_TRUE(hint.text().contains(u"拖动"_s));
    press(dialog, "cmdDeleteField");
    EXPECT_EQ(hint.text(), begin);
}

TEST_F(SortFields, MissingAndEmptyListsChangeNothing)
{
    fill({u"NAME"_s}, {u"AGE"_s});
    const QStringList empty;
    EXPECT_FALSE(dialog.AppendListFields(nullptr));
    EXPECT_FALSE(dialog.AppendListFields(&empty));
    EXPECT_FALSE(dialog.AppendListSortFields(nullptr));
    EXPECT_EQ(combo("cmbFields").count(), 1);
    EXPECT_EQ(rows(), QStringList{u"AGE 升序"_s});
}

TEST_F(SortFields, AnEmptyTermListEmptiesTheSort)
{
    fill({u"NAME"_s}, {u"AGE"_s});
    fill({u"NAME"_s});
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(SortFields, TermsAreDescendingInAnyLetterCaseAndKeepTheFieldAsTyped)
{
    fill({u"NAME"_s}, {u"name desc"_s, u"Age DESC nulls last"_s, u"City"_s, u"下单日期 Desc"_s});
    EXPECT_EQ(rows(), (QStringList{u"name 降序"_s, u"Age 降序"_s, u"City 升序"_s, u"下单日期 降序"_s}));
}

TEST_F(SortFields, OnlyDescendingTermsGetAKeyword)
{
    fill({u"NAME"_s}, {u"NAME DESC"_s, u"AGE"_s});
    EXPECT_EQ(accepted(), u"NAME DESC,AGE"_s);
}

TEST_F(SortFields, AnEmptySortIsAnAnswerToo)
{
    fill({u"NAME"_s});
    EXPECT_EQ(accepted(), QString());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(SortFields, AddsTheChosenFieldWithTheChosenOrder)
{
    fill({u"NAME"_s, u"AGE"_s});
    combo("cmbFields").setFocus();
    key(dialog, Qt::Key_Down);
    combo("cmbOrder").setFocus();
    key(dialog, Qt::Key_Down);
    press(dialog, "cmdAddField");
    EXPECT_EQ(rows(), QStringList{u"AGE 降序"_s});
    EXPECT_TRUE(list().topLevelItem(0)->isSelected());
    EXPECT_EQ(accepted(), u"AGE DESC"_s);
}

TEST_F(SortFields, TypingTheBeginningOfANameFindsItAmongFiveHundred)
{
    QStringList all;
    for (int i = 1; i <= 499; ++i)
        all.append(u"字段%1"_s.arg(i));
    fill(all + QStringList{u"订单金额"_s});
    compose(combo("cmbFields"), u"订单"_s);
    EXPECT_EQ(combo("cmbFields").currentText(), u"订单金额"_s);
    press(dialog, "cmdAddField");
    compose(combo("cmbFields"), u"没有"_s); // stays where nothing is found
    EXPECT_EQ(accepted(), u"订单金额"_s);
    EXPECT_EQ(combo("cmbFields").currentText(), u"订单金额"_s);
}

TEST_F(SortFields, AFieldThatIsInTheSortAlreadyIsNotAddedAgain)
{
    fill({u"NAME"_s, u"AGE"_s}, {u"NAME"_s});
    combo("cmbOrder").setCurrentIndex(1);
    EXPECT_FALSE(isEnabled("cmdAddField"));
    EXPECT_EQ(part(dialog, "cmdAddField").toolTip(), u"该字段已在排序列表中"_s);
    press(dialog, "cmdAddField");
    EXPECT_EQ(rows(), QStringList{u"NAME 升序"_s});
    combo("cmbFields").setCurrentIndex(1);
    EXPECT_TRUE(isEnabled("cmdAddField"));
}

TEST_F(SortFields, AFieldWithoutAnOrderIsNotAddedAndTheReasonIsShown)
{
    EXPECT_TRUE(dialog.AppendListFields(
        {OfferedField{u"ID"_s, u"ID"_s},
         OfferedField{.name = u"文档"_s, .written = u"doc"_s, .whyNotSorted = u"它没有顺序"_s}}));
    EXPECT_TRUE(dialog.AppendSortOrder());
    present(dialog);
    const QString hint = part<QLabel>(dialog, "lblHint").text();
    EXPECT_TRUE(isEnabled("cmdAddField"));
    combo("cmbFields").setCurrentIndex(1);
    EXPECT_FALSE(isEnabled("cmdAddField"));
    EXPECT_EQ(part(dialog, "cmdAddField").toolTip(), u"它没有顺序"_s);
    EXPECT_EQ(part<QLabel>(dialog, "lblHint").text(), u"它没有顺序"_s);
    combo("cmbFields").setCurrentIndex(0);
    EXPECT_TRUE(isEnabled("cmdAddField"));
    EXPECT_EQ(part<QLabel>(dialog, "lblHint").text(), hint);
}

TEST_F(SortFields, DeletesTheSelectedRowOnly)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s, u"C"_s});
    EXPECT_FALSE(isEnabled("cmdDeleteField"));
    press(dialog, "cmdDeleteField");
    EXPECT_EQ(rows().size(), 3);
    select(1);
    press(dialog, "cmdDeleteField");
    EXPECT_EQ(rows(), (QStringList{u"A 升序"_s, u"C 升序"_s}));
    EXPECT_FALSE(isEnabled("cmdAddField")); // A is still there
}

TEST_F(SortFields, ADeletedFieldCanBeAddedAgain)
{
    fill({u"A"_s}, {u"A"_s});
    select(0);
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_TRUE(rows().isEmpty());
    press(dialog, "cmdAddField");
    EXPECT_EQ(rows(), QStringList{u"A 升序"_s});
}

TEST_F(SortFields, MovesTheSelectedRowWithItsOrderAndKeepsItSelected)
{
    fill({u"A"_s}, {u"A"_s, u"B DESC"_s, u"C"_s});
    select(1);
    press(dialog, "cmdUpField");
    EXPECT_EQ(rows(), (QStringList{u"B 降序"_s, u"A 升序"_s, u"C 升序"_s}));
    EXPECT_TRUE(list().topLevelItem(0)->isSelected());
    EXPECT_FALSE(isEnabled("cmdUpField"));
    press(dialog, "cmdUpField"); // nothing above
    press(dialog, "cmdDownField");
    press(dialog, "cmdDownField");
    EXPECT_EQ(rows(), (QStringList{u"A 升序"_s, u"C 升序"_s, u"B 降序"_s}));
    EXPECT_FALSE(isEnabled("cmdDownField"));
    EXPECT_TRUE(isEnabled("cmdUpField"));
}

TEST_F(SortFields, ASingleRowCanNotMove)
{
    fill({u"A"_s}, {u"A"_s});
    select(0);
    EXPECT_FALSE(isEnabled("cmdUpField"));
    EXPECT_FALSE(isEnabled("cmdDownField"));
}

TEST_F(SortFields, ADoubleClickOrTheSpaceBarFlipsTheOrder)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s});
    select(1);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(rows(), (QStringList{u"A 升序"_s, u"B 降序"_s}));
    select(1);
    QTest::keyClick(&list(), Qt::Key_Space);
    QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rows(), (QStringList{u"B 升序"_s, u"A 升序"_s}));
}

TEST_F(SortFields, ADraggedRowStaysSelectedWhereItIsDropped)
{
    fill({u"A"_s}, {u"甲"_s, u"乙 DESC"_s, u"丙"_s, u"丁"_s});
    const int half = list().visualItemRect(list().topLevelItem(0)).height() / 2;
    select(1);
    drop(middleOf(3) + QPoint(0, half - 1));
    EXPECT_EQ(rows(), (QStringList{u"甲 升序"_s, u"丙 升序"_s, u"丁 升序"_s, u"乙 降序"_s}));
    EXPECT_EQ(list().currentIndex().row(), 3);
    EXPECT_TRUE(list().topLevelItem(3)->isSelected());
    EXPECT_FALSE(isEnabled("cmdDownField"));
    EXPECT_TRUE(isEnabled("cmdUpField"));

    drop(middleOf(0) - QPoint(0, half - 1));
    EXPECT_EQ(rows().constFirst(), u"乙 降序"_s);
    EXPECT_FALSE(isEnabled("cmdUpField"));
    drop(middleOf(1) + QPoint(0, half - 1)); // down by one
    EXPECT_EQ(rows(), (QStringList{u"甲 升序"_s, u"乙 降序"_s, u"丙 升序"_s, u"丁 升序"_s}));
    drop(QPoint(20, list().viewport()->height() - 2)); // below all rows
    EXPECT_EQ(rows().constLast(), u"乙 降序"_s);
    EXPECT_EQ(accepted(), u"甲,丙,丁,乙 DESC"_s);
}

TEST_F(SortFields, ARowDroppedOnItselfStays)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s});
    select(0);
    drop(middleOf(0) + QPoint(0, 2));
    drop(middleOf(0) - QPoint(0, 2));
    EXPECT_EQ(rows(), (QStringList{u"A 升序"_s, u"B 升序"_s}));
    EXPECT_TRUE(list().topLevelItem(0)->isSelected());
}

TEST_F(SortFields, ADragThatIsNotDroppedChangesNothing)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s});
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, middleOf(0));
    QTest::mouseMove(list().viewport(), middleOf(0) + QPoint(0, QApplication::startDragDistance() + 1));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(rows(), (QStringList{u"A 升序"_s, u"B 升序"_s}));
    EXPECT_TRUE(list().topLevelItem(0)->isSelected());
}

TEST_F(SortFields, ADragIsAMoveInsideTheListAndBetweenRowsOnly)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s});
    EXPECT_EQ(list().dragDropMode(), QAbstractItemView::InternalMove);
    EXPECT_TRUE(list().topLevelItem(0)->flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_FALSE(list().topLevelItem(0)->flags().testFlag(Qt::ItemIsDropEnabled));
    select(0);
    drop(middleOf(1) + QPoint(0, 3));
    EXPECT_EQ(rows(), (QStringList{u"B 升序"_s, u"A 升序"_s}));
}

TEST_F(SortFields, CancelAndEscLeaveNoResult)
{
    fill({u"A"_s}, {u"A"_s});
    press(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    present(dialog);
    key(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.strRetFields().isEmpty());
}

TEST_F(SortFields, ClosingTheWindowIsRefused)
{
    fill({u"A"_s}, {u"A"_s});
    QSignalSpy finished(&dialog, &QDialog::finished);
    EXPECT_FALSE(dialog.close());
    closeFromTheFrame(dialog);
    key(dialog, Qt::Key_F4, Qt::AltModifier);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(accepted(), u"A"_s); // it still works
}

TEST_F(SortFields, MnemonicsReachEveryButton)
{
    fill({u"A"_s, u"B"_s}, {u"B"_s});
    // A mnemonic shows the button pressed for a moment before it acts.
    const auto press = [this](Qt::Key letter, const QStringList &expected) {
        key(dialog, letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return rows() == expected; })) << static_cast<char>(letter);
    };
    press(Qt::Key_A, {u"B 升序"_s, u"A 升序"_s});
    press(Qt::Key_U, {u"A 升序"_s, u"B 升序"_s});
    press(Qt::Key_W, {u"B 升序"_s, u"A 升序"_s});
    press(Qt::Key_D, {u"B 升序"_s});
    key(dialog, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbOrder"));
    key(dialog, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbFields"));
}

TEST_F(SortFields, EnterOnAButtonPressesThatButton)
{
    fill({u"A"_s});
    part(dialog, "cmdAddField").setFocus();
    key(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(rows(), QStringList{u"A 升序"_s});
}

TEST_F(SortFields, ItsPartsHaveNames)
{
    fill({u"A"_s});
    EXPECT_FALSE(list().accessibleName().isEmpty());
    EXPECT_FALSE(part<QLineEdit>(dialog, "txtTableName").accessibleName().isEmpty());
    for (const char *name : {"picBack", "Picture1"})
        EXPECT_TRUE(part(dialog, name).isVisible()) << name;
}

TEST_F(SortFields, TheKeyboardWalksThroughItFromTopToBottom)
{
    fill({u"A"_s, u"B"_s}, {u"B"_s, u"C"_s});
    select(0);
    combo("cmbFields").setFocus();
    EXPECT_EQ(walkedByTab(dialog, 8),
              "cmbFields cmbOrder cmdAddField lvSortFields cmdDownField cmdDeleteField cmdOK "
              "cmdCancel");
}
