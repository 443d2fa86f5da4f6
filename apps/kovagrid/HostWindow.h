#pragma once

#include "Options.h"

#include <QtCore/QDateTime>
#include <QtWidgets/QMainWindow>

class ConnectionEdit;
class EventLog;
class KOVAVSFDataGrid;
class QComboBox;
class QDockWidget;
class QLabel;
class QLineEdit;

// A form with the grid on it: what to load above, the record's picture and the raised events below.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(const Options &options);
    ~HostWindow() override;

    // Hands what stands in the form to the grid, which tells at once of a statement it can't make out.
    void setUpGrid();
    // Loads it and gives it the keyboard. False when it could not be loaded; the grid has shown the user why.
    bool load();
    // Both, as the button does.
    void loadForm();
    KOVAVSFDataGrid *grid() const { return m_grid; }
    double secondsOfLastLoad() const { return m_seconds; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *makeForm(const Options &options);
    void makeDocks();
    void makeMenus();
    void listenToGrid();
    void showPicture();

    KOVAVSFDataGrid *m_grid;
    ConnectionEdit *m_connection;
    QComboBox *m_dbType;
    QLineEdit *m_sql;
    QLineEdit *m_part;
    QLineEdit *m_sort;
    QLabel *m_picture;
    EventLog *m_log;
    QList<QDockWidget *> m_docks;
    qint32 m_tableType;
    double m_seconds = 0;
    const QDateTime m_started = QDateTime::currentDateTime();
};
