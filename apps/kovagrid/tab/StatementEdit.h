#pragma once

#include <QtWidgets/QPlainTextEdit>

// A box of some lines for a statement. Ctrl+Enter runs it; a name that is dropped goes to where it is
// dropped.
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
