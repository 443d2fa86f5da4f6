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

// One tab: what to load above, the grid below.
class QueryPage : public QWidget
{
    Q_OBJECT

public:
    explicit QueryPage(const Options &options, QWidget *parent = nullptr);
    ~QueryPage() override;

    // Hands what stands in the form to the grid, which tells at once of a statement it can't make out.
    void setUpGrid();
    // Loads it and gives it the keyboard. False when it could not be loaded; the grid has shown the user why.
    bool load();
    // Both, as the button does; a connection that opened is kept among the recent ones.
    void loadForm();
    // Puts a statement for a table into the form and loads it.
    void openTable(const QString &name);
    // Releases the result. False when the user stays with unsaved changes.
    bool closeResult();

    KOVAVSFDataGrid *grid() const { return m_grid; }
    StatementEdit *statement() const { return m_sql; }
    // Shows the value of the current cell. The page deletes it; a window puts it where it has room.
    QWidget *valuePane() const { return m_valuePane; }
    QString connection() const;
    void setConnection(const QString &connection);
    qint32 dbType() const;
    double secondsOfLastLoad() const { return m_seconds; }
    // A few words for the tab.
    QString caption() const;

Q_SIGNALS:
    void loaded();
    // The user asks for the pane of the value.
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
