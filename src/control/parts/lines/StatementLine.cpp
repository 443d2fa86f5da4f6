#include "control/parts/lines/StatementLine.h"

#include "control/parts/GridTexts.h"
#include "grid/WholeText.h"
#include "language/Language.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

StatementLine::StatementLine(QWidget *parent) : ElidedLabel(parent)
{
    setObjectName(u"lblStatement"_s);
    setForegroundRole(QPalette::PlaceholderText);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *copyAction = new QAction(this);
    Language::keepTranslated(*this, [copyAction] { copyAction->setText(GridTexts::CopyStatement); });
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &StatementLine::copy);
    addAction(copyAction);
}

void StatementLine::show(const QString &place, const QString &statement)
{
    // The place changes with every record.
    if (statement != m_statement)
        setToolTip(wholeTextTip(statement, *this));
    m_statement = statement;
    m_place = place;
    setText(statement.isEmpty() ? QString() : place + GridTexts::BeforeStatement + statement.simplified());
}

bool StatementLine::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return ElidedLabel::event(event);
}

void StatementLine::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        ElidedLabel::keyPressEvent(event);
}

void StatementLine::copy()
{
    QGuiApplication::clipboard()->setText(m_statement);
}

} // namespace KOVAVSFDataGridLib
