#include "tab/StatementEdit.h"

#include "HostTexts.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QKeyEvent>

using namespace Qt::StringLiterals;

StatementEdit::StatementEdit(const QString &statement, QWidget *parent) : QPlainTextEdit(statement, parent)
{
    setObjectName(u"statement"_s);
    setTabChangesFocus(true);
    setPlaceholderText(HostTexts::StatementHint());
}

QSize StatementEdit::sizeHint() const
{
    constexpr int lines = 3;
    const int height = lines * QFontMetrics(font()).lineSpacing();
    return {QPlainTextEdit::sizeHint().width(),
            height + static_cast<int>(2 * document()->documentMargin()) + 2 * frameWidth()};
}

void StatementEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() & Qt::ControlModifier)
        Q_EMIT runRequested();
    else
        QPlainTextEdit::keyPressEvent(event);
}
