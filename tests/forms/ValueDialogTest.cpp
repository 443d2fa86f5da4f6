// The window that shows one value whole.
#include "forms/value/ValueDialog.h"
#include "forms/value/FormattedText.h"
#include "forms/value/HexPane.h"
#include "forms/value/PicturePane.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabWidget>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QByteArray png()
{
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

ShownValue textValue(const QString &text)
{
    return {.field = u"备注"_s, .place = u"备注（第 1 行）"_s, .text = text};
}

ShownValue byteValue(const QByteArray &bytes)
{
    return {.field = u"图片"_s, .place = u"图片（第 1 行）"_s, .isBinary = true, .bytes = bytes};
}

struct ValueWindow : testing::Test
{
    void show(const ShownValue &value) { dialog.show(value); }
    QStringList views() const
    {
        QStringList names;
        for (int i = 0; i < tabs->count(); ++i)
            names.append(tabs->tabText(i));
        return names;
    }
    QPlainTextEdit *text() const { return tabs->currentWidget()->findChild<QPlainTextEdit *>(u"txtValue"_s); }
    template<typename Part>
    Part *part(const char *name) const
    {
        return dialog.findChild<Part *>(QLatin1StringView(name));
    }
    void press(const char *name) const { QTest::mouseClick(part<QPushButton>(name), Qt::LeftButton); }
    void findIn(const QString &words, Qt::KeyboardModifiers modifiers = {}) const
    {
        auto *box = tabs->currentWidget()->findChild<QLineEdit *>(u"txtFindInValue"_s);
        box->setText(words);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Return, modifiers);
    }

    QWidget parent;
    ValueDialog &dialog = *new ValueDialog(&parent);
    QTabWidget *tabs = dialog.findChild<QTabWidget *>(u"tabViews"_s);
    QLabel *summary = dialog.findChild<QLabel *>(u"lblSummary"_s);
};

} // namespace

TEST(FormattedText, IndentsJsonWithoutAnyOtherChange)
{
    struct Case
    {
        QString json;
        QString indented;
    };
    for (const auto &[json, indented] : {
             Case{u"{\"b\":1,\"a\":[1.50,true,null],\"c\":{}}"_s,
                  u"{\n  \"b\": 1,\n  \"a\": [\n    1.50,\n    true,\n    null\n  ],\n  \"c\": {}\n}"_s},
             Case{u" [ ] "_s, u"[]"_s},
             Case{u"[12345678901234567890]"_s, u"[\n  12345678901234567890\n]"_s},
             Case{u"{\"a{,:\\\"\":\"b } : ,\"}"_s, u"{\n  \"a{,:\\\"\": \"b } : ,\"\n}"_s},
             Case{u"[[],[{}]]"_s, u"[\n  [],\n  [\n    {}\n  ]\n]"_s},
         }) {
        const auto formatted = FormattedText::of(json);
        ASSERT_TRUE(formatted) << qPrintable(json);
        EXPECT_EQ(formatted->kind, FormattedText::Kind::Json);
        EXPECT_EQ(formatted->text.toStdString(), indented.toStdString());
    }
}

TEST(FormattedText, IndentsXml)
{
    const auto formatted = FormattedText::of(u"<?xml version=\"1.0\"?><a x=\"1\"><b>茶</b><c/></a>"_s);
    ASSERT_TRUE(formatted);
    EXPECT_EQ(formatted->kind, FormattedText::Kind::Xml);
    EXPECT_EQ(formatted->text.toStdString(),
              "<?xml version=\"1.0\"?>\n<a x=\"1\">\n  <b>茶</b>\n  <c/>\n</a>");
}

TEST(FormattedText, KeepsWhatAnXmlDeclares)
{
    const QString declaration = u"<?xml version=\"1.0\" encoding=\"GB18030\"?>"_s;
    EXPECT_EQ(FormattedText::of(declaration + u"<a/>"_s).value().text, declaration + u"\n<a/>"_s);
    EXPECT_EQ(FormattedText::of(u"<a><b/></a>"_s).value().text, u"<a>\n  <b/>\n</a>"_s);
}

TEST(FormattedText, LeavesOtherTextsAlone)
{
    for (const QString &text :
         {QString(), u"plain"_s, u"{not json}"_s, u"[1,"_s, u"<a><b></a>"_s, u"< 5"_s, u"1"_s, u"\"text\""_s})
        EXPECT_FALSE(FormattedText::of(text)) << qPrintable(text);
    EXPECT_FALSE(FormattedText::of(u'[' + QString(FormattedText::longest, u' ') + u']')) << "too long";
}

TEST(HexPane, WritesSixteenBytesOnALine)
{
    const QByteArray bytes = QByteArray("0123456789ABCDEF") + QByteArray("\x00\xff~ ", 4);
    EXPECT_EQ(HexPane::line(bytes, 0).toStdString(),
              "00000000  30 31 32 33 34 35 36 37 38 39 41 42 43 44 45 46  0123456789ABCDEF");
    EXPECT_EQ(HexPane::line(bytes, 1), u"00000010  00 FF 7E 20"_s + QString(36, u' ') + u"  ..~ "_s);
    EXPECT_EQ(HexPane::line(bytes, 2), u"00000020  "_s + QString(47, u' ') + u"  "_s);
}

TEST_F(ValueWindow, ShowsATextWithItsLineBreaks)
{
    show(textValue(u"第一行\n第二行"_s));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ(views(), QStringList(u"文本"_s));
    EXPECT_EQ(text()->toPlainText(), u"第一行\n第二行"_s);
    EXPECT_TRUE(text()->isReadOnly());
    EXPECT_EQ(dialog.windowTitle(), u"查看内容 - 备注"_s);
    EXPECT_EQ(summary->text(), u"7 个字符"_s);
    press("cmdCopyValue");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"第一行\n第二行"_s);
}

TEST_F(ValueWindow, ShowsJsonIndentedAndKeepsTheTextItself)
{
    show(textValue(u"{\"a\":[1,2]}"_s));
    EXPECT_EQ(views(), (QStringList{u"文本"_s, u"JSON"_s}));
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(text()->toPlainText(), u"{\n  \"a\": [\n    1,\n    2\n  ]\n}"_s);
    QCoreApplication::processEvents();
    const QTextBlock line = text()->document()->findBlockByNumber(1);
    EXPECT_FALSE(line.layout()->formats().isEmpty()) << "it is coloured";
    press("cmdCopyValue");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"{\"a\":[1,2]}"_s);
}

TEST_F(ValueWindow, DistinguishesNullFromAnEmptyText)
{
    ShownValue null = textValue({});
    null.isNull = true;
    show(null);
    EXPECT_EQ(summary->text(), u"空值（NULL）"_s);
    show(textValue({}));
    EXPECT_EQ(summary->text(), u"0 个字符"_s);
}

TEST_F(ValueWindow, FindsForwardsAndBackwardsAndAround)
{
    show(textValue(u"tea, Tea and coffee"_s));
    const auto at = [this] { return text()->textCursor().selectionStart(); };
    findIn(u"TEA"_s);
    EXPECT_EQ(at(), 0);
    findIn(u"TEA"_s);
    EXPECT_EQ(at(), 5);
    findIn(u"TEA"_s);
    EXPECT_EQ(at(), 0);
    findIn(u"TEA"_s, Qt::ShiftModifier);
    EXPECT_EQ(at(), 5);
    findIn(u"milk"_s);
    EXPECT_EQ(part<QLabel>("lblFoundInValue")->text(), u"没有找到"_s);
    EXPECT_TRUE(dialog.isVisible()) << "Enter closes nothing";
}

TEST_F(ValueWindow, FindsAfterLinesThatEndAsInWindows)
{
    show(textValue(u"one\r\ntwo\r\nthree, tea\r\n"_s));
    findIn(u"TEA"_s);
    EXPECT_EQ(text()->textCursor().selectedText(), u"tea"_s);
}

TEST_F(ValueWindow, ShowsAVeryLongTextPieceByPieceAndFindsInAllOfIt)
{
    QString longText(50000000, u'x');
    longText.replace(49999, 2, QString::fromUtf8("\U0001F375")); // a character across the first border
    longText.replace(49999990, 4, u"here"_s);
    show(textValue(longText));
    EXPECT_EQ(part<QLabel>("lblPiece")->text(), u"第 1 段，共 1,000 段"_s);
    EXPECT_TRUE(text()->toPlainText().endsWith(QString::fromUtf8("\U0001F375")));
    press("cmdNextPiece");
    EXPECT_EQ(part<QLabel>("lblPiece")->text(), u"第 2 段，共 1,000 段"_s);
    EXPECT_TRUE(text()->toPlainText().startsWith(u'x'));
    findIn(u"HERE"_s);
    EXPECT_EQ(part<QLabel>("lblPiece")->text(), u"第 1,000 段，共 1,000 段"_s);
    EXPECT_EQ(text()->textCursor().selectedText(), u"here"_s);
    EXPECT_FALSE(part<QPushButton>("cmdNextPiece")->isEnabled());
}

TEST_F(ValueWindow, SaysThatALongStructureIsNotShown)
{
    show(textValue(u'[' + QString(FormattedText::longest, u' ') + u']'));
    EXPECT_EQ(views(), QStringList(u"文本"_s));
    EXPECT_EQ(summary->text(), u"1,000,002 个字符，超过 1,000,000 个字符，不显示结构"_s);
}

TEST_F(ValueWindow, ShowsAPictureAndItsBytes)
{
    show(byteValue(png()));
    EXPECT_EQ(views(), (QStringList{u"图片"_s, u"十六进制"_s}));
    EXPECT_EQ(tabs->currentWidget()->grab().toImage().pixelColor(tabs->currentWidget()->rect().center()),
              QColor(Qt::red));
    EXPECT_EQ(summary->text(), u"%1 字节，30 × 20 像素，PNG"_s.arg(png().size()));
    press("cmdCopyValue");
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(30, 20));
}

TEST_F(ValueWindow, ShowsBytesInHexAndATextThatTheyAre)
{
    show(byteValue(QByteArray("\x00\x01\xff", 3)));
    EXPECT_EQ(views(), QStringList(u"十六进制"_s));
    press("cmdCopyValue");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"0001ff"_s);
    show(byteValue(u"[1]"_s.toUtf8()));
    EXPECT_EQ(views(), (QStringList{u"文本"_s, u"JSON"_s, u"十六进制"_s}));
    show(byteValue({}));
    EXPECT_EQ(views(), QStringList(u"十六进制"_s));
}

TEST_F(ValueWindow, ShowsManyBytesByTheLine)
{
    show(byteValue(QByteArray(100 << 20, '\0')));
    auto *pane = part<QAbstractScrollArea>("HexPane");
    pane->setFocus();
    QTest::keyClick(pane, Qt::Key_PageDown);
    EXPECT_EQ(pane->verticalScrollBar()->value(), pane->verticalScrollBar()->pageStep());
    pane->verticalScrollBar()->setValue(pane->verticalScrollBar()->maximum());
    const int lines = (100 << 20) / 16;
    EXPECT_EQ(pane->verticalScrollBar()->maximum() + pane->verticalScrollBar()->pageStep(), lines);
    EXPECT_FALSE(pane->grab().isNull());
}

TEST_F(ValueWindow, SavesTheValueItself)
{
    const QTemporaryDir folder;
    const auto saved = [&](const ShownValue &value) {
        show(value);
        QString failure;
        EXPECT_TRUE(dialog.saveTo(folder.filePath(u"out"_s), failure)) << qPrintable(failure);
        QFile file(folder.filePath(u"out"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    EXPECT_EQ(saved(textValue(u"{\"a\":\"茶\"}"_s)), u"{\"a\":\"茶\"}"_s.toUtf8());
    EXPECT_EQ(saved(byteValue(png())), png());
    QString failure;
    EXPECT_FALSE(dialog.saveTo(folder.filePath(u"nowhere/out"_s), failure));
    EXPECT_FALSE(failure.isEmpty());
}

TEST_F(ValueWindow, GoesWhenItIsClosed)
{
    show(textValue(u"a"_s));
    const QPointer<ValueDialog> alive(&dialog);
    QTest::keyClick(text(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alive);
}
