#pragma once

#include "start/Options.h"

#include <QtWidgets/QMainWindow>

class EventLog;
class KOVAVSFDataGrid;
class PicturePane;
class QDockWidget;
class QStackedWidget;
class QTabWidget;
class QueryPage;
class TableList;

// Tabs, each with a statement and its result, surrounded by panes for the tables, the record's picture and
// the raised events.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HostWindow(const Options &options);
    ~HostWindow() override;

    // From now on, the positions of the window's parts and the column layouts are saved for the user.
    void rememberSettings();
    QueryPage *page() const;
    KOVAVSFDataGrid *grid() const;
    // Opens a database file in a new tab and shows its first table.
    void openFile(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeDocks();
    void makeMenus();
    void fitToScreen();
    QueryPage *addPage(const Options &options);
    void addEmptyPage();
    void closePage(int index);
    void showPage();
    void chooseFile();
    void focusNextPart();

    QTabWidget *m_tabs;
    TableList *m_tables;
    PicturePane *m_picture;
    EventLog *m_log;
    QStackedWidget *m_values; // for the tabs
    QList<QDockWidget *> m_docks;
    bool m_remembersSettings = false;
};
