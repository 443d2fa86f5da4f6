// A server, or a pooler before one, that is there and answers nothing: its process is stopped, its
// connections stay. Whatever the user waits for then, windows are painted, Esc ends the wait, what was shown
// stays, and the next command works once the server answers again.
#include "FaultFixture.h"

#include "../support/Dialogs.h"
#include "servers/LoopbackProxy.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolBar>

#include <atomic>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// What is asked through a pooler waits for the pooler.
FaultEngine pooler()
{
    FaultEngine engine = faultEngines[0];
    engine.name = "PgBouncer";
    engine.server = "pgbouncer";
    engine.variable = "KOVA_TEST_PGBOUNCER";
    engine.oracleVariable = "KOVA_TEST_PGBOUNCER";
    return engine;
}

// Counts the paintings of a widget.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget &widget) { widget.installEventFilter(this); }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

class FrozenServer : public FaultFixture
{
protected:
    void SetUp() override
    {
        FaultFixture::SetUp();
        if (IsSkipped())
            return;
        run(u"DROP TABLE IF EXISTS kept"_s);
        run(u"CREATE TABLE kept (id INTEGER PRIMARY KEY, name VARCHAR(20), price DECIMAL(8,2))"_s);
        run(u"INSERT INTO kept SELECT g, concat('name ', g), g FROM "_s + engine.numbersTo(1000));
    }
    void TearDown() override
    {
        if (!IsSkipped())
            thaw();
        FaultFixture::TearDown();
    }
    void freeze() const { controlServer("freeze", engine.server); }
    void thaw() const { controlServer("thaw", engine.server); }
    // Freezes the server just before a client's first words of that kind reach it.
    LoopbackProxy::Filter freezeOn(const char *words)
    {
        return [this, words](LoopbackProxy::From from, const QByteArray &bytes) {
            if (from == LoopbackProxy::From::Client && bytes.toUpper().contains(words) && !isFrozen) {
                freeze();
                isFrozen = true;
            }
            return true;
        };
    }
    std::atomic<bool> isFrozen = false;
    bool loadKept() { return load(u"SELECT * FROM kept ORDER BY id"_s); }
    QString stored(const QString &what) const { return ask(u"SELECT %1 FROM kept WHERE id = 1"_s.arg(what)); }

    // Freezes the server and does something that waits for it. As soon as the user sees that he waits, the
    // window is asked to paint; when it has done so he presses Esc, and this returns after that.
    void cancelWhileFrozen(const std::function<void()> &action)
    {
        freeze();
        QWidget &shown = *(hands->isSingleRecordShown() ? hands->list : hands->table)->viewport();
        Paintings paintings(shown);
        int before = -1;
        QElapsedTimer sinceEscape;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            QWidget *const line = progressLine();
            if (sinceEscape.isValid() || !line)
                return;
            if (before < 0) {
                before = paintings.count();
                shown.update();
            } else if (paintings.count() > before) {
                sinceEscape.start();
                QTest::keyClick(line->window(), Qt::Key_Escape);
            }
        });
        user.start(10);
        action();
        ASSERT_TRUE(sinceEscape.isValid()) << "nothing could be cancelled";
        RecordProperty("milliseconds", static_cast<int>(sinceEscape.elapsed()));
        EXPECT_LT(sinceEscape.elapsed(), 3000) << "the rest is for a machine that is busy with other things";
        EXPECT_EQ(progressLine(), nullptr);
    }
    static QWidget *progressLine()
    {
        for (QWidget *widget : QApplication::allWidgets()) {
            if (qobject_cast<QProgressBar *>(widget) && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void expectKept() const
    {
        EXPECT_EQ(hands->rows(), 1000);
        EXPECT_EQ(hands->texts(u"name"_s).first(), u"name 1"_s);
        EXPECT_TRUE(hands->table->isEnabled());
    }
    // The values that the user writes into the record that is listed, in the order of its fields.
    void write(const QString &field, const QString &text)
    {
        if (!hands->isSingleRecordShown())
            hands->click(u"SingleRecord"_s);
        hands->list->setCurrentIndex(hands->list->model()->index(hands->listedRow(field), 1));
        hands->list->setFocus();
        QTest::keyClick(hands->list, Qt::Key_F2);
        hands->edit->clear();
        compose(*hands->edit, text);
        QTest::keyClick(hands->edit, Qt::Key_Return);
    }
    void cancelAListOfValues()
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            part<QComboBox>(dialog, "cmbField1").setCurrentText(u"price"_s);
            auto &value = part<QLineEdit>(dialog, "txtValue1");
            Paintings paintings(dialog);
            const auto open = [&] { QTest::keyClick(&value, Qt::Key_F4); };
            const auto listed = [] {
                const auto *list = qobject_cast<QAbstractItemView *>(QApplication::activePopupWidget());
                return list ? list->model()->index(0, 0).data().toString() : QString();
            };
            freeze();
            open();
            EXPECT_EQ(listed(), u"正在读取…（Esc 取消）"_s);
            const int before = paintings.count();
            dialog.update();
            EXPECT_TRUE(QTest::qWaitFor([&] { return paintings.count() > before; }));
            QElapsedTimer sinceEscape;
            sinceEscape.start();
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            EXPECT_LT(sinceEscape.elapsed(), 3000)
                << "the rest is for a machine that is busy with other things";
            EXPECT_TRUE(dialog.isVisible());
            thaw();
            open();
            EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == u"1.00"_s; })) << qUtf8Printable(listed());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            dialog.reject();
        }});
        hands->click(u"Filter"_s);
        EXPECT_EQ(takeMessages(), QStringList());
        expectKept();
    }
    QStringList takeMessages()
    {
        const QStringList texts = hands->messages.texts();
        hands->messages.clear();
        return texts;
    }
};

const QString cancelled = u"操作已取消。"_s;

} // namespace

INSTANTIATE_TEST_SUITE_P(Servers, FrozenServer, testing::Values(faultEngines[0], faultEngines[1], pooler()),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(FrozenServer, LetsTheUserCancelALoadInItsSession)
{
    ASSERT_TRUE(load());
    cancelWhileFrozen([this] { EXPECT_FALSE(load()); });
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    expectAsLoaded();
    thaw();
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_P(FrozenServer, LetsTheUserCancelWhileItConnects)
{
    cancelWhileFrozen([this] { EXPECT_FALSE(load()); });
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    thaw();
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_P(FrozenServer, LetsTheUserCancelASort)
{
    ASSERT_TRUE(loadKept());
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"name"_s}); }});
    cancelWhileFrozen([this] { hands->click(u"Sort"_s); });
    EXPECT_EQ(takeMessages(), QStringList());
    expectKept();
    thaw();
    hands->click(u"ToFullTable"_s);
    expectKept();
}

// Which are the fields of an Oracle's statement, asked before it is opened.
TEST_P(FrozenServer, LetsTheUserCancelAQuestionAboutTheCatalogue)
{
    ASSERT_TRUE(loadKept());
    hands->grid.PutConnectionString(engine.oracleConnection());
    hands->grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    cancelWhileFrozen([this] { EXPECT_FALSE(loadKept()); });
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    expectKept();
    thaw();
    EXPECT_TRUE(loadKept());
    expectKept();
}

TEST_P(FrozenServer, LetsTheUserCancelTheFieldsOfTheFilterDialog)
{
    ASSERT_TRUE(loadKept());
    QString notice;
    WindowAnswers dialogs({[&](QDialog &dialog) {
        notice = part<QLabel>(dialog, "lblNotice").text();
        dialog.reject();
    }});
    cancelWhileFrozen([this] { hands->click(u"Filter"_s); });
    EXPECT_TRUE(notice.contains(cancelled)) << qUtf8Printable(notice);
    expectKept();
    EXPECT_EQ(takeMessages(), QStringList());
}

TEST_P(FrozenServer, LetsTheUserCancelTheCheckOfACondition)
{
    ASSERT_TRUE(loadKept());
    QString notice;
    WindowAnswers dialogs({[&](QDialog &dialog) {
        cancelWhileFrozen([&] { Hands::filter(dialog, u"id > 990"_s); });
        notice = part<QLabel>(dialog, "lblNotice").text();
        EXPECT_TRUE(dialog.isVisible()) << "Esc ended the wait and not the dialog";
        thaw();
        Hands::filter(dialog, u"id > 990"_s);
    }});
    hands->click(u"Filter"_s);
    EXPECT_EQ(notice, cancelled);
    EXPECT_EQ(hands->rows(), 10);
    EXPECT_EQ(takeMessages(), QStringList());
}

// They are read in a thread of their own, so the dialog does not even wait.
TEST_P(FrozenServer, LetsTheUserCancelAListOfValues)
{
    ASSERT_TRUE(loadKept());
    cancelAListOfValues();
}

TEST_P(FrozenServer, LetsTheUserCancelAListOfValuesOfAnOwnStatement)
{
    hands->grid.PutTableType(KOVAVSFDataGrid::DefSQL);
    ASSERT_TRUE(loadKept());
    cancelAListOfValues();
}

TEST_P(FrozenServer, LetsTheUserCancelAnEdit)
{
    ASSERT_TRUE(loadKept());
    write(u"name"_s, u"mine"_s);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    const QStringList texts = takeMessages();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.front(), u"记录没有保存："_s + cancelled) << "nothing was committed yet";
    ASSERT_TRUE(hands->isSingleRecordShown()) << "the record is not left";
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s) << "what he wrote is still there";
    thaw();
    EXPECT_EQ(stored(u"name"_s), u"name 1"_s);
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(stored(u"name"_s), u"mine"_s);
}

TEST_P(FrozenServer, LetsTheUserCancelANewRecord)
{
    ASSERT_TRUE(loadKept());
    hands->choose(8, 1);
    write(u"id"_s, u"2000"_s);
    write(u"name"_s, u"new"_s);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    const QStringList texts = takeMessages();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.front(), u"记录没有保存："_s + cancelled);
    thaw();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"1000"_s);
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(ask(u"SELECT name FROM kept WHERE id = 2000"_s), u"new"_s);
    EXPECT_EQ(hands->rows(), 1001);
}

TEST_P(FrozenServer, LetsTheUserCancelADeletion)
{
    ASSERT_TRUE(loadKept());
    hands->messages.answerNext(QMessageBox::Yes);
    cancelWhileFrozen([this] { hands->choose(9, 1); });
    const std::vector<ShownMessage> shown = hands->messages.shown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_TRUE(shown.back().cause.contains(cancelled)) << qUtf8Printable(shown.back().cause);
    hands->messages.clear();
    expectKept();
    thaw();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"1000"_s);
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 1);
    hands->messages.clear();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"999"_s);
    EXPECT_EQ(hands->rows(), 999);
}

// What the host does meanwhile neither disturbs a change nor gets lost in it.
TEST_P(FrozenServer, LetsTheHostReadButNotChangeMeanwhile)
{
    ASSERT_TRUE(loadKept());
    write(u"name"_s, u"mine"_s);
    QStringList read;
    int rows = -1;
    QTimer host;
    QObject::connect(&host, &QTimer::timeout, &host, [&] {
        if (!progressLine() || rows >= 0)
            return;
        read = hands->texts(u"name"_s);
        hands->grid.Clear();
        hands->grid.ClearObject();
        EXPECT_FALSE(hands->grid.IsLoadData());
        hands->grid.LocateSelRecord(5);
        hands->grid.SetSortFN();
        rows = hands->rows();
    });
    host.start(5);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    EXPECT_EQ(rows, 1000);
    EXPECT_EQ(read.size(), 1000);
    const QStringList texts = takeMessages();
    EXPECT_EQ(texts, QStringList(u"记录没有保存："_s + cancelled)) << qUtf8Printable(texts.join(u'|'));
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s);
    expectKept();
}

// A control that goes while it saves leaves the rest to the thread that waits.
TEST_P(FrozenServer, LetsTheHostDeleteTheControlMeanwhile)
{
    auto other = std::make_unique<KOVAVSFDataGrid>();
    other->resize(900, 500);
    other->show();
    other->PutConnectionString(connection());
    other->PutSQLShow(u"SELECT * FROM kept ORDER BY id"_s);
    ASSERT_TRUE(other->IsLoadData());
    QObject *field = nullptr;
    QMetaObject::invokeMethod(other->RecordSet(), "Fields", Q_RETURN_ARG(QObject *, field),
                              Q_ARG(QString, u"name"_s));
    ASSERT_TRUE(field);
    ASSERT_TRUE(field->setProperty("Value", u"gone"_s));
    freeze();
    QTimer host;
    QObject::connect(&host, &QTimer::timeout, &host, [&] {
        if (!progressLine() || !other)
            return;
        other.reset();
        thaw();
    });
    host.start(5);
    other->findChild<QAction *>(u"Sort"_s)->trigger(); // which saves first
    EXPECT_EQ(other, nullptr);
    takeMessages();
    // Whatever became of it, it is whole and nothing holds it.
    EXPECT_TRUE(QStringList({u"name 1"_s, u"gone"_s}).contains(stored(u"name"_s)));
}

// The values are there, and only how many more there are is not.
TEST_P(FrozenServer, LetsTheUserPickAValueWhileTheOthersAreCounted)
{
    LoopbackProxy proxy(LoopbackProxy::portOf(connection()), freezeOn("COUNT(DISTINCT"));
    hands->grid.PutConnectionString(proxy.in(connection()));
    ASSERT_TRUE(loadKept());
    WindowAnswers dialogs({[&](QDialog &dialog) {
        part<QComboBox>(dialog, "cmbField1").setCurrentText(u"price"_s);
        QTest::keyClick(&part<QLineEdit>(dialog, "txtValue1"), Qt::Key_F4);
        const auto first = [] {
            const auto *list = qobject_cast<QAbstractItemView *>(QApplication::activePopupWidget());
            return list ? list->model()->index(0, 0).data().toString() : QString();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return first() == u"1.00"_s && isFrozen; }))
            << qUtf8Printable(first());
        QElapsedTimer sinceEscape;
        sinceEscape.start();
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_LT(sinceEscape.elapsed(), 3000) << "the rest is for a machine that is busy with other things";
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(dialog.isVisible());
        thaw();
        dialog.reject();
    }});
    hands->click(u"Filter"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    expectKept();
    hands->grid.PutConnectionString(connection());
    ASSERT_TRUE(loadKept());
}
