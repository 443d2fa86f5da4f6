#pragma once

#include "FaultFixture.h"

#include "servers/LoopbackProxy.h"

#include <atomic>
#include <functional>

class QWidget;

namespace KovaTest {

// Counts the paintings of a widget.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget &widget) { widget.installEventFilter(this); }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_count = 0;
};

// A server, or a connection pooler before it, that accepts connections but does not respond, because its
// process is stopped. The table kept has the fields id, name and price, and a thousand records.
class FrozenServer : public FaultFixture
{
protected:
    void SetUp() override;
    void TearDown() override;

    void freeze() const { controlServer("freeze", engine.server); }
    void thaw() const { controlServer("thaw", engine.server); }
    // Freezes the server just before it receives these words from a client for the first time. They match
    // only whole words.
    LoopbackProxy::Filter freezeOn(const QByteArray &words);
    bool loadKept() { return load(QStringLiteral("SELECT * FROM kept ORDER BY id")); }
    QString stored(const QString &what) const;
    QStringList takeMessages();
    void expectKept() const;

    // Freezes the server and runs an action that waits for it. When the progress line is visible, requests a
    // repaint and then presses Esc. Returns after that.
    void cancelWhileFrozen(const std::function<void()> &action);
    // What the user sees of a wait; null where he sees none.
    static QWidget *progressLine();

    std::atomic<bool> isFrozen = false; // by freezeOn()
    const QString cancelled = QStringLiteral("操作已取消。");
};

std::vector<FaultEngine> enginesToFreeze();

} // namespace KovaTest

#define KOVA_ON_FROZEN_SERVERS(suite)                                                                        \
    INSTANTIATE_TEST_SUITE_P(Servers, suite, testing::ValuesIn(KovaTest::enginesToFreeze()),                 \
                             [](const auto &engine) { return std::string(engine.param.name); })
