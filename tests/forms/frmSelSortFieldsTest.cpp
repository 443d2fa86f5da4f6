#include "forms/frmSelSortFields.h"

#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

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
    QTreeWidget &list() const { return part<QTreeWidget>(dialog, "lvSortFields"); }
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

TEST_F(SortFields, RowsCanBeDroppedBetweenRowsOnly)
{
    fill({u"A"_s}, {u"A"_s, u"B"_s});
    EXPECT_EQ(list().dragDropMode(), QAbstractItemView::InternalMove);
    EXPECT_TRUE(list().topLevelItem(0)->flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_FALSE(list().topLevelItem(0)->flags().testFlag(Qt::ItemIsDropEnabled));
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
    fill({u"A"_s});
    EXPECT_FALSE(dialog.close());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(SortFields, TheKeyboardWalksThroughItFromTopToBottom)
{
    fill({u"A"_s, u"B"_s}, {u"B"_s, u"C"_s});
    select(0);
    combo("cmbFields").setFocus();
    QStringList order;
    for (int step = 0; step < 8; ++step) {
        order.append(dialog.focusWidget()->objectName());
        key(dialog, Qt::Key_Tab);
    }
    EXPECT_STREQ(qUtf8Printable(order.join(u' ')),
                 "cmbFields cmbOrder cmdAddField lvSortFields cmdDownField cmdDeleteField cmdOK "
                 "cmdCancel");
}
