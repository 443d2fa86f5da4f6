#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>

namespace ADODB {

// Sends reports to listeners only when the state is consistent. While a Hold exists, reports are collected.
// The outermost Hold sends them in their original order. Without a Hold a report is sent immediately.
//
// A listener may do anything, and may even delete the sender. So don't use any object after send() or after
// the end of the outermost Hold.
class Notifications
{
public:
    Notifications();
    ~Notifications();
    Q_DISABLE_COPY_MOVE(Notifications)

    // Sends a report, now or at the end of the outermost Hold. A waiting report is dropped if `sender` was
    // deleted in the meantime.
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
