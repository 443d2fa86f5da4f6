#pragma once

#include <QtWidgets/QPlainTextEdit>

class KOVAVSFDataGrid;

// Lists what happened, the newest below.
class EventLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EventLog(QWidget *parent = nullptr);

    void add(const QString &line);
    // Adds each event of the grid from now on while this log can be seen.
    void listenTo(const KOVAVSFDataGrid &grid);
};
