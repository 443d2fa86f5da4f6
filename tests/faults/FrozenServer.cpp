#include "FrozenServer.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressBar>

#include <cctype>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

bool containsWord(const QByteArray &bytes, const QByteArray &word)
{
    const QByteArray text = bytes.toUpper();
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at == 0 || !std::isalpha(static_cast<unsigned char>(text.at(at - 1))))
            return true;
    }
    return false;
}

} // namespace

bool Paintings::eventFilter(QObject *, QEvent *event)
{
    m_count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
}

std::vector<FaultEngine> enginesToFreeze()
{
    // What is asked through a pooler waits for the pooler.
    FaultEngine pooler = faultEngines[0];
    pooler.name = "PgBouncer";
    pooler.server = "pgbouncer";
    pooler.variable = "KOVA_TEST_PGBOUNCER";
    pooler.oracleVariable = "KOVA_TEST_PGBOUNCER";
    return {faultEngines[0], faultEngines[1], pooler};
}

void FrozenServer::SetUp()
{
    FaultFixture::SetUp();
    if (IsSkipped())
        return;
    OdbcSession(connection())
        .run({u"DROP TABLE IF EXISTS kept"_s,
              u"CREATE TABLE kept (id INTEGER PRIMARY KEY, name VARCHAR(20), price DECIMAL(8,2))"_s,
              u"INSERT INTO kept SELECT g, concat('name ', g), g FROM "_s + engine.numbersTo(1000)});
}

void FrozenServer::TearDown()
{
    if (!IsSkipped())
        thaw();
    FaultFixture::TearDown();
}

LoopbackProxy::Filter FrozenServer::freezeOn(const QByteArray &words)
{
    return [this, words](LoopbackProxy::From from, const QByteArray &bytes) {
        if (from == LoopbackProxy::From::Client && !isFrozen && containsWord(bytes, words)) {
            freeze();
            isFrozen = true;
        }
        return true;
    };
}

QString FrozenServer::stored(const QString &what) const
{
    return ask(u"SELECT %1 FROM kept WHERE id = 1"_s.arg(what));
}

QStringList FrozenServer::takeMessages()
{
    const QStringList texts = hands->messages.texts();
    hands->messages.clear();
    return texts;
}

void FrozenServer::expectKept() const
{
    EXPECT_EQ(hands->rows(), 1000);
    EXPECT_EQ(hands->texts(u"name"_s).first(), u"name 1"_s);
    EXPECT_TRUE(hands->table->isEnabled());
}

void FrozenServer::cancelWhileFrozen(const std::function<void()> &action)
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

QWidget *FrozenServer::progressLine()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (qobject_cast<QProgressBar *>(widget) && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace KovaTest
