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

// A server, or a pooler before one, that is there and answers nothing: its process is stopped, its
// connections stay. The table kept has the fields id, name and price, and a thousand records.
class FrozenServer : public FaultFixture
{
protected:
    void SetUp() override;
    void TearDown() override;

    void freeze() const { controlServer("freeze", engine.server); }
    void thaw() const { controlServer("thaw", engine.server); }
    // Freezes the server just before a client's first words of that kind reach it. They are not matched
    // within a longer word.
    LoopbackProxy::Filter freezeOn(const QByteArray &words);
    bool loadKept() { return load(QStringLiteral("SELECT * FROM kept ORDER BY id")); }
    QString stored(const QString &what) const;
    QStringList takeMessages();
    void expectKept() const;

    // Freezes the server and does something that waits for it. As soon as the user sees that he waits, the
    // window is asked to paint; when it has done so he presses Esc, and this returns after that.
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
