#pragma once

#include <KOVAVSFDataGrid>

#include <QtCore/QPointer>
#include <QtWidgets/QPlainTextEdit>

// Lists what happened, the newest below.
class EventLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EventLog(QWidget *parent = nullptr);

    void add(const QString &line);
    // Adds each event of the grid from now on while this log can be seen. At other times it is not connected:
    // what a double click does depends on whether somebody listens.
    void listenTo(const KOVAVSFDataGrid &grid);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectTo(const KOVAVSFDataGrid &grid);

    QList<QPointer<const KOVAVSFDataGrid>> m_grids;
};
