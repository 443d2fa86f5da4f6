#include "control/parts/lines/StatementLine.h"

#include "control/parts/GridTexts.h"
#include "grid/WholeText.h"
#include "language/Language.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>

#include <algorithm>

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

void StatementLine::show(const QStringList &places, const QString &statement)
{
    // The place changes with every record.
    if (statement != m_statement)
        setToolTip(uncutTextTip(statement));
    m_statement = statement;
    m_places = statement.isEmpty() ? QStringList() : places;
    setText(statement.isEmpty() ? QString() : place() + GridTexts::BeforeStatement + statement.simplified());
}

int StatementLine::widthOfPlace() const
{
    return fontMetrics().horizontalAdvance(place());
}

int StatementLine::smallestWidth() const
{
    return m_places.isEmpty() ? 0 : fontMetrics().horizontalAdvance(m_places.constLast());
}

QString StatementLine::shownText() const
{
    QString all = ElidedLabel::shownText();
    if (m_places.isEmpty() || all.startsWith(place()))
        return all;
    const auto fitting = std::ranges::find_if(
        m_places, [this](const QString &text) { return fontMetrics().horizontalAdvance(text) <= width(); });
    return fitting == m_places.end() ? fontMetrics().elidedText(m_places.constLast(), Qt::ElideRight, width())
                                     : *fitting;
}

bool StatementLine::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ToolTip && !m_statement.isEmpty()) {
        showWholeText(m_statement, static_cast<QHelpEvent *>(event)->globalPos(), *this, {});
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
