// The file dialog in a host without a translator, on a system without a native dialog: its parts and
// questions are in the language of the interface.
#include "forms/FileDialog.h"

#include "language/Language.h"
#include "support/Dialogs.h"
#include "support/MessageAnswers.h"
#include "support/WindowAnswers.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FileDialogs : public testing::TestWithParam<bool>
{
protected:
    FileDialogs()
    {
        Language::use(isEnglish ? u"en"_s : u"zh-CN"_s);
        QFile file(path(u"1.txt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ~FileDialogs() override { Language::use(u"zh-CN"_s); }

    QString path(const QString &name) const { return folder.filePath(name); }
    static QLineEdit &name(QDialog &dialog) { return part<QLineEdit>(dialog, "fileNameEdit"); }
    static void type(QDialog &dialog, const QString &typed)
    {
        dialog.activateWindow(); // which a message may have been
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        name(dialog).setFocus();
        name(dialog).selectAll();
        compose(name(dialog), typed);
        if (QWidget *const offered = QApplication::activePopupWidget()) // the matching names
            QTest::keyClick(offered, Qt::Key_Escape);
    }
    static QAbstractButton *button(QDialog &dialog, const QString &caption)
    {
        QStringList captions;
        for (QAbstractButton *found : dialog.findChildren<QAbstractButton *>()) {
            if (found->text() == caption)
                return found;
            captions.append(found->text());
        }
        ADD_FAILURE() << qUtf8Printable(caption) << " is none of " << qUtf8Printable(captions.join(u'|'));
        return nullptr;
    }

    const bool isEnglish = GetParam();
    const QString save = isEnglish ? u"&Save"_s : u"保存(&S)"_s;
    const QString open = isEnglish ? u"&Open"_s : u"打开(&O)"_s;
    const QString cancel = isEnglish ? u"Cancel"_s : u"取消"_s;
    QTemporaryDir folder;
};

QStringList textsOf(const QDialog &dialog)
{
    QStringList texts;
    for (const QWidget *part : dialog.findChildren<QWidget *>()) {
        if (!part->isVisible())
            continue;
        for (const char *property : {"text", "toolTip", "accessibleName"}) {
            if (!qobject_cast<const QLineEdit *>(part))
                texts.append(part->property(property).toString());
        }
        for (const QAction *action : part->actions())
            texts.append(action->text());
    }
    texts.removeAll(QString());
    return texts;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, FileDialogs, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(FileDialogs, HaveNoTextInAnotherLanguage)
{
    static const QRegularExpression letters(u"(?<![&A-Za-z])[A-Za-z]{2,}"_s); // access keys are single
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        FileDialog dialog(nullptr, u"1"_s, folder.path(), u"1 (*.1);;2 (*.2)"_s);
        dialog.setAcceptMode(mode);
        present(dialog);
        const QStringList texts = textsOf(dialog);
        EXPECT_GE(texts.size(), 15) << qUtf8Printable(texts.join(u'|'));
        for (const QString &text : texts)
            EXPECT_FALSE(text.contains(isEnglish ? chinese : letters)) << qUtf8Printable(text);
        EXPECT_TRUE(texts.contains(isEnglish ? u"File &name:"_s : u"文件名(&N):"_s));
        button(dialog, mode == QFileDialog::AcceptOpen ? open : save);
        button(dialog, cancel);
    }
}

TEST_P(FileDialogs, FollowTheLanguageWhileTheyAreOpen)
{
    static const QRegularExpression letters(u"(?<![&A-Za-z])[A-Za-z]{2,}"_s);
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    FileDialog dialog(nullptr, u"1"_s, folder.path(), u"1 (*.1)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    present(dialog);
    Language::use(isEnglish ? u"zh-CN"_s : u"en"_s);
    QCoreApplication::sendPostedEvents();
    for (const QString &text : textsOf(dialog))
        EXPECT_FALSE(text.contains(isEnglish ? letters : chinese)) << qUtf8Printable(text);
    EXPECT_EQ(name(dialog).text(), QString());
    button(dialog, isEnglish ? u"保存(&S)"_s : u"&Save"_s);
}

TEST_P(FileDialogs, AskBeforeAFileIsReplacedInTheSameLanguage)
{
    MessageAnswers answers({QMessageBox::No, QMessageBox::Yes});
    WindowAnswers dialogs({[this](QDialog &dialog) {
        type(dialog, u"1.txt"_s);
        QTest::mouseClick(button(dialog, save), Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible()) << "another name can be typed";
        QTest::mouseClick(button(dialog, save), Qt::LeftButton);
    }});
    EXPECT_EQ(FileDialog::askToSave(nullptr, u"1"_s, folder.path(), {}), path(u"1.txt"_s));
    ASSERT_EQ(answers.shown().size(), 2U);
    EXPECT_EQ(answers.shown()[0].text, isEnglish ? u"The file \"1.txt\" already exists. Replace it?"_s
                                                 : u"文件“1.txt”已经存在，要替换它吗？"_s);
    EXPECT_EQ(answers.shown()[0].captions,
              isEnglish ? QStringList({u"&Yes"_s, u"&No"_s}) : QStringList({u"是(&Y)"_s, u"否(&N)"_s}));
}

TEST_P(FileDialogs, SayThatAFileIsMissingInTheSameLanguage)
{
    MessageAnswers answers;
    WindowAnswers dialogs({[this](QDialog &dialog) {
        type(dialog, u"2.txt"_s);
        QTest::keyClick(&name(dialog), Qt::Key_Return);
        ASSERT_TRUE(dialog.isVisible());
        type(dialog, u"1.txt"_s);
        // The folder is read in the background.
        EXPECT_TRUE(QTest::qWaitFor([&] { return button(dialog, open)->isEnabled(); }));
        QTest::mouseClick(button(dialog, open), Qt::LeftButton);
    }});
    EXPECT_EQ(FileDialog::askToOpen(nullptr, u"1"_s, folder.path(), {}), path(u"1.txt"_s));
    EXPECT_EQ(answers.texts(),
              QStringList(isEnglish ? u"The file \"2.txt\" was not found."_s : u"找不到文件“2.txt”。"_s));
}

TEST_P(FileDialogs, AFolderIsOpenedByAButtonInTheSameLanguage)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"4"_s));
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        FileDialog dialog(nullptr, u"1"_s, folder.path(), {});
        dialog.setAcceptMode(mode);
        present(dialog);
        type(dialog, u"4"_s);
        button(dialog, open);
        type(dialog, u"5"_s);
        button(dialog, mode == QFileDialog::AcceptOpen ? open : save);
    }
}

TEST_P(FileDialogs, ANewFileNeedsNoQuestionAndEscGivesUp)
{
    WindowAnswers dialogs({[this](QDialog &dialog) {
                               type(dialog, u"3.2"_s);
                               QTest::keyClick(&name(dialog), Qt::Key_Return);
                           },
                           [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }});
    QString filter = u"2 (*.2)"_s;
    EXPECT_EQ(FileDialog::askToSave(nullptr, u"1"_s, folder.path(), u"1 (*.1);;2 (*.2)"_s, &filter),
              path(u"3.2"_s));
    EXPECT_EQ(filter, u"2 (*.2)"_s);
    EXPECT_EQ(FileDialog::askToSave(nullptr, u"1"_s, folder.path(), {}), QString());
}
