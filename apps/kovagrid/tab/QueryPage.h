#pragma once

#include "start/Options.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class ConnectionEdit;
class KOVAVSFDataGrid;
class QComboBox;
class QLineEdit;
class QToolButton;
class StatementEdit;

// One tab: the form above, the grid below.
class QueryPage : public QWidget
{
    Q_OBJECT

public:
    explicit QueryPage(const Options &options, QWidget *parent = nullptr);
    ~QueryPage() override;

    // Sets the grid's properties from the form. The grid reports immediately if it can't parse the statement.
    void setUpGrid();
    // Loads and sets the focus to the grid. Returns false if it failed; the grid has shown the reason.
    bool load();
    // Does both, like the button. If the connection opened, it is added to the recent ones.
    void loadForm();
    // Fills the form with a statement for a table and loads it.
    void openTable(const QString &name);
    // Closes the result. Returns false if the user wants to stay with unsaved changes.
    bool closeResult();

    KOVAVSFDataGrid *grid() const { return m_grid; }
    StatementEdit *statement() const { return m_sql; }
    // Shows the current cell's value. The page deletes it; the window decides where it is.
    QWidget *valuePane() const { return m_valuePane; }
    QString connection() const;
    void setConnection(const QString &connection);
    qint32 dbType() const;
    double secondsOfLastLoad() const { return m_seconds; }
    // A short caption for the tab.
    QString caption() const;

Q_SIGNALS:
    void loaded();
    // The user wants to see the value pane.
    void valueWanted();

private:
    QWidget *makeForm();
    QWidget *makeFurtherFields(const Options &options);
    void showRecent();

    KOVAVSFDataGrid *m_grid;
    ConnectionEdit *m_connection;
    QToolButton *m_recent;
    QComboBox *m_dbType;
    StatementEdit *m_sql;
    QLineEdit *m_part;
    QLineEdit *m_sort;
    QWidget *m_further;
    QPointer<QWidget> m_valuePane;
    qint32 m_tableType;
    double m_seconds = 0;
};
