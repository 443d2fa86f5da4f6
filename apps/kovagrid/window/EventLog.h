#pragma once

#include <KOVAVSFDataGrid>

#include <QtCore/QPointer>
#include <QtWidgets/QPlainTextEdit>

// Lists the events, newest last.
class EventLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EventLog(QWidget *parent = nullptr);

    void add(const QString &line);
    // Logs the grid's events while this log is visible. At other times it is not connected, because the
    // effect of a double click depends on whether the host handles the event.
    void listenTo(const KOVAVSFDataGrid &grid);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectTo(const KOVAVSFDataGrid &grid);

    QList<QPointer<const KOVAVSFDataGrid>> m_grids;
};
