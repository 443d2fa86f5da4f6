#include "control/parts/lines/EmptyHint.h"

#include "control/parts/GridTexts.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractScrollArea>

namespace KOVAVSFDataGridLib {

EmptyHint::EmptyHint(QAbstractScrollArea &view) : QLabel(&view), m_view(view)
{
    setObjectName(QStringLiteral("lblEmpty"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setForegroundRole(QPalette::PlaceholderText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view.viewport()->installEventFilter(this);
    hide();
}

void EmptyHint::showText(const QString &text)
{
    setText(text);
    place();
}

void EmptyHint::showNoRecords(bool canGoBack, bool canAdd)
{
    showText(canGoBack ? GridTexts::NoRecordsFound : canAdd ? GridTexts::AddFirstHint : GridTexts::NoRecords);
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::place()
{
    setGeometry(m_view.viewport()->geometry());
    setVisible(!text().isEmpty() && height() >= fontMetrics().height());
}

} // namespace KOVAVSFDataGridLib
