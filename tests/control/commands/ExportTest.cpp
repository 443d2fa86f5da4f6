// From the grid to a file: the dialog, and the host's ExportData.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct ExportTest : Shop
{
    ExportTest() { grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false); }
    QString path(const QString &file) const { return folder.filePath(file); }
    QByteArray content(const QString &file) const
    {
        QFile opened(path(file));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("no file");
    }
    void put(const QString &file, const QByteArray &bytes) const
    {
        QFile opened(path(file));
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        opened.write(bytes);
    }
    static void type(QDialog &dialog, const QString &file)
    {
        auto &box = part<QLineEdit>(dialog, "txtFile");
        box.selectAll();
        QTest::keyClicks(&box, file);
    }
    void pressExport()
    {
        table->setFocus();
        QTest::keyClick(table, Qt::Key_S, Qt::ControlModifier);
    }
    bool exportData(const QString &file, const QString &options = {})
    {
        bool isDone = false;
        EXPECT_TRUE(QMetaObject::invokeMethod(&grid, "ExportData", Q_RETURN_ARG(bool, isDone),
                                              Q_ARG(QString, path(file)), Q_ARG(QString, options)));
        return isDone;
    }

    QStringList takeTexts()
    {
        const QStringList texts = messages.texts();
        messages.clear();
        return texts;
    }

    QTemporaryDir folder;
    const QString fewRows = u"SELECT ID, 名称, 停用 FROM 商品 WHERE ID < 4 ORDER BY ID"_s;
};

} // namespace

TEST_F(ExportTest, TheDialogWritesWhatIsChosen)
{
    ASSERT_TRUE(load(fewRows, u"SELECT ID, 名称 FROM 商品"_s));
    click(u"Part"_s);
    clickCell(2, 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      table->visualRect(table->model()->index(2, 0)).center());
    WindowAnswers dialogs({[&](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), u"ExportDialog"_s);
        EXPECT_EQ(part<QAbstractButton>(dialog, "optAllRecords").text(), u"全部 3 条(&A)"_s);
        EXPECT_TRUE(part<QRadioButton>(dialog, "optMarkedRecords").isChecked()) << "two rows are marked";
        EXPECT_EQ(part<QAbstractButton>(dialog, "optShownColumns").text(), u"显示的 2 个(&W)"_s);
        EXPECT_EQ(part<QAbstractButton>(dialog, "optAllColumns").text(), u"全部 3 个(&L)"_s);
        EXPECT_TRUE(part<QLineEdit>(dialog, "txtFile").text().endsWith(u"商品.csv"_s));
        auto &encoding = part<QComboBox>(dialog, "cmbEncoding");
        encoding.setCurrentIndex(encoding.findText(u"UTF-8"_s));
        type(dialog, path(u"a.csv"_s));
        press(dialog, "cmdOK");
    }});
    pressExport();
    const QStringList names = texts(u"名称"_s);
    EXPECT_EQ(QString::fromUtf8(content(u"a.csv"_s)),
              u"ID,名称\r\n2,%1\r\n3,%2\r\n"_s.arg(names.at(1), names.at(2)));
}

TEST_F(ExportTest, TheEndingFollowsTheFormatAndTheOptionsWithIt)
{
    ASSERT_TRUE(load(fewRows, {}));
    WindowAnswers dialogs({[&](QDialog &dialog) {
        type(dialog, path(u"a.csv"_s));
        auto &format = part<QComboBox>(dialog, "cmbFormat");
        format.setFocus();
        QTest::keyClick(&format, Qt::Key_End);
        EXPECT_EQ(part<QLineEdit>(dialog, "txtFile").text(), path(u"a.html"_s));
        EXPECT_FALSE(part(dialog, "cmbEncoding").isEnabled());
        EXPECT_FALSE(part(dialog, "chkGuard").isEnabled());
        QTest::mouseClick(&part(dialog, "optAllColumns"), Qt::LeftButton, {}, {8, 8});
        key(dialog, Qt::Key_Return);
    }});
    pressExport();
    EXPECT_EQ(content(u"a.html"_s).count("<tr>"), 4) << content(u"a.html"_s).data();
}

TEST_F(ExportTest, AFileThatIsThereIsReplacedOnlyWhenTheUserSaysSo)
{
    ASSERT_TRUE(load(fewRows, {}));
    put(u"a.csv"_s, "good");
    WindowAnswers dialogs({[&](QDialog &dialog) {
        type(dialog, path(u"a"_s)); // the ending comes by itself
        messages.answerNext(QMessageBox::No);
        press(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(content(u"a.csv"_s), "good");
        messages.answerNext(QMessageBox::Yes);
        press(dialog, "cmdOK");
    }});
    pressExport();
    EXPECT_TRUE(content(u"a.csv"_s).startsWith("\xef\xbb\xbfID,"));
    EXPECT_EQ(takeTexts(), (QStringList(2, u"文件“a.csv”已经存在，要替换它吗？"_s)));
}

TEST_F(ExportTest, CancelledNothingIsWritten)
{
    ASSERT_TRUE(load(fewRows, {}));
    WindowAnswers dialogs({[&](QDialog &dialog) {
        type(dialog, path(u"a.csv"_s));
        key(dialog, Qt::Key_Escape);
    }});
    pressExport();
    EXPECT_EQ(content(u"a.csv"_s), "no file");
}

TEST_F(ExportTest, TheHostExportsByName)
{
    ASSERT_TRUE(load(fewRows, u"SELECT ID FROM 商品"_s));
    click(u"Part"_s);
    EXPECT_TRUE(exportData(u"a.csv"_s));
    EXPECT_EQ(content(u"a.csv"_s), "\xef\xbb\xbfID\r\n1\r\n2\r\n3\r\n");
    clickCell(2, 1);
    EXPECT_TRUE(
        exportData(u"a.csv"_s, u"records=MARKED;Columns=All;Headings=No;Encoding=UTF-8 without mark"_s));
    EXPECT_EQ(content(u"a.csv"_s),
              u"2,%1,%2\r\n"_s.arg(texts(u"名称"_s).at(1), texts(u"停用"_s).at(1)).toUtf8());
    EXPECT_TRUE(exportData(u"a.jsonl"_s));
    EXPECT_EQ(content(u"a.jsonl"_s), "{\"ID\":1}\n{\"ID\":2}\n{\"ID\":3}\n");
}

TEST_F(ExportTest, TheHostGetsTheError)
{
    EXPECT_FALSE(exportData(u"a.csv"_s));
    EXPECT_EQ(takeTexts(), QStringList{u"没有打开的结果，无法导出。"_s});
    ASSERT_TRUE(load(fewRows, {}));
    EXPECT_FALSE(exportData(u"a.txt"_s));
    EXPECT_TRUE(takeTexts().join(u' ').startsWith(u"无法从文件名“a.txt”得知格式"_s));
    EXPECT_FALSE(exportData(u"a.csv"_s, u"Encoding=Klingon"_s));
    EXPECT_EQ(takeTexts(), QStringList{u"无法识别导出选项“Encoding=Klingon”。"_s});
    EXPECT_FALSE(exportData(u"a.csv"_s, u"Colour=Red"_s));
    EXPECT_EQ(takeTexts(), QStringList{u"无法识别导出选项“Colour=Red”。"_s});
    EXPECT_FALSE(exportData(u"none/a.csv"_s));
    EXPECT_TRUE(takeTexts().join(u' ').startsWith(u"无法写入文件“"_s));
}

TEST_F(ExportTest, ALongExportCanBeCancelledAndLeavesTheOldFile)
{
    put(u"a.html"_s, "good");
    ASSERT_TRUE(load(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 3000000) "
                     "SELECT I, I AS A1, I AS A2, I AS A3, I AS A4, I AS A5 FROM N"_s,
                     {}));
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
    const bool isDone = exportData(u"a.html"_s);
    EXPECT_NE(isDone, wasShown) << "a fast machine may be done before the line shows";
    EXPECT_EQ(content(u"a.html"_s) == "good", wasShown);
}
