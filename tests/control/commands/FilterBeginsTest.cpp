// The initial contents of the filter dialog, and the conditions that compare records with each other.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtGui/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FilterBegins : Shop
{
    static QString field(QDialog &dialog) { return part<QComboBox>(dialog, "cmbField1").currentText(); }
    static QString value(QDialog &dialog) { return part<QLineEdit>(dialog, "txtValue1").text(); }
    static void choose(QDialog &dialog, const QString &field, const QString &op)
    {
        part<QComboBox>(dialog, "cmbField1").setCurrentText(field);
        part<QComboBox>(dialog, "cmbOperator1").setCurrentText(op);
    }
    // Types in place of what is selected.
    static void type(QDialog &dialog, const QString &value)
    {
        compose(part<QLineEdit>(dialog, "txtValue1"), value);
    }
    static void filterRows(QDialog &dialog) { KovaTest::press(dialog, "cmd_Filter"); }
};

} // namespace

TEST_F(FilterBegins, WithTheCurrentCellWhichTypingReplaces)
{
    ASSERT_TRUE(load());
    table->setCurrentIndex(table->model()->index(4, 3));
    WindowAnswers dialogs({[](QDialog &dialog) {
                               EXPECT_EQ(field(dialog), u"城市"_s);
                               EXPECT_EQ(value(dialog), u"大连"_s);
                               filterRows(dialog);
                           },
                           [](QDialog &dialog) {
                               type(dialog, u"杭州"_s);
                               filterRows(dialog);
                           }});
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    click(u"ToOrigin"_s);
    table->setCurrentIndex(table->model()->index(4, 3));
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"11"_s}));
}

TEST_F(FilterBegins, AnOpenDialogKeepsItsLanguage)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[this](QDialog &dialog) {
        const auto texts = [&] {
            return part<QPushButton>(dialog, "cmd_Filter").text() + part<QCheckBox>(dialog, "chkSql").text() +
                   part<QLineEdit>(dialog, "txtValue1").findChild<QAction *>(u"actOffer"_s)->text();
        };
        const QString before = texts();
        grid.PutLanguage(u"en"_s);
        QCoreApplication::processEvents(); // in which widgets would be told
        EXPECT_EQ(texts(), before);
        EXPECT_EQ(grid.Language(), u"en"_s);
        // What is written from now on too.
        choose(dialog, u"ID"_s, u"大于"_s);
        type(dialog, u"3"_s);
        EXPECT_EQ(part<QLabel>(dialog, "lblSentence").text(), u"【ID】大于 3。"_s);
        KovaTest::press(dialog, "cmdAddRow");
        EXPECT_EQ(part<QComboBox>(dialog, "cmbOperator2").currentText(), u"等于"_s);
        EXPECT_EQ(part<QCheckBox>(dialog, "chkNot2").text(), u"非"_s);
        EXPECT_EQ(part<QLineEdit>(dialog, "txtValue2").placeholderText(), u"数字"_s);
        cancel(dialog);
    }});
    click(u"Filter"_s);
    QCoreApplication::processEvents(); // the widgets are told
    EXPECT_TRUE(grid.findChild<QLineEdit *>(u"txtEdit"_s)
                    ->findChild<QAction *>(u"actOffer"_s)
                    ->text()
                    .contains(u"list"_s));
    grid.PutLanguage({});
}

TEST_F(FilterBegins, WithoutTheCellsValueInAnotherField)
{
    ASSERT_TRUE(load());
    table->setCurrentIndex(table->model()->index(4, 3));
    WindowAnswers dialogs({[](QDialog &dialog) {
        choose(dialog, u"ID"_s, u"小于"_s);
        EXPECT_EQ(value(dialog), QString());
        type(dialog, u"3"_s);
        filterRows(dialog);
    }});
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s}));
}

TEST_F(FilterBegins, WithTheConditionInForceWhereItIsReplaced)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               choose(dialog, u"城市"_s, u"不等于"_s);
                               type(dialog, u"大连"_s);
                               filterRows(dialog);
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(field(dialog), u"城市"_s);
                               EXPECT_EQ(value(dialog), u"大连"_s);
                               choose(dialog, u"城市"_s, u"等于"_s);
                               filterRows(dialog);
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), u"城市 = '大连'"_s);
                               filter(dialog, u"ID > 10"_s);
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), u"ID > 10"_s);
                               cancel(dialog);
                           }});
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 10) << "the record without a city is another city's";
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 2);
    click(u"Filter"_s);
}

TEST_F(FilterBegins, WithTheCellAgainWhereTheConditionIsNotReplaced)
{
    ASSERT_TRUE(load());
    table->setCurrentIndex(table->model()->index(0, 0));
    const auto beginsWithCell = [](QDialog &dialog) {
        EXPECT_EQ(field(dialog), u"ID"_s);
        cancel(dialog);
    };
    WindowAnswers dialogs({[](QDialog &dialog) {
                               choose(dialog, u"城市"_s, u"包含"_s);
                               type(dialog, u"州"_s);
                               filterRows(dialog);
                           },
                           beginsWithCell, beginsWithCell});
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 2);
    table->setCurrentIndex(table->model()->index(0, 0));
    click(u"FromResult"_s);
    click(u"Filter"_s);
    click(u"FromResult"_s);
    click(u"ToOrigin"_s);
    table->setCurrentIndex(table->model()->index(0, 0));
    click(u"Filter"_s); // the condition holds no more
}

TEST_F(FilterBegins, RecordsAreComparedWithThoseThatAreFilteredAndTheResultGoesOn)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID < 12"_s));
    WindowAnswers dialogs({[](QDialog &dialog) {
                               choose(dialog, u"城市"_s, u"重复的值"_s);
                               filterRows(dialog);
                           },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) {
                               choose(dialog, u"Unit Price"_s, u"前 N 个"_s);
                               type(dialog, u"2"_s);
                               filterRows(dialog);
                           },
                           [](QDialog &dialog) { filter(dialog, u"ID > 1"_s); }});
    click(u"Filter"_s);
    // 厦门 is twice in the table, but not among the records that the host shows.
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"5"_s, u"8"_s, u"11"_s}));
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"11"_s, u"8"_s, u"5"_s, u"1"_s}));
    click(u"FromResult"_s);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"1"_s}));
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"5"_s));
    const auto *condition = grid.findChild<QToolButton *>(u"Condition2"_s);
    ASSERT_NE(condition, nullptr);
    EXPECT_TRUE(condition->text().startsWith(u"Unit Price 是最大的 2 个之一"_s))
        << qUtf8Printable(condition->text());
    click(u"ToPreview"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"1"_s}));
}
