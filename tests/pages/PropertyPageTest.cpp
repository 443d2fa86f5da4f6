#include "pages/PropertyPage.h"

#include "SomeControl.h"
#include "pages/ConnectionString.h"
#include "pages/PropertyPages.h"
#include "support/Dialogs.h"
#include "support/MessageAnswers.h"
#include "support/WindowAnswers.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

#include <memory>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct SimplePage
{
    const char *name;
    const char *textBox;
    const char *property;
};

void PrintTo(const SimplePage &page, std::ostream *out)
{
    *out << page.name;
}

// The pages whose property can be written, all of one pattern.
struct EachPage : testing::TestWithParam<SimplePage>
{
    EachPage()
    {
        control.setProperty(GetParam().property, u"old"_s);
        page->SetSelectedControls({&control});
        page->show();
    }
    QLineEdit &text() const { return part<QLineEdit>(*page, GetParam().textBox); }
    QString value() const { return control.property(GetParam().property).toString(); }

    SomeControl control;
    std::unique_ptr<PropertyPage> page{newPropertyPage(QLatin1StringView(GetParam().name))};
};

INSTANTIATE_TEST_SUITE_P(
    Pages, EachPage,
    testing::Values(SimplePage{"ConnectionString", "txtConnectionString", "ConnectionString"},
                    SimplePage{"SQLShow", "txtSQLShow", "SQLShow"},
                    SimplePage{"PartDisplayField", "txtSQLPartDisplay", "SQLPartDisplay"}),
    [](const auto &each) { return std::string(each.param.name); });

void type(QLineEdit &text, const QString &typed)
{
    text.selectAll();
    QTest::keyClicks(&text, typed);
}

} // namespace

TEST_P(EachPage, ShowsTheProperty)
{
    EXPECT_EQ(page->objectName(), QLatin1StringView(GetParam().name));
    EXPECT_EQ(text().text(), u"old"_s);
    EXPECT_FALSE(page->Changed());
}

TEST_P(EachPage, ALongTextIsShownFromItsBeginning)
{
    control.setProperty(GetParam().property, u"select a from T "_s.repeated(50));
    page->SelectionChanged();
    EXPECT_EQ(text().cursorPosition(), 0);
}

TEST_P(EachPage, InAFrameNarrowerThanItWishesNothingIsCutOff)
{
    const QSize narrow(page->sizeHint().width() * 4 / 5, page->sizeHint().height());
    page->resize(narrow);
    QCoreApplication::processEvents();
    EXPECT_EQ(page->size(), narrow);
    for (const QWidget *part : page->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(page->rect().contains(part->geometry())) << part->objectName().toStdString();
}

TEST_P(EachPage, TypingMarksItChangedAndWritesNothing)
{
    const QSignalSpy changed(page.get(), &PropertyPage::ChangedChanged);
    type(text(), u"new"_s);
    EXPECT_TRUE(page->property("Changed").toBool());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(value(), u"old"_s);
}

TEST_P(EachPage, ApplyChangesWritesTheText)
{
    type(text(), u"new"_s);
    EXPECT_TRUE(page->ApplyChanges());
    EXPECT_EQ(value(), u"new"_s);
    EXPECT_FALSE(page->Changed());
}

TEST_P(EachPage, SelectionChangedShowsThePropertyAgain)
{
    type(text(), u"lost"_s);
    control.setProperty(GetParam().property, u"other"_s);
    page->SelectionChanged();
    EXPECT_EQ(text().text(), u"other"_s);
    EXPECT_FALSE(page->Changed());
}

TEST_P(EachPage, TheFirstOfSeveralControlsIsUsed)
{
    SomeControl first;
    first.setProperty(GetParam().property, u"first"_s);
    page->SetSelectedControls({&first, &control});
    EXPECT_EQ(text().text(), u"first"_s);
    type(text(), u"new"_s);
    page->ApplyChanges();
    EXPECT_EQ(first.property(GetParam().property), u"new"_s);
    EXPECT_EQ(value(), u"old"_s);
}

TEST_P(EachPage, WorksOnAnObjectWithPropertiesOfItsOwnMaking)
{
    QObject object;
    object.setProperty(GetParam().property, u"dynamic"_s);
    page->SetSelectedControls({&object});
    EXPECT_EQ(text().text(), u"dynamic"_s);
    type(text(), u"new"_s);
    EXPECT_TRUE(page->ApplyChanges());
    EXPECT_EQ(object.property(GetParam().property), u"new"_s);
}

TEST_P(EachPage, WithoutAControlThereIsNothingToEdit)
{
    page->SetSelectedControls({});
    EXPECT_TRUE(text().text().isEmpty());
    EXPECT_FALSE(text().isEnabled());
    EXPECT_FALSE(page->ApplyChanges());
}

TEST_P(EachPage, OutlivesItsControl)
{
    {
        QObject object;
        page->SetSelectedControls({&object});
    }
    type(text(), u"new"_s);
    EXPECT_FALSE(page->ApplyChanges());
}

TEST_P(EachPage, LinesOfATextSurvive)
{
    control.setProperty(GetParam().property, u"one\ntwo"_s);
    page->SelectionChanged();
    page->ApplyChanges();
    EXPECT_EQ(value(), u"one\ntwo"_s);
}

TEST_P(EachPage, AnEditorsOwnWayToWriteIsTaken)
{
    QString written;
    page->SetWriter([&](QObject &object, const QString &property, const QVariant &value) {
        EXPECT_EQ(&object, &control);
        written = property + u'=' + value.toString();
    });
    type(text(), u"new"_s);
    EXPECT_TRUE(page->ApplyChanges());
    EXPECT_EQ(written, QLatin1StringView(GetParam().property) + u"=new"_s);
    EXPECT_EQ(value(), u"old"_s);
}

namespace {

struct RecordSourcePage : testing::Test
{
    RecordSourcePage()
    {
        control.recordSource = u"select * from T"_s;
        page->SetSelectedControls({&control});
        page->show();
    }
    QLineEdit &text() const { return part<QLineEdit>(*page, "txtRecordSource"); }

    SomeControl control;
    std::unique_ptr<PropertyPage> page{newPropertyPage(u"RecordSource"_s)};
    MessageAnswers messages;
};

} // namespace

TEST_F(RecordSourcePage, ShowsTheStatement)
{
    EXPECT_EQ(text().text(), u"select * from T"_s);
    EXPECT_FALSE(page->Changed());
}

TEST_F(RecordSourcePage, ApplyingAChangedTextIsRefusedWithAMessage)
{
    text().setText(u"select 1"_s); // by program
    EXPECT_FALSE(page->ApplyChanges());
    EXPECT_EQ(messages.texts(), QStringList(u"RecordSource is read-only and can't be changed here."_s));
    EXPECT_EQ(control.recordSource, u"select * from T"_s);
    EXPECT_EQ(text().text(), u"select 1"_s);
    EXPECT_TRUE(page->Changed());
}

TEST_F(RecordSourcePage, LooksAsReadOnlyAsItIs)
{
    type(text(), u"select 1"_s);
    EXPECT_EQ(text().text(), u"select * from T"_s);
    EXPECT_TRUE(text().isReadOnly());
    EXPECT_TRUE(text().isEnabled()) << "it can be copied";
    const auto base = [this] { return text().palette().color(QPalette::Base); };
    EXPECT_EQ(base(), page->palette().color(QPalette::Window));
    QObject object;
    page->SetSelectedControls({&object});
    EXPECT_FALSE(text().isReadOnly());
    EXPECT_EQ(base(), page->palette().color(QPalette::Base));
}

TEST_F(RecordSourcePage, ApplyingTheSameTextIsNoFault)
{
    type(text(), u"select * from T"_s);
    EXPECT_TRUE(page->ApplyChanges());
    EXPECT_TRUE(messages.shown().empty());
    EXPECT_FALSE(page->Changed());
}

TEST_F(RecordSourcePage, IsWrittenOnAControlThatAllowsIt)
{
    QObject object;
    page->SetSelectedControls({&object});
    type(text(), u"select 1"_s);
    EXPECT_TRUE(page->ApplyChanges());
    EXPECT_EQ(object.property("RecordSource"), u"select 1"_s);
}

namespace {

struct ConnectionPage : testing::Test
{
    ConnectionPage()
    {
        control.connectionString = u"DSN=old"_s;
        page.SetSelectedControls({&control});
        page.show();
    }
    QLineEdit &text() const { return part<QLineEdit>(page, "txtConnectionString"); }

    SomeControl control;
    ConnectionString page;
};

} // namespace

TEST_F(ConnectionPage, TakesOverWhatWasBuilt)
{
    QString present;
    page.SetBuilder([&](QWidget *, const QString &given) {
        present = given;
        return std::optional(u"DSN=new"_s);
    });
    press(page, "cmd_link");
    EXPECT_EQ(present, u"DSN=old"_s);
    EXPECT_EQ(text().text(), u"DSN=new"_s);
    EXPECT_TRUE(page.Changed());
    EXPECT_EQ(control.connectionString, u"DSN=old"_s);
}

TEST_F(ConnectionPage, ACancelledBuilderChangesNothing)
{
    page.SetBuilder([](QWidget *, const QString &) { return std::optional<QString>(); });
    press(page, "cmd_link");
    EXPECT_EQ(text().text(), u"DSN=old"_s);
    EXPECT_FALSE(page.Changed());
}

TEST_F(ConnectionPage, WithoutABuilderTheButtonSaysWhyItIsDisabled)
{
    EXPECT_FALSE(part(page, "cmd_link").isEnabled());
    EXPECT_EQ(part(page, "cmd_link").toolTip(),
              u"No connection builder is available here; type the connection string."_s);
}

TEST_F(ConnectionPage, TheWholeStringIsShownInADialogAndTakenFromIt)
{
    WindowAnswers windows({[](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), u"Dialog_SQLST"_s);
        EXPECT_EQ(part<QLineEdit>(dialog, "Text_SQL").text(), u"DSN=old"_s);
        press(dialog, "Check_AllowEd");
        type(part<QLineEdit>(dialog, "Text_SQL"), u"DSN=new"_s);
        press(dialog, "OKButton");
    }});
    press(page, "Cmd_SSC");
    EXPECT_EQ(text().text(), u"DSN=new"_s);
    EXPECT_TRUE(page.Changed());
}

TEST_F(ConnectionPage, LookingAtTheWholeStringChangesNothing)
{
    WindowAnswers windows({[](QDialog &dialog) { press(dialog, "OKButton"); }});
    press(page, "Cmd_SSC");
    EXPECT_FALSE(page.Changed());
}

TEST(PropertyPages, AreTheFourInTheirOrder)
{
    EXPECT_EQ(propertyPageNames(),
              QStringList({u"ConnectionString"_s, u"RecordSource"_s, u"SQLShow"_s, u"PartDisplayField"_s}));
    EXPECT_EQ(newPropertyPage(u"SQLSort"_s), nullptr);
}
