#include "pages/PageDialog.h"

#include "SomeControl.h"
#include "pages/PropertyPage.h"
#include "pages/PropertyPages.h"
#include "support/AccessKeys.h"
#include "support/Dialogs.h"
#include "support/MessageAnswers.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct PageWindow : testing::Test
{
    explicit PageWindow(const QString &name = u"SQLShow"_s) : page(newPropertyPage(name)), dialog(page)
    {
        control.sqlShow = u"old"_s;
        page->SetSelectedControls({&control});
        present(dialog);
    }
    void type(const QString &typed) const
    {
        auto &text = part<QLineEdit>(dialog, "txtSQLShow");
        EXPECT_TRUE(text.hasFocus());
        text.selectAll();
        QTest::keyClicks(&text, typed);
    }
    bool canApply() const { return part(dialog, "ApplyButton").isEnabled(); }

    SomeControl control;
    PropertyPage *page;
    PageDialog dialog;
};

struct PartPageWindow : PageWindow
{
    PartPageWindow() : PageWindow(u"PartDisplayField"_s) {}
};

struct ReadOnlyPageWindow : PageWindow
{
    ReadOnlyPageWindow() : PageWindow(u"RecordSource"_s) {}
};

} // namespace

TEST_F(PartPageWindow, NoButtonIsSqueezedWhereTheFontIsLargeAndTheScreenSmall)
{
    QFont large = dialog.font();
    large.setPointSize(large.pointSize() * 2);
    dialog.setFont(large);
    for (const QSize &size : {QSize(800, 600), QSize(1, 1)}) { // as small as it can be, at last
        dialog.resize(size);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents(); // the lines of the hint, then the window around them
        for (const char *name : {"Cmd_add", "Cmd_Abs", "OKButton"}) {
            const auto &button = part<QAbstractButton>(dialog, name);
            EXPECT_GE(button.height(), button.sizeHint().height()) << name << ' ' << dialog.height();
            EXPECT_GE(button.width(), button.minimumSizeHint().width()) << name;
        }
        EXPECT_LE(part<QAbstractButton>(dialog, "Cmd_add").geometry().bottom(),
                  part<QAbstractButton>(dialog, "Cmd_Abs").geometry().top());
    }
    EXPECT_LE(dialog.height(), 600);
}

TEST_F(PageWindow, ApplyWritesAndStays)
{
    EXPECT_FALSE(canApply());
    type(u"new"_s);
    EXPECT_TRUE(canApply());
    press(dialog, "ApplyButton");
    EXPECT_EQ(control.sqlShow, u"new"_s);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(canApply());
}

TEST_F(PageWindow, EnterWritesAndLeaves)
{
    type(u"new"_s);
    key(dialog, Qt::Key_Return);
    EXPECT_EQ(control.sqlShow, u"new"_s);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PageWindow, OkWithoutAChangeWritesNothing)
{
    control.sqlShow = u"written meanwhile"_s;
    press(dialog, "OKButton");
    EXPECT_EQ(control.sqlShow, u"written meanwhile"_s);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PageWindow, EscLeavesEverything)
{
    type(u"new"_s);
    key(dialog, Qt::Key_Escape);
    EXPECT_EQ(control.sqlShow, u"old"_s);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ReadOnlyPageWindow, StaysOpenWhenTheTextIsRefused)
{
    MessageAnswers messages;
    part<QLineEdit>(dialog, "txtRecordSource").setText(u"x"_s); // by program
    press(dialog, "OKButton");
    EXPECT_EQ(messages.shown().size(), 1U);
    EXPECT_TRUE(dialog.isVisible());
}

TEST(PageDialogs, ShowTheirHintsWholeInLargeLettersOnASmallScreen)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(2 * before.pointSizeF());
    QApplication::setFont(large);
    for (const QString &name : propertyPageNames()) {
        PageDialog dialog(newPropertyPage(name));
        present(dialog);
        int hints = 0;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            if (!label->wordWrap())
                continue;
            ++hints;
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << qPrintable(name);
        }
        EXPECT_GT(hints, 0) << qPrintable(name);
        EXPECT_LE(dialog.width(), dialog.screen()->availableGeometry().width()) << qPrintable(name);
    }
    QApplication::setFont(before);
}

TEST(PageDialogs, HaveAccessKeysOfTheirOwn)
{
    for (const QString &name : propertyPageNames()) {
        PageDialog dialog(newPropertyPage(name));
        present(dialog);
        EXPECT_EQ(sharedAccessKeys(accessCaptions(dialog)), QStringList()) << qPrintable(name);
    }
}
