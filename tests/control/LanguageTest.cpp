// The language of the texts that users read.
#include "GridFixture.h"

#include "support/MessageAnswers.h"
#include "support/WindowAnswers.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// All texts that a window has for its user, in a fixed order.
QStringList textsOf(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    for (const QObject *part : window.findChildren<QObject *>()) {
        for (const char *property : {"text", "title", "toolTip", "accessibleName", "accessibleDescription",
                                     "placeholderText", "plainText", "windowTitle"})
            texts.append(part->property(property).toString());
        if (const auto *box = qobject_cast<const QComboBox *>(part)) {
            for (int i = 0; i < box->count(); ++i)
                texts.append(box->itemText(i));
        }
        if (const auto *tabs = qobject_cast<const QTabWidget *>(part)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.append(tabs->tabText(i));
        }
        const auto *view = qobject_cast<const QAbstractItemView *>(part);
        for (int i = 0; view && view->model() && i < view->model()->columnCount(); ++i)
            texts.append(view->model()->headerData(i, Qt::Horizontal).toString());
    }
    texts.removeAll(QString());
    return texts;
}

void expectNoChinese(const QStringList &texts, const std::string &where)
{
    static const QRegularExpression chinese(u"[\\x{2e80}-\\x{9fff}\\x{ff00}-\\x{ffef}]"_s);
    for (const QString &text : texts)
        EXPECT_FALSE(text.contains(chinese)) << where << ": " << qPrintable(text);
}

// Translates the host's own texts, and all texts of Qt itself.
class HostTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QLatin1StringView name(context);
        return name == "Host"_L1 || name.startsWith(u'Q') ? u"host: "_s + QLatin1StringView(source)
                                                          : QString();
    }
    bool isEmpty() const override { return false; }
};

struct Language : GridFixture
{
    Language()
        : GridFixture(u"CREATE TABLE Orders (ID INTEGER PRIMARY KEY, Name TEXT, Price REAL, Sold INTEGER);"
                      "INSERT INTO Orders VALUES (1,'Tea',2.5,4),(2,'Rice',1,NULL),(3,'Silk',99.9,1)"_s)
    {
    }
    // It is the application's, and other tests come after this one.
    ~Language() override { grid.PutLanguage({}); }

    QAction *button(const QString &key) const
    {
        return part<QToolBar>("Toolbar1")->findChild<QAction *>(key);
    }
    QAction *menuItem(int index) const
    {
        return grid.findChild<QAction *>(u"PopMnuDataAction%1"_s.arg(index));
    }
    // Windows are notified by an event.
    void speak(const QString &name)
    {
        grid.PutLanguage(name);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool loadOrders() { return load(u"select * from Orders"_s, u"select ID,Name from Orders"_s); }
};

} // namespace

TEST_F(Language, IsChineseUnlessTheHostChoosesAnother)
{
    EXPECT_EQ(grid.Language(), u"zh-CN"_s);
    EXPECT_EQ(button(u"Filter"_s)->text(), u"筛选"_s);
    QSignalSpy written(&grid, &KOVAVSFDataGrid::PropertyChanged);
    EXPECT_TRUE(grid.setProperty("Language", u"en"_s));
    EXPECT_EQ(grid.property("Language").toString(), u"en"_s);
    EXPECT_EQ(written.value(0).value(0).toString(), u"Language"_s);
    grid.PutLanguage(u"zh-CN"_s);
    EXPECT_EQ(grid.Language(), u"zh-CN"_s);
}

TEST_F(Language, IsChosenByAnyNameOfIt)
{
    for (const QString &name : {u"en"_s, u"en_GB"_s, u"en-US"_s}) {
        grid.PutLanguage(name);
        EXPECT_EQ(grid.Language(), u"en"_s) << qPrintable(name);
        grid.PutLanguage(u"zh"_s);
        EXPECT_EQ(grid.Language(), u"zh-CN"_s) << qPrintable(name);
    }
    grid.PutLanguage(u"en"_s);
    for (const QString &name : {u"fr"_s, u"nonsense"_s, u"C"_s}) {
        QSignalSpy written(&grid, &KOVAVSFDataGrid::PropertyChanged);
        grid.PutLanguage(name);
        EXPECT_EQ(grid.Language(), u"en"_s) << qPrintable(name);
        EXPECT_EQ(written.count(), 0) << qPrintable(name);
    }
    grid.PutLanguage({});
    EXPECT_EQ(grid.Language(), u"zh-CN"_s);
}

TEST_F(Language, ChangesTheOpenControlAndBackToTheLastByte)
{
    ASSERT_TRUE(loadOrders());
    const QStringList chinese = textsOf(grid);
    speak(u"en"_s);
    expectNoChinese(textsOf(grid), "the control");
    EXPECT_EQ(button(u"Filter"_s)->text(), u"Filter"_s);
    EXPECT_EQ(button(u"Filter"_s)->toolTip(), u"Filter the records by conditions (Ctrl+Shift+F)"_s);
    EXPECT_EQ(menuItem(1)->text(), u"&All Fields\tCtrl+1"_s);
    EXPECT_EQ(menuItem(9)->text(), u"&Delete Record"_s);
    EXPECT_EQ(part<QLabel>("lblFieldCount")->text(), u"Page 1 of 1, at most 999999 records"_s);
    EXPECT_TRUE(part<QLabel>("lblStatement")->text().startsWith(u"Record 1 of 3  select"_s))
        << qPrintable(part<QLabel>("lblStatement")->text());
    speak(u"zh-CN"_s);
    EXPECT_EQ(textsOf(grid), chinese);
}

TEST_F(Language, IsThatOfAllControls)
{
    KOVAVSFDataGrid other;
    other.PutLanguage(u"en"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.Language(), u"en"_s);
    EXPECT_EQ(button(u"Sort"_s)->text(), u"Sort"_s);
    KOVAVSFDataGrid later;
    expectNoChinese(textsOf(later), "a new control");
}

TEST_F(Language, CanComeFromATranslatorOfTheHost)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QLocale(QLocale::English), u"KOVAVSFDataGridLib"_s, u"_"_s,
                                u":/KOVAVSFDataGridLib/translations"_s));
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.Language(), u"en"_s);
    EXPECT_EQ(button(u"Sort"_s)->text(), u"Sort"_s);
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.Language(), u"zh-CN"_s);
    EXPECT_EQ(button(u"Sort"_s)->text(), u"排序"_s);
}

TEST_F(Language, AHostsOwnTranslatorStaysBesideIt)
{
    HostTranslator host;
    QCoreApplication::installTranslator(&host);
    QCoreApplication::processEvents();
    const auto hostsText = [] { return QCoreApplication::translate("Host", "Orders"); };
    MessageAnswers messages;
    const auto answersOfABox = [&] {
        messages.clear();
        grid.RestoreFilters(u"?"_s);
        return messages.shown().empty() ? QStringList() : messages.shown().front().captions;
    };
    EXPECT_EQ(grid.Language(), u"zh-CN"_s) << "it has no words for the control";
    EXPECT_EQ(answersOfABox(), QStringList(u"确定"_s));
    for (int round = 0; round < 2; ++round) {
        speak(u"en"_s);
        EXPECT_EQ(grid.Language(), u"en"_s);
        EXPECT_EQ(button(u"Sort"_s)->text(), u"Sort"_s);
        EXPECT_EQ(answersOfABox(), QStringList(u"OK"_s));
        expectNoChinese(messages.texts(), "the box");
        EXPECT_EQ(hostsText(), u"host: Orders"_s);
        speak(u"zh-CN"_s);
        EXPECT_EQ(button(u"Sort"_s)->text(), u"排序"_s);
        EXPECT_EQ(answersOfABox(), QStringList(u"确定"_s));
        EXPECT_EQ(hostsText(), u"host: Orders"_s);
    }
    speak(u"en"_s);
    QCoreApplication::removeTranslator(&host);
    QCoreApplication::processEvents();
    EXPECT_EQ(button(u"Sort"_s)->text(), u"Sort"_s) << "it is the control's own English";
    EXPECT_EQ(hostsText(), u"Orders"_s);
}

TEST_F(Language, IsThatOfEveryDialog)
{
    ASSERT_TRUE(loadOrders());
    speak(u"en"_s);
    click(1, 2);
    int dialogs = 0;
    for (const QString &key : {u"Filter"_s, u"QuickFilter"_s, u"SelField"_s, u"Sort"_s, u"FullScreen"_s}) {
        WindowAnswers answers({[&](QDialog &dialog) {
            expectNoChinese(textsOf(dialog), key.toStdString());
            EXPECT_LE(dialog.minimumSizeHint().width(), 800) << key.toStdString();
            ++dialogs;
            dialog.reject();
        }});
        button(key)->trigger();
    }
    for (const int index : {21, 22}) { // export, print
        WindowAnswers answers({[&](QDialog &dialog) {
            expectNoChinese(textsOf(dialog), std::to_string(index));
            ++dialogs;
            dialog.reject();
        }});
        menuItem(index)->trigger();
    }
    EXPECT_EQ(dialogs, 7);
    menuItem(28)->trigger(); // the value viewer, which doesn't block
    auto *viewer = grid.findChild<QDialog *>(u"ValueDialog"_s);
    ASSERT_TRUE(viewer);
    expectNoChinese(textsOf(*viewer), "value");
    menuItem(27)->trigger(); // the bar for finding
    button(u"SingleRecord"_s)->trigger();
    expectNoChinese(textsOf(grid), "the control");
}

TEST_F(Language, IsThatOfMessagesOfTheDatabaseToo)
{
    speak(u"en"_s);
    MessageAnswers messages;
    grid.PutConnectionString(u"Provider=SQLite;Data Source=/no/such/file.db"_s);
    EXPECT_FALSE(loadOrders());
    ASSERT_EQ(messages.shown().size(), 2U);
    EXPECT_EQ(messages.shown().front().text, u"Error: Database file not found: /no/such/file.db"_s);
    EXPECT_EQ(messages.shown().back().text, u"Cannot open the database."_s);
    EXPECT_EQ(messages.shown().front().captions, QStringList{u"OK"_s});
}

TEST_F(Language, OfConditionsInForceFollows)
{
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [this](qint32 &cancel, const QString &) {
        cancel = 0;
        grid.PutPassQurryFilter(u"Name LIKE '%i%' AND Sold IS NOT NULL"_s);
    });
    ASSERT_TRUE(loadOrders());
    button(u"Filter"_s)->trigger();
    EXPECT_TRUE(textsOf(grid).contains(u"Name 包含“i”  ✕"_s)) << qPrintable(textsOf(grid).join(u'\n'));
    speak(u"en"_s);
    EXPECT_TRUE(textsOf(grid).contains(u"Name contains \"i\"  ✕"_s));
    EXPECT_TRUE(textsOf(grid).contains(u"Remove condition: Sold is not empty"_s));
    expectNoChinese(textsOf(grid), "the control");
}
