#include "ado/Notifications.h"

#include <QtCore/QPointer>

#include <deque>
#include <exception>

namespace ADODB {

struct NotificationQueue
{
    struct Report
    {
        QPointer<QObject> sender;
        std::function<void()> send;
    };

    int holds = 0;
    std::deque<Report> waiting;
};

Notifications::Notifications() : m_queue(std::make_shared<NotificationQueue>()) {}

Notifications::~Notifications() = default;

void Notifications::send(QObject *sender, std::function<void()> report)
{
    if (m_queue->holds == 0)
        report();
    else
        m_queue->waiting.push_back({sender, std::move(report)});
}

Notifications::Hold::Hold(Notifications &notifications) : m_queue(notifications.m_queue)
{
    ++m_queue->holds;
}

// A listener may hold and send reports too; those are sent before the reports still waiting here.
Notifications::Hold::~Hold()
{
    if (--m_queue->holds > 0)
        return;
    std::deque<NotificationQueue::Report> reports;
    reports.swap(m_queue->waiting);
    for (const auto &report : reports) {
        try {
            if (report.sender)
                report.send();
        } catch (const std::exception &error) {
            qWarning("A listener threw: %s", error.what());
        }
    }
}

} // namespace ADODB
