// When reports reach their listeners.
#include "ado/Notifications.h"

#include <QtCore/QStringList>
#include <gtest/gtest.h>

using ADODB::Notifications;
using namespace Qt::StringLiterals;

namespace {

struct Reports : testing::Test
{
    void send(const QString &text)
    {
        notifications.send(&sender, [this, text] { heard.append(text); });
    }

    QObject sender;
    Notifications notifications;
    QStringList heard;
};

} // namespace

TEST_F(Reports, AreSentAtOnceWhenNobodyHoldsThem)
{
    send(u"a"_s);
    EXPECT_EQ(heard, QStringList(u"a"_s));
}

TEST_F(Reports, WaitForTheOutermostHoldAndKeepTheirOrder)
{
    {
        const Notifications::Hold outer(notifications);
        send(u"a"_s);
        {
            const Notifications::Hold inner(notifications);
            send(u"b"_s);
        }
        EXPECT_TRUE(heard.isEmpty());
        send(u"c"_s);
    }
    EXPECT_EQ(heard, QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(Reports, OfASenderThatIsGoneAreDropped)
{
    auto other = std::make_unique<QObject>();
    auto hold = std::make_unique<Notifications::Hold>(notifications);
    notifications.send(other.get(), [&] {
        heard.append(u"first"_s);
        other.reset();
    });
    notifications.send(other.get(), [this] { heard.append(u"second"_s); });
    hold.reset();
    EXPECT_EQ(heard, QStringList(u"first"_s));
}

TEST_F(Reports, ThatAListenerCausesAreSentBeforeThoseThatStillWait)
{
    {
        const Notifications::Hold hold(notifications);
        notifications.send(&sender, [this] {
            const Notifications::Hold inner(notifications);
            send(u"caused"_s);
        });
        send(u"waited"_s);
    }
    EXPECT_EQ(heard, QStringList({u"caused"_s, u"waited"_s}));
}

TEST(ReportsOfNobody, OutliveTheirQueue)
{
    QObject sender;
    auto notifications = std::make_unique<Notifications>();
    int heard = 0;
    {
        const Notifications::Hold hold(*notifications);
        notifications->send(&sender, [&] { ++heard; });
        notifications.reset();
    }
    EXPECT_EQ(heard, 1);
}
