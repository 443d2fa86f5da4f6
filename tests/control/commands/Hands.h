#pragma once

#include <KOVAVSFDataGrid>

#include "support/ExpectedWarnings.h"
#include "support/MessageAnswers.h"
#include "support/WindowAnswers.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>

namespace KovaTest {

// A control on the screen over a database, and the hands of a person who uses it.
class Hands
{
public:
    Hands(const QString &connectionString, qint32 dbType);
    ~Hands();
    Q_DISABLE_COPY_MOVE(Hands)

    // Leaves the history with one entry and all fields shown.
    bool load(const QString &statement, const QString &part);

    // A click of the left button on the toolbar button, which must be there to be seen.
    void click(const QString &key);
    // A click of the right button on a cell, and one of the left on a menu item.
    void choose(int item, int row, int col = 1);
    void clickCell(int row, int col, Qt::MouseButton button = Qt::LeftButton);

    // What Ctrl+H lists: the statements of the history, newest first.
    QStringList historyEntries();
    // A click on Filter that a handler of the host's answers with its own condition.
    void answerFilter(const QString &condition);

    QAction *button(const QString &key) const;
    bool isPressed(const QString &key) const { return button(key)->isChecked(); }
    bool isSingleRecordShown() const { return list->isVisible(); }

    // What the shown columns head and hold.
    QStringList columns() const;
    // The shown texts of a column, from the first row on.
    QStringList texts(const QString &column) const;
    int rows() const { return table->model()->rowCount(); }
    // The latest entry of the history, as the line below the grid tells it.
    QString statement() const;
    // The value beside a field name in the single-record list; Null if the field is not listed.
    QString listed(const QString &field) const;
    int listedRow(const QString &field) const; // in the list's model, -1 if there is none

    // Replaces a field's value in the single-record list, which is opened if necessary; Enter confirms it.
    // False if the field can't be edited.
    bool writeListed(const QString &field, const QString &text, bool isConfirmed = true);

    // Answers for the dialogs.
    static void tick(QDialog &dialog, const QStringList &fields);
    static void sort(QDialog &dialog, const QStringList &fields, bool isDescending = false);
    static void find(QDialog &dialog, const QString &words, const QString &field = {});
    static void filter(QDialog &dialog, const QString &condition);
    static void cancel(QDialog &dialog);

    KOVAVSFDataGrid grid;
    QTableView *table;
    QTableView *list;
    QLineEdit *edit;
    QToolBar *toolbar;
    QLabel *pageLabel;
    MessageAnswers messages;
    ExpectedWarning noRaise{QStringLiteral("does not support raise()")};
    ExpectedWarning noGrab{QStringLiteral("does not support grabbing the keyboard")};
};

} // namespace KovaTest
