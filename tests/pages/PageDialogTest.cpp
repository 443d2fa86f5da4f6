#include "pages/PageDialog.h"

#include "SomeControl.h"
#include "pages/PropertyPage.h"
#include "pages/PropertyPages.h"
#include "support/Dialogs.h"
#include "support/MessageAnswers.h"

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

struct ReadOnlyPageWindow : PageWindow
{
    ReadOnlyPageWindow() : PageWindow(u"RecordSource"_s) {}
};

} // namespace

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
