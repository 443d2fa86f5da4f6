// Actions of a host while a dialog is open or in an event, in the middle of a command. The command ends: an
// answer meant for one result is never applied to another.
#include "Shop.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "support/Dialogs.h"

#include <QtCore/QPointer>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// A dialog of the control, and how a user answers it.
struct Question
{
    const char *key;
    void (*answer)(QDialog &dialog);
};

class HostMeanwhile : public Shop, public testing::WithParamInterface<Question>
{
public:
    static void find(QDialog &dialog) { Shop::find(dialog, u"茶"_s); }
    static void filter(QDialog &dialog) { Shop::filter(dialog, u"ID > 9"_s); }
    static void tick(QDialog &dialog) { Shop::tick(dialog, {u"ID"_s}); }
    static void sort(QDialog &dialog) { Shop::sort(dialog, {u"ID"_s}, true); }

protected:
    // Presses the button, runs the host's action while the dialog is open, and answers it.
    void ask(const std::function<void()> &host)
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            host();
            GetParam().answer(dialog);
        }});
        click(QString::fromLatin1(GetParam().key));
        EXPECT_TRUE(messages.texts().isEmpty()) << qUtf8Printable(messages.texts().join(u'|'));
    }
    // The same in the full-screen viewer.
    void askInViewer(const std::function<void()> &host)
    {
        WindowAnswers dialogs({[&](QDialog &viewer) {
                                   auto *buttons = viewer.findChild<QToolBar *>(u"Toolbar1"_s);
                                   auto *action =
                                       buttons->findChild<QAction *>(QString::fromLatin1(GetParam().key));
                                   QTest::mouseClick(buttons->widgetForAction(action), Qt::LeftButton);
                                   EXPECT_FALSE(viewer.isVisible()) << "the visit has ended";
                               },
                               [&](QDialog &dialog) {
                                   host();
                                   GetParam().answer(dialog);
                               }});
        click(u"FullScreen"_s);
        EXPECT_TRUE(messages.texts().isEmpty()) << qUtf8Printable(messages.texts().join(u'|'));
    }
    void loadOrders()
    {
        grid.PutSQLShow(u"SELECT ID FROM 订单"_s);
        EXPECT_TRUE(grid.IsLoadData());
    }
    void expectOrders()
    {
        EXPECT_EQ(statement(), u"SELECT ID FROM 订单"_s);
        EXPECT_EQ(rows(), 1);
        EXPECT_EQ(columns(), QStringList(u"ID"_s));
        EXPECT_TRUE(isPressed(u"All"_s));
        click(u"ToPreview"_s);
        EXPECT_EQ(statement(), u"SELECT ID FROM 订单"_s) << "the only entry of the history";
    }
};

INSTANTIATE_TEST_SUITE_P(Dialogs, HostMeanwhile,
                         testing::Values(Question{"Sort", HostMeanwhile::sort},
                                         Question{"SelField", HostMeanwhile::tick},
                                         Question{"Filter", HostMeanwhile::filter},
                                         Question{"QuickFilter", HostMeanwhile::find}),
                         [](const auto &question) { return std::string(question.param.key); });

class InTheViewer : public HostMeanwhile
{
};

INSTANTIATE_TEST_SUITE_P(Dialogs, InTheViewer,
                         testing::Values(Question{"Sort", HostMeanwhile::sort},
                                         Question{"SelField", HostMeanwhile::tick},
                                         Question{"Filter", HostMeanwhile::filter}),
                         [](const auto &question) { return std::string(question.param.key); });

} // namespace

TEST_P(HostMeanwhile, LoadsAnotherResult)
{
    ASSERT_TRUE(load());
    ask([this] { loadOrders(); });
    expectOrders();
}

TEST_P(HostMeanwhile, LoadsTheSameAgain)
{
    ASSERT_TRUE(load());
    ask([this] { EXPECT_TRUE(load()); });
    EXPECT_EQ(statement(), statementOfAll());
    EXPECT_EQ(rows(), records);
}

TEST_P(HostMeanwhile, ClearsTheControl)
{
    ASSERT_TRUE(load());
    ask([this] { grid.Clear(); });
    EXPECT_EQ(texts(u"ID"_s).join(QString()), QString());
    EXPECT_TRUE(load());
    EXPECT_EQ(rows(), records);
}

TEST_P(HostMeanwhile, ReleasesEverything)
{
    ASSERT_TRUE(load());
    ask([this] { grid.ClearObject(); });
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_TRUE(load());
    EXPECT_EQ(rows(), records);
}

TEST_P(HostMeanwhile, GivesAnotherConnection)
{
    ASSERT_TRUE(load());
    ask([this] { grid.PutConnectionString(u"Data Source=elsewhere.db"_s); });
    EXPECT_EQ(statement(), QString()) << "the history of the old one is gone for good";
    EXPECT_EQ(rows(), records) << "what is shown stays until the next load";
}

TEST_P(InTheViewer, LoadsAnotherResult)
{
    ASSERT_TRUE(load());
    askInViewer([this] { loadOrders(); });
    expectOrders();
}

TEST_P(InTheViewer, ReleasesEverything)
{
    ASSERT_TRUE(load());
    askInViewer([this] { grid.ClearObject(); });
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_TRUE(load());
    EXPECT_EQ(rows(), records);
}

namespace {

// Does something each time before a message box is answered.
struct BeforeAnswer : QObject
{
    explicit BeforeAnswer(std::function<void()> act) : m_act(std::move(act))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(watched))
            m_act();
        return false;
    }

private:
    std::function<void()> m_act;
};

class HostMeanwhileDeleting : public Shop
{
protected:
    void remove(int row, std::function<void()> host)
    {
        const BeforeAnswer before(std::move(host));
        messages.answerNext(QMessageBox::Yes);
        choose(9, row);
        EXPECT_EQ(messages.texts(), QStringList(u"确实要删除该记录?"_s));
    }
    QString count(const QString &source) const { return database.ask(u"SELECT count(*) FROM "_s + source); }
};

} // namespace

TEST_F(HostMeanwhileDeleting, MovesToAnotherRecordWhichStays)
{
    ASSERT_TRUE(load());
    remove(5, [this] { QMetaObject::invokeMethod(grid.RecordSet(), "MoveLast"); });
    EXPECT_EQ(count(u"商品"_s), u"12"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(HostMeanwhileDeleting, LoadsAnotherResultWhoseRecordsStay)
{
    ASSERT_TRUE(load());
    remove(1, [this] {
        grid.PutSQLShow(u"SELECT ID FROM 订单"_s);
        EXPECT_TRUE(grid.IsLoadData());
    });
    EXPECT_EQ(count(u"商品"_s), u"12"_s);
    EXPECT_EQ(count(u"订单"_s), u"1"_s);
}

// The control is destroyed while a command runs.
class HostDestroys : public Shop
{
protected:
    HostDestroys()
    {
        other = new KOVAVSFDataGrid;
        other->resize(900, 400);
        other->show();
        other->PutConnectionString(database.connectionString());
        other->PutSQLShow(statementOfAll());
        EXPECT_TRUE(other->IsLoadData());
    }
    void press(const QString &key) { other->findChild<QAction *>(key)->trigger(); }

    QPointer<KOVAVSFDataGrid> other;
};

TEST_F(HostDestroys, TheControlWhenItIsAskedForAFilter)
{
    QObject::connect(other, &KOVAVSFDataGrid::QurryFilter, other, [this] { delete other; });
    press(u"Filter"_s);
    EXPECT_FALSE(other);
}

TEST_F(HostDestroys, TheControlWhenItIsNotifiedOfOtherFields)
{
    QObject::connect(other, &KOVAVSFDataGrid::ShowFieldsChange, other, [this] { delete other; });
    WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, {u"ID"_s}); }});
    press(u"SelField"_s);
    EXPECT_FALSE(other);
}

TEST_F(HostDestroys, TheControlWhenARecordIsSavedOnTheWayToAnother)
{
    KOVAVSFDataGrid *const control = other;
    ASSERT_NE(control, nullptr);
    auto *const data = control->findChild<ADODB::Adodc *>();
    data->Recordset()->AddNew();
    data->Recordset()->Fields().Item(1).PutValue(u"x"_s);
    QObject::connect(data, &ADODB::Adodc::RecordChangeComplete, control, [this] { delete other; });
    EXPECT_TRUE(control->LocateSelRecord(5));
    EXPECT_FALSE(other);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), u"13"_s);
}

TEST_F(HostDestroys, TheControlUnderTheViewer)
{
    WindowAnswers dialogs({[this](QDialog &) { delete other; }});
    press(u"FullScreen"_s);
    EXPECT_FALSE(other);
}
