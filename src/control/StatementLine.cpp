#include "control/StatementLine.h"

#include "control/GridTexts.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

StatementLine::StatementLine(QWidget *parent) : QLabel(parent)
{
    setObjectName(u"lblStatement"_s);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *copyAction = new QAction(GridTexts::CopyStatement, this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &StatementLine::copy);
    addAction(copyAction);
}

void StatementLine::tell(qint64 position, qint64 count, const QString &statement)
{
    m_statement = statement;
    const QString text =
        statement.isEmpty()
            ? QString()
            : GridTexts::RecordAndStatement.arg(position).arg(count).arg(statement.simplified());
    setText(text);
    setToolTip(statement.isEmpty()
                   ? QString()
                   : u"<p style='white-space:pre-wrap'>"_s + statement.toHtmlEscaped() + u"</p>"_s);
}

QSize StatementLine::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void StatementLine::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    painter.drawItemText(rect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), shown,
                         foregroundRole());
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void StatementLine::copy()
{
    QGuiApplication::clipboard()->setText(m_statement);
}

} // namespace KOVAVSFDataGridLib
