#include "filter/ValueEdit.h"

#include "filter/FilterTexts.h"
#include "filter/FilterValue.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringListModel>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QPixmap arrow(const QColor &colour)
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{QPointF(9, 13), QPointF(16, 20), QPointF(23, 13)});
    return picture;
}

// A small arrow in the text's colour: the styles' own one is missing from some of them.
QIcon arrow(const QPalette &palette)
{
    QIcon icon;
    icon.addPixmap(arrow(palette.color(QPalette::Active, QPalette::Text)), QIcon::Normal);
    icon.addPixmap(arrow(palette.color(QPalette::Disabled, QPalette::Text)), QIcon::Disabled);
    return icon;
}

QString hintFor(FieldClass fieldClass)
{
    switch (fieldClass) {
    case FieldClass::Number:
        return FilterTexts::NumberHint;
    case FieldClass::Boolean:
        return FilterTexts::BooleanHint;
    case FieldClass::Date:
        return FilterTexts::DateHint;
    case FieldClass::Time:
        return FilterTexts::TimeHint;
    case FieldClass::Moment:
        return FilterTexts::MomentHint;
    default:
        return {};
    }
}

bool hasDays(FieldClass fieldClass)
{
    return fieldClass == FieldClass::Date || fieldClass == FieldClass::Moment;
}

// Without an icon theme Qt has green discs for turning the months, whatever the colours around them.
void usePlainArrows(const QCalendarWidget &calendar)
{
    if (auto *previous = calendar.findChild<QToolButton *>(u"qt_calendar_prevmonth"_s))
        previous->setArrowType(Qt::LeftArrow);
    if (auto *next = calendar.findChild<QToolButton *>(u"qt_calendar_nextmonth"_s))
        next->setArrowType(Qt::RightArrow);
}

} // namespace

ValueEdit::ValueEdit(QWidget *parent)
    : QLineEdit(parent), m_offer(addAction(arrow(palette()), QLineEdit::TrailingPosition))
{
    m_offer->setObjectName(u"actOffer"_s);
    connect(m_offer, &QAction::triggered, this, &ValueEdit::offer);
    setKind(FieldClass::Text, false);
}

void ValueEdit::setKind(FieldClass fieldClass, bool isList)
{
    m_fieldClass = fieldClass;
    m_isList = isList;
    setPlaceholderText(isList ? FilterTexts::ListHint : hintFor(fieldClass));
    m_offer->setVisible(hasDays(fieldClass) || fieldClass == FieldClass::Text ||
                        fieldClass == FieldClass::Boolean);
    m_offer->setText(hasDays(fieldClass) ? FilterTexts::PickDate : FilterTexts::PickValue); // its name
    m_offer->setToolTip(m_offer->text());
}

void ValueEdit::setMarked(bool isMarked)
{
    if (!isMarked) {
        setPalette(QPalette());
        return;
    }
    constexpr float share = 0.15f;
    const QColor base = palette().color(QPalette::Base);
    QPalette marked = palette();
    marked.setColor(QPalette::Base,
                    QColor::fromRgbF(base.redF() * (1 - share) + share, base.greenF() * (1 - share),
                                     base.blueF() * (1 - share)));
    setPalette(marked);
}

void ValueEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_offer->setIcon(arrow(palette()));
    QLineEdit::changeEvent(event);
}

void ValueEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isAltDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if ((isAltDown || event->key() == Qt::Key_F4) && m_offer->isVisible())
        offer();
    else
        QLineEdit::keyPressEvent(event);
}

void ValueEdit::offer()
{
    if (hasDays(m_fieldClass))
        offerCalendar();
    else if (m_fieldClass == FieldClass::Boolean)
        offerList({FilterTexts::Yes, FilterTexts::No});
    else if (m_readValues)
        offerList(m_readValues());
}

void ValueEdit::offerList(const QStringList &values)
{
    if (values.isEmpty())
        return;
    if (!m_list) {
        m_list = new QCompleter(this);
        m_list->setWidget(this);
        m_list->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
        m_list->setMaxVisibleItems(12);
        m_list->popup()->setObjectName(u"lstValues"_s);
        connect(m_list, qOverload<const QString &>(&QCompleter::activated), this, &ValueEdit::take);
    }
    m_list->setModel(new QStringListModel(values, m_list));
    setFocus();
    m_list->complete();
}

void ValueEdit::take(const QString &picked)
{
    if (!m_isList)
        setText(picked);
    else if (text().trimmed().isEmpty())
        setText(filterListItem(picked));
    else
        setText(text() + ", "_L1 + filterListItem(picked));
    Q_EMIT textEdited(text());
}

void ValueEdit::offerCalendar()
{
    if (!m_calendar) {
        m_calendar = new QCalendarWidget(this);
        m_calendar->setObjectName(u"calDays"_s);
        m_calendar->setWindowFlag(Qt::Popup);
        m_calendar->setLocale(QLocale(QLocale::Chinese, QLocale::China));
        m_calendar->setFirstDayOfWeek(Qt::Monday);
        m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        usePlainArrows(*m_calendar);
        connect(m_calendar, &QCalendarWidget::clicked, this, &ValueEdit::setDay);
        connect(m_calendar, &QCalendarWidget::activated, this, &ValueEdit::setDay);
    }
    if (const QDate typed = dayOf(text()); typed.isValid())
        m_calendar->setSelectedDate(typed);
    m_calendar->show(); // only now does it have its size
    m_calendar->move(placeOf(m_calendar->size()));
    m_calendar->setFocus();
}

// Below the editor, or above where the screen ends too soon.
QPoint ValueEdit::placeOf(QSize popup) const
{
    const QRect free = screen()->availableGeometry();
    QPoint place = mapToGlobal(rect().bottomLeft());
    if (place.y() + popup.height() > free.bottom())
        place.setY(mapToGlobal(rect().topLeft()).y() - popup.height());
    place.setX(std::max(free.left(), std::min(place.x(), free.right() - popup.width())));
    return place;
}

void ValueEdit::setDay(QDate day)
{
    m_calendar->close();
    // A time that stands behind the old day stays.
    static const QRegularExpression time(u" +[0-9]{1,2}:[0-9:.]+$"_s);
    const QString kept = m_isList ? QString() : time.match(text()).captured();
    take(day.toString(Qt::ISODate) + kept);
}

} // namespace KOVAVSFDataGridLib
