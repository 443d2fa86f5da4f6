#include "EventLog.h"

#include <QtCore/QTime>

EventLog::EventLog(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setMaximumBlockCount(500);
    setLineWrapMode(NoWrap);
}

void EventLog::add(const QString &line)
{
    appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss  ")) + line);
}
