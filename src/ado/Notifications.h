#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>

namespace ADODB {

// Reports reach their listeners when the state that they are about is whole. While a Hold lives, reports are
// collected; the outermost one sends them in the order in which they were made. Without a Hold a report is
// sent at once.
//
// A listener may do anything, even delete whoever made the report: do nothing after send() and after the end
// of the outermost Hold that needs an object to be still there.
class Notifications
{
public:
    Notifications();
    ~Notifications();
    Q_DISABLE_COPY_MOVE(Notifications)

    // Sends a report, now or at the end of the outermost Hold. One that waits is dropped when `sender` is
    // gone by then.
    void send(QObject *sender, std::function<void()> report);

    class Hold
    {
    public:
        explicit Hold(Notifications &notifications);
        ~Hold();
        Q_DISABLE_COPY_MOVE(Hold)

    private:
        const std::shared_ptr<struct NotificationQueue> m_queue;
    };

private:
    // Shared, because a listener may delete the object that this one is part of.
    const std::shared_ptr<struct NotificationQueue> m_queue;
};

} // namespace ADODB
