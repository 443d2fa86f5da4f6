#pragma once

#include <QtWidgets/QPlainTextEdit>

// Lists what happened, the newest below.
class EventLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EventLog(QWidget *parent = nullptr);

    void add(const QString &line);
};
