// From the grid to paper: the preview, and the host's PrintData. Pages are read back from PDF files by a
// program that shares nothing with what wrote them.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QProgressBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString Numbers = u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < %1) SELECT I, "
                        "'第' || I || '行' AS 名称, I * 1.5 AS 金额 FROM N"_s;

// Fonts use the same glyph for some characters and radicals, and PDF readers then return the radical.
QString withoutRadicals(QString text)
{
    for (QChar &c : text) {
        if (c >= QChar(0x2f00) && c <= QChar(0x2fd5))
            c = QString(c).normalized(QString::NormalizationForm_KC).front();
        else if (c == QChar(0x2eda))
            c = u'页';
    }
    return text;
}

struct PrintTest : Shop
{
    PrintTest() { grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false); }
    QString path(const QString &file) const { return folder.filePath(file); }
    bool printData(const QString &file, const QString &options = {})
    {
        bool isDone = false;
        EXPECT_TRUE(QMetaObject::invokeMethod(&grid, "PrintData", Q_RETURN_ARG(bool, isDone),
                                              Q_ARG(QString, path(file)), Q_ARG(QString, options)));
        return isDone;
    }
    static QString outputOf(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000)) << qPrintable(program);
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    // The texts of each page; empty if there is no reader.
    QStringList pagesOf(const QString &file) const
    {
        QStringList pages =
            withoutRadicals(outputOf(u"pdftotext"_s, {u"-layout"_s, path(file), u"-"_s})).split(u'\f');
        pages.removeLast();
        return pages;
    }
    static bool hasReader() { return !QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty(); }
    QStringList takeTexts()
    {
        const QStringList texts = messages.texts();
        messages.clear();
        return texts;
    }
    QTemporaryDir folder;
};

} // namespace

#define KOVA_NEEDS_READER                                                                                    \
    if (!hasReader())                                                                                        \
    GTEST_SKIP() << "pdftotext of poppler-utils is not installed"

TEST_F(PrintTest, EachPageHasTheTitleTheHeadingsAndItsNumber)
{
    KOVA_NEEDS_READER;
    ASSERT_TRUE(load(Numbers.arg(200), {}));
    ASSERT_TRUE(printData(u"a.pdf"_s, u"Title=清单"_s));
    const QStringList pages = pagesOf(u"a.pdf"_s);
    ASSERT_GE(pages.size(), 3);
    int rows = 0;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        EXPECT_TRUE(pages[i].startsWith(u"清单"_s)) << qPrintable(pages[i]);
        EXPECT_TRUE(pages[i].contains(u"名称"_s) && pages[i].contains(u"金额"_s));
        EXPECT_TRUE(pages[i].contains(u"第 %1 页，共 %2 页"_s.arg(i + 1).arg(pages.size())))
            << qPrintable(pages[i].right(200));
        rows += static_cast<int>(pages[i].count(u'行'));
    }
    EXPECT_EQ(rows, 200);
    EXPECT_TRUE(pages.last().contains(u"第200行"_s));
}

TEST_F(PrintTest, WideResultsLieOnTheirSideAndAllColumnsFit)
{
    KOVA_NEEDS_READER;
    ASSERT_TRUE(load());
    ASSERT_TRUE(printData(u"a.pdf"_s));
    const QString info = outputOf(u"pdfinfo"_s, {path(u"a.pdf"_s)});
    QStringList columns;
    for (int i = 0; i < 12; ++i)
        columns.append(u"'v%1' AS 第%1列"_s.arg(i));
    ASSERT_TRUE(load(u"SELECT "_s + columns.join(u", "_s), {}));
    ASSERT_TRUE(printData(u"b.pdf"_s));
    const QString page = pagesOf(u"b.pdf"_s).value(0);
    for (int i = 0; i < 12; ++i)
        EXPECT_TRUE(page.contains(u"v%1"_s.arg(i))) << i;
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {path(u"b.pdf"_s)}).contains(u"842 x 595"_s));
    ASSERT_TRUE(printData(u"b.pdf"_s, u"Orientation=Portrait"_s));
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {path(u"b.pdf"_s)}).contains(u"595 x 842"_s));
}

// In a narrow column of the grid a text is cut; on the page there is room for it.
TEST_F(PrintTest, ColumnsAreAsWideAsTheirTextsWhereThePageHasRoom)
{
    KOVA_NEEDS_READER;
    ASSERT_TRUE(load(u"SELECT ID, 'Porcelain bowls, six' AS 名称, 1234567.125 AS 金额 FROM 商品"_s, {}));
    for (int section = 0; section < 3; ++section)
        table->horizontalHeader()->resizeSection(section, 40);
    ASSERT_TRUE(printData(u"a.pdf"_s));
    const QString page = pagesOf(u"a.pdf"_s).value(0);
    EXPECT_TRUE(page.contains(u"Porcelain bowls, six"_s)) << qPrintable(page.left(200));
    EXPECT_TRUE(page.contains(u"1234567.125"_s)) << qPrintable(page.left(200));
}

// A cut number is another number; a text gives it room.
TEST_F(PrintTest, NumbersAndDatesAreWholeBesideWideTexts)
{
    KOVA_NEEDS_READER;
    database.run(
        u"CREATE TABLE 宽 (金额 DECIMAL(12,2), 备注 TEXT, 日期 DATE, 说明 TEXT, 数 DOUBLE);"
        "INSERT INTO 宽 VALUES (12345678.25, replace(printf('%300s', ''), ' ', 'long '), '2024-03-01',"
        " 'short', 98765.4321)"_s);
    const auto expectWhole = [this](const QString &statement, const QList<int> &widths) {
        ASSERT_TRUE(load(statement, {}));
        for (int section = 0; section < widths.size(); ++section)
            table->horizontalHeader()->resizeSection(section, widths.at(section));
        for (const QString &orientation : {u"Portrait"_s, u"Landscape"_s}) {
            ASSERT_TRUE(printData(u"a.pdf"_s, u"Orientation="_s + orientation));
            const QString page = pagesOf(u"a.pdf"_s).value(0);
            for (const QString &whole : {u"12345678.25"_s, u"2024-03-01"_s, u"98765.4321"_s, u"long"_s})
                EXPECT_TRUE(page.contains(whole)) << qPrintable(whole + u'\n' + page.left(600));
        }
    };
    expectWhole(u"SELECT * FROM 宽"_s, {40, 1200, 40, 60, 40});
    expectWhole(u"SELECT * FROM 宽"_s, {30, 4000, 30, 60, 30});
    // Letters get no smaller than can be read.
    QString texts;
    for (int i = 0; i < 12; ++i)
        texts += u", '长文字长文字长文字' AS 列%1"_s.arg(i);
    expectWhole(u"SELECT *"_s + texts + u" FROM 宽"_s, {60, 900, 60, 60, 60});
}

TEST_F(PrintTest, HiddenColumnsAreLeftOutAndOnlyMarkedRecordsPrintedOnRequest)
{
    KOVA_NEEDS_READER;
    ASSERT_TRUE(load());
    click(u"Part"_s);
    clickCell(3, 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      table->visualRect(table->model()->index(3, 0)).center());
    ASSERT_TRUE(printData(u"a.pdf"_s, u"records=marked"_s));
    const QString page = pagesOf(u"a.pdf"_s).value(0);
    EXPECT_TRUE(page.contains(u"铁观音"_s) && page.contains(u"花茶"_s)) << qPrintable(page);
    EXPECT_FALSE(page.contains(u"普洱茶"_s) || page.contains(u"大米"_s) || page.contains(u"城市"_s));
    EXPECT_TRUE(page.startsWith(u"商品"_s));
}

TEST_F(PrintTest, ThePreviewShowsPagesAndSavesThem)
{
    KOVA_NEEDS_READER;
    ASSERT_TRUE(load(Numbers.arg(3000), {}));
    WindowAnswers dialogs({[&](QDialog &dialog) {
                               EXPECT_EQ(dialog.objectName(), u"PrintPreview"_s);
                               auto &place = part<QLabel>(dialog, "lblPlace");
                               EXPECT_TRUE(place.text().startsWith(u"第 1 页，共 "_s));
                               EXPECT_TRUE(place.text().contains(u"预览前 20 页"_s)) << "long results";
                               press(dialog, "cmdNext");
                               EXPECT_TRUE(place.text().startsWith(u"第 2 页"_s));
                               press(dialog, "cmdPrevious");
                               EXPECT_FALSE(part(dialog, "cmdPrevious").isEnabled());
                               auto &title = part<QLineEdit>(dialog, "txtTitle");
                               title.setFocus();
                               title.selectAll();
                               compose(title, u"年报"_s);
                               QTest::keyClick(&title, Qt::Key_Return);
                               EXPECT_TRUE(dialog.isVisible());
                               press(dialog, "cmdPdf");
                           },
                           [&](QDialog &box) {
                               auto &name = part<QLineEdit>(box, "fileNameEdit");
                               name.setText(path(u"a"_s));
                               QTest::keyClick(&name, Qt::Key_Return);
                           }});
    table->setFocus();
    QTest::keyClick(table, Qt::Key_P, Qt::ControlModifier);
    const QStringList pages = pagesOf(u"a.pdf"_s);
    ASSERT_GT(pages.size(), 20) << "the whole result, not what the preview shows";
    EXPECT_TRUE(pages[0].startsWith(u"年报"_s)) << qPrintable(pages[0].left(200));
    EXPECT_TRUE(pages.last().contains(u"第3000行"_s));
}

TEST_F(PrintTest, ThePreviewCancelledPrintsNothing)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { key(dialog, Qt::Key_Escape); }});
    table->setFocus();
    QTest::keyClick(table, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(takeTexts(), QStringList());
}

TEST_F(PrintTest, TheHostGetsTheError)
{
    EXPECT_FALSE(printData(u"a.pdf"_s));
    EXPECT_EQ(takeTexts(), QStringList{u"没有打开的结果，无法打印。"_s});
    ASSERT_TRUE(load());
    EXPECT_FALSE(printData(u"a.pdf"_s, u"Paper=Pink"_s));
    EXPECT_EQ(takeTexts(), QStringList{u"无法识别打印选项“Paper=Pink”。"_s});
    EXPECT_FALSE(printData(u"none/a.pdf"_s));
    EXPECT_TRUE(takeTexts().join(u' ').startsWith(u"无法写入文件“"_s));
}

TEST_F(PrintTest, ALongPrintCanBeCancelledAndLeavesTheOldFile)
{
    QFile old(path(u"a.pdf"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("good");
    old.close();
    ASSERT_TRUE(load(Numbers.arg(500000), {}));
    QTimer cancelling;
    bool wasShown = false;
    QObject::connect(&cancelling, &QTimer::timeout, &grid, [&] {
        const auto *bar = grid.findChild<QProgressBar *>();
        if (bar && bar->maximum() > 0) {
            wasShown = true;
            QTest::keyClick(&grid, Qt::Key_Escape);
        }
    });
    cancelling.start(0);
    EXPECT_FALSE(printData(u"a.pdf"_s));
    EXPECT_TRUE(wasShown);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "good");
}
