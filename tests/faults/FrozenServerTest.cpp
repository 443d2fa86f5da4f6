// A server (or a connection pooler) that does not respond. Whatever the user is waiting for, windows are
// painted, Esc ends the wait, the shown result is kept, and the next command works once the server responds
// again.
#include "FrozenServer.h"

#include "../support/Dialogs.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QToolTip>

#include <memory>
#include <string_view>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

class FrozenServerReading : public FrozenServer
{
protected:
    // Of a field's name in the single-record list.
    QString toolTipOf(const QString &field) const
    {
        QWidget *const viewport = hands->list->viewport();
        const QModelIndex name = hands->list->model()->index(hands->listedRow(field), 0);
        const QPoint position = hands->list->visualRect(name).center();
        QHelpEvent help(QEvent::ToolTip, position, viewport->mapToGlobal(position));
        QCoreApplication::sendEvent(viewport, &help);
        return QToolTip::text();
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
    static std::unique_ptr<KOVAVSFDataGrid> controlOf(const QString &connection, const QString &statement)
    {
        auto other = std::make_unique<KOVAVSFDataGrid>();
        other->resize(900, 500);
        other->show();
        other->PutConnectionString(connection);
        other->PutSQLShow(statement);
        return other;
    }
    // Loads; deletes the control when the user sees that it waits, and it is time.
    static void deleteWhenItWaits(
        std::unique_ptr<KOVAVSFDataGrid> &other, const std::function<bool()> &isTime = [] { return true; })
    {
        QTimer host;
        QObject::connect(&host, &QTimer::timeout, &host, [&] {
            if (progressLine() && isTime())
                other.reset();
        });
        host.start(5);
        QElapsedTimer sinceBegin;
        sinceBegin.start();
        EXPECT_FALSE(other->IsLoadData());
        EXPECT_EQ(other, nullptr);
        EXPECT_LT(sinceBegin.elapsed(), 10'000) << "connecting has a limit of 15 s, the driver one of 45 s";
    }
};

KOVA_ON_FROZEN_SERVERS(FrozenServerReading);

} // namespace

TEST_P(FrozenServerReading, LetsTheUserCancelALoadInItsSession)
{
    ASSERT_TRUE(load());
    cancelWhileFrozen([this] { EXPECT_FALSE(load()); });
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    expectAsLoaded();
    thaw();
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_P(FrozenServerReading, LetsTheUserCancelWhileItConnects)
{
    cancelWhileFrozen([this] { EXPECT_FALSE(load()); });
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    thaw();
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_P(FrozenServerReading, LetsTheUserCancelASort)
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
TEST_P(FrozenServerReading, LetsTheUserCancelAQuestionAboutTheCatalogue)
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

// By the first question to the server, with which a load of the kind of an Oracle begins.
TEST_P(FrozenServerReading, LetsTheHostDeleteTheControlDuringALoad)
{
    auto other = controlOf(connection(), u"SELECT * FROM kept ORDER BY id"_s);
    other->PutDBType(KOVAVSFDataGrid::dbOracle);
    ASSERT_TRUE(other->IsLoadData());
    other->PutSQLShow(u"SELECT id, name FROM kept ORDER BY id"_s);
    freeze();
    deleteWhenItWaits(other);
    thaw();
    takeMessages();
}

TEST_P(FrozenServerReading, LetsTheHostDeleteTheControlWhileItConnects)
{
    auto other = controlOf(connection(), u"SELECT * FROM kept ORDER BY id"_s);
    freeze();
    deleteWhenItWaits(other);
    EXPECT_EQ(takeMessages(), QStringList());
    thaw();
    // The same login, whose first connection has no owner any more.
    EXPECT_TRUE(loadKept());
    expectKept();
}

// A long load asks for it in another session, which nobody waits for.
TEST_P(FrozenServerReading, LetsTheHostDeleteTheControlDuringAnEstimate)
{
    const bool isMariaDb = engine.server == "mariadb"sv;
    LoopbackProxy proxy(LoopbackProxy::portOf(connection()), freezeOn(isMariaDb ? "TABLE_ROWS" : "EXPLAIN"));
    auto other =
        controlOf(proxy.in(connection()),
                  isMariaDb ? u"SELECT * FROM seq_1_to_20000000"_s
                            : u"SELECT id FROM (SELECT generate_series(1, 2000000000) AS id) AS e"_s);
    deleteWhenItWaits(other, [this] { return isFrozen.load(); });
    EXPECT_TRUE(isFrozen);
    thaw();
    EXPECT_TRUE(loadKept());
    expectKept();
    EXPECT_EQ(takeMessages(), QStringList());
}

TEST_P(FrozenServerReading, LetsTheUserCancelTheFieldsOfTheFilterDialog)
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

TEST_P(FrozenServerReading, LetsTheUserCancelTheCheckOfACondition)
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
// The line of such a wait would cover the buttons of the question, and keep clicks from them.
TEST_P(FrozenServerReading, IsNotAskedForTheFieldsOfARecordDuringAQuestion)
{
    ASSERT_TRUE(loadKept());
    freeze();
    hands->click(u"SingleRecord"_s); // asks the server a little later
    bool hasWaited = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        QWidget *const line = progressLine();
        hasWaited |= line != nullptr;
        if (QWidget *const window = line ? line->window() : QApplication::activeModalWidget();
            hasWaited && window)
            QTest::keyClick(window, Qt::Key_Escape);
    });
    user.start(10);
    hands->grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger();
    EXPECT_FALSE(hasWaited);
    EXPECT_EQ(takeMessages().size(), 1) << "the question, which was answered";
    thaw();
    EXPECT_TRUE(QTest::qWaitFor([this] { return toolTipOf(u"id"_s) == u"id：不能为空"_s; }))
        << "asked afterwards";
}

TEST_P(FrozenServerReading, LetsTheUserCancelAListOfValues)
{
    ASSERT_TRUE(loadKept());
    cancelAListOfValues();
}

TEST_P(FrozenServerReading, LetsTheUserCancelAListOfValuesOfAnOwnStatement)
{
    hands->grid.PutTableType(KOVAVSFDataGrid::DefSQL);
    ASSERT_TRUE(loadKept());
    cancelAListOfValues();
}

// The values are there, and only how many more there are is not.
TEST_P(FrozenServerReading, LetsTheUserPickAValueWhileTheOthersAreCounted)
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
