#pragma once

#include <QtWidgets/QPlainTextEdit>

// A multi-line editor for a statement. Ctrl+Enter runs
// it; a name can be dropped anywhere in the text.
class StatementEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit StatementEdit(const QString &statement, QWidget *parent = nullptr);

    QString statement() const { return toPlainText(); }
    QSize sizeHint() const override;

Q_SIGNALS:
    void runRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
