// What a value is called: yes and no in one wording, and Null apart from the empty text, seen and heard.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordWords : public Shop, public testing::WithParamInterface<bool>
{
protected:
    RecordWords()
    {
        grid.PutLanguage(isEnglish ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents();
    }
    ~RecordWords() override { grid.PutLanguage({}); }

    void showRecord(int row)
    {
        if (isSingleRecordShown())
            click(u"AllRecord"_s);
        clickCell(row, 1);
        click(u"SingleRecord"_s);
    }
    static QString spoken(QTableView &view, int row, int col)
    {
        // Without a screen reader, Qt doesn't tell a view's accessible object that the cells have changed.
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&view)));
        QAccessibleInterface *const whole = QAccessible::queryAccessibleInterface(&view);
        QAccessibleTableInterface *const rows = whole ? whole->tableInterface() : nullptr;
        QAccessibleInterface *const cell = rows ? rows->cellAt(row, col) : nullptr;
        return cell ? cell->text(QAccessible::Name) : u"(not found)"_s;
    }
    QString spokenValue(const QString &field) { return spoken(*list, listedRow(field), 1); }
    // How wide the drawn text of a field's value is.
    int drawnWidth(const QString &field) const
    {
        list->clearSelection();
        const QRect cell = list->visualRect(list->model()->index(listedRow(field), 1)).adjusted(2, 2, -2, -2);
        const QImage shown = list->viewport()->grab(cell).toImage();
        const QRgb paper = shown.pixel(shown.width() - 1, shown.height() / 2);
        int first = shown.width();
        int last = -1;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixel(x, y) != paper) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        return last - first + 1;
    }

    const bool isEnglish = GetParam();
    const QString yes = isEnglish ? u"Yes"_s : u"是"_s;
    const QString no = isEnglish ? u"No"_s : u"否"_s;
    const QString noValue = isEnglish ? u"no value"_s : u"空值"_s;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, RecordWords, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(RecordWords, ABooleanIsYesOrNoForTheUserAndTrueOrFalseForTheHost)
{
    ASSERT_TRUE(load());
    showRecord(3);
    EXPECT_EQ(listed(u"停用"_s), u"True"_s) << "the text of the value";
    EXPECT_EQ(spokenValue(u"停用"_s), yes);
    const QFontMetrics metrics = list->fontMetrics();
    const int slack = 3;
    EXPECT_LE(drawnWidth(u"停用"_s), metrics.horizontalAdvance(yes) + slack);
    EXPECT_GT(drawnWidth(u"停用"_s), 0);
    EXPECT_LT(metrics.horizontalAdvance(yes) + slack, metrics.horizontalAdvance(u"True"_s))
        << "or the comparison above says nothing";
    makeCurrent(u"停用"_s);
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"True"_s));
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_EQ(edit->text(), yes);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_FALSE(grid.findChild<QPushButton *>(u"cmdSaveRecord"_s)->isVisible()) << "nothing was changed";
    QTest::keyClick(list, Qt::Key_F2);
    edit->selectAll();
    compose(*edit, no);
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(stored(u"停用"_s, 3), u"0"_s);
    EXPECT_EQ(listed(u"停用"_s), u"False"_s);
    EXPECT_EQ(spokenValue(u"停用"_s), no);
    EXPECT_EQ(grid.CellTextL(3, 6), u"False"_s);
    showRecord(12);
    EXPECT_EQ(listed(u"停用"_s), QString());
    EXPECT_EQ(spokenValue(u"停用"_s), noValue);
}

TEST_P(RecordWords, TheFilterBeginsWithTheSameWords)
{
    ASSERT_TRUE(load());
    table->setCurrentIndex(table->model()->index(2, 5));
    const QString sentence = isEnglish ? u"[停用] equals Yes."_s : u"【停用】等于 是。"_s;
    WindowAnswers dialogs({[&](QDialog &dialog) {
        EXPECT_EQ(part<QComboBox>(dialog, "cmbField1").currentText(), u"停用"_s);
        EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").text(), yes);
        EXPECT_EQ(part<QLabel>(dialog, "lblSentence").text(), sentence);
        compose(part<QLineEdit>(dialog, "txtValue1"), u"True"_s); // as the grid has it
        EXPECT_EQ(part<QLabel>(dialog, "lblSentence").text(), sentence);
        press(dialog, "cmd_Filter");
    }});
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"3"_s, u"7"_s}));
    EXPECT_EQ(texts(u"停用"_s), QStringList({u"True"_s, u"True"_s}));
}

TEST_P(RecordWords, NullIsReadAloudDifferentlyFromAnEmptyText)
{
    database.run(u"UPDATE 商品 SET 城市 = '' WHERE ID = 8"_s);
    ASSERT_TRUE(load());
    EXPECT_EQ(spoken(*table, 8, 3), noValue) << "the ninth record";
    EXPECT_EQ(spoken(*table, 7, 3), QString());
    EXPECT_EQ(spoken(*table, 0, 3), u"杭州"_s);
    EXPECT_EQ(table->model()->index(8, 3).data().toString(), QString()) << "its text stays empty";
    showRecord(9);
    EXPECT_EQ(spokenValue(u"城市"_s), noValue);
    EXPECT_EQ(spokenValue(u"名称"_s), u"香菇"_s);
    showRecord(8);
    EXPECT_EQ(spokenValue(u"城市"_s), QString());
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(spokenValue(u"城市"_s), noValue);
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_EQ(spokenValue(u"城市"_s), QString());
}
