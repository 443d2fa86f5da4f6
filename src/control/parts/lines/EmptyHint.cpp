#include "control/parts/lines/EmptyHint.h"

#include "control/parts/GridTexts.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

EmptyHint::EmptyHint(QAbstractScrollArea &view) : QLabel(&view), m_view(view), m_add(new QPushButton(&view))
{
    setObjectName(QStringLiteral("lblEmpty"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setForegroundRole(QPalette::PlaceholderText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_add->setObjectName(QStringLiteral("cmdAddFirst"));
    m_add->setAutoDefault(false);
    connect(m_add, &QPushButton::clicked, this, [this] {
        m_view.setFocus(); // the button disappears
        Q_EMIT addWanted();
    });
    view.viewport()->installEventFilter(this);
    hide();
    m_add->hide();
}

void EmptyHint::showText(const QString &text)
{
    m_offersToAdd = false;
    setText(text);
    place();
}

void EmptyHint::showNoRecords(bool canGoBack, bool canAdd)
{
    m_offersToAdd = canAdd && !canGoBack;
    m_add->setText(GridTexts::AddFirst);
    setText(canGoBack ? GridTexts::NoRecordsFound : canAdd ? GridTexts::AddFirstHint : GridTexts::NoRecords);
    place();
}

bool EmptyHint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::place()
{
    const QRect area = m_view.viewport()->geometry();
    setGeometry(area);
    setVisible(!text().isEmpty() && height() >= fontMetrics().height());
    // The button is below the text, which stays centred.
    const QSize size = m_add->sizeHint();
    const int lines = heightForWidth(area.width());
    QRect button({}, size);
    button.moveCenter(area.center());
    button.moveTop(area.center().y() + lines / 2 + fontMetrics().height() / 2);
    m_add->setGeometry(button);
    m_add->setVisible(m_offersToAdd && isVisibleTo(&m_view) && area.contains(button));
    m_add->raise();
}

} // namespace KOVAVSFDataGridLib
