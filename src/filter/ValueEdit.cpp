#include "filter/ValueEdit.h"

#include "filter/DayCalendar.h"
#include "filter/FilterTexts.h"
#include "filter/conditions/FilterValue.h"
#include "language/GroupedNumber.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QStringListModel>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>

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

// A small arrow in the text's colour, because some styles lack one.
QIcon arrow(const QPalette &palette)
{
    QIcon icon;
    icon.addPixmap(arrow(palette.color(QPalette::Active, QPalette::Text)), QIcon::Normal);
    icon.addPixmap(arrow(palette.color(QPalette::Disabled, QPalette::Text)), QIcon::Disabled);
    return icon;
}

// Lines of text, to distinguish it from the arrow that opens a calendar.
QPixmap lines(const QColor &colour)
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(colour, 3, Qt::SolidLine, Qt::RoundCap));
    for (const int y : {10, 16, 22})
        painter.drawLine(8, y, 24, y);
    return picture;
}

QIcon lines(const QPalette &palette)
{
    QIcon icon;
    icon.addPixmap(lines(palette.color(QPalette::Active, QPalette::Text)), QIcon::Normal);
    icon.addPixmap(lines(palette.color(QPalette::Disabled, QPalette::Text)), QIcon::Disabled);
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

// The same for a box without room for it; it fits into comfortableWidth(). Empty if there is none.
QString shortHintFor(FieldClass fieldClass)
{
    return fieldClass == FieldClass::Date     ? u"2024-01-31"_s
           : fieldClass == FieldClass::Moment ? u"2024-01-31 08:30"_s
                                              : QString();
}

} // namespace

ValueEdit::ValueEdit(QWidget *parent)
    : QLineEdit(parent),
      m_offer(addAction(arrow(palette()), QLineEdit::TrailingPosition)),
      m_offerValues(addAction(lines(palette()), QLineEdit::TrailingPosition))
{
    m_offer->setObjectName(u"actOffer"_s);
    m_offerValues->setObjectName(u"actValues"_s);
    connect(m_offerValues, &QAction::triggered, this, &ValueEdit::offerValues);
    connect(m_offer, &QAction::triggered, this, &ValueEdit::offer);
    connect(this, &QLineEdit::textEdited, this, &ValueEdit::dropLineEnd);
    setKind(FieldClass::Text, false);
}

void ValueEdit::writeTexts()
{
    m_offer->setText(m_offerText); // its accessible name
    m_offer->setToolTip(m_whyNoValues.isEmpty() ? m_offerText : m_whyNoValues);
    m_offerValues->setText(FilterTexts::PickValueOfDays);
    m_offerValues->setToolTip(FilterTexts::PickValueOfDays);
}

void ValueEdit::setKind(FieldClass fieldClass, bool isList, const QString &whyNoValues)
{
    m_whyNoValues = whyNoValues;
    m_fieldClass = fieldClass;
    m_isList = isList;
    m_hint = isList ? QString(FilterTexts::ListHint) : hintFor(fieldClass);
    const bool hasValues = (m_askForValues || m_readValues) && fieldClass != FieldClass::Other;
    m_offer->setVisible(hasDays(fieldClass) || fieldClass == FieldClass::Text ||
                        fieldClass == FieldClass::Boolean || hasValues);
    m_offer->setEnabled(whyNoValues.isEmpty());
    m_offerValues->setVisible(hasValues && hasDays(fieldClass));
    m_offerText = hasDays(fieldClass) ? FilterTexts::PickDate : FilterTexts::PickValue;
    writeTexts();
    showHint();
}

void ValueEdit::setCount()
{
    setKind(FieldClass::Other, false); // a number of values, whatever the field's type
    m_hint = FilterTexts::CountHint;
    showHint();
}

void ValueEdit::showHint()
{
    const QString shorter = m_isList ? QString() : shortHintFor(m_fieldClass);
    const bool hasRoom = widthFor(m_hint) <= width();
    setPlaceholderText(hasRoom || shorter.isEmpty() ? m_hint : shorter);
}

// A cell copied from a spreadsheet ends with a line break that is not part of the value.
void ValueEdit::dropLineEnd()
{
    const auto isAfterBreak = [this] {
        const QString typed = text();
        return cursorPosition() == typed.size() && (typed.endsWith(u'\n') || typed.endsWith(u'\r'));
    };
    while (!m_isList && isAfterBreak())
        backspace();
}

int ValueEdit::comfortableWidth() const
{
    const QString longest = m_fieldClass == FieldClass::Moment ? u"2024-12-30 20:00:00"_s
                            : m_fieldClass == FieldClass::Date ? u"2024-12-30"_s
                                                               : u"0000000000"_s;
    return widthFor(longest + u' ');
}

// What is beside the text has the same width for all.
int ValueEdit::widthFor(const QString &text) const
{
    const QFontMetrics metrics = fontMetrics();
    return minimumSizeHint().width() - metrics.maxWidth() + metrics.horizontalAdvance(text);
}

void ValueEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    showHint();
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
    if (event->type() == QEvent::PaletteChange) {
        m_offer->setIcon(arrow(palette()));
        m_offerValues->setIcon(lines(palette()));
    }
    QLineEdit::changeEvent(event);
}

void ValueEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isAltDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    const bool isShifted = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->key() == Qt::Key_F4 && isShifted && m_offerValues->isVisible())
        offerValues();
    else if ((isAltDown || event->key() == Qt::Key_F4) && m_offer->isVisible() && m_offer->isEnabled())
        offer();
    else
        QLineEdit::keyPressEvent(event);
}

void ValueEdit::offer()
{
    if (hasDays(m_fieldClass))
        offerCalendar();
    else if (m_fieldClass == FieldClass::Boolean)
        offerList({.values = {FilterTexts::Yes, FilterTexts::No}});
    else
        offerValues();
}

void ValueEdit::offerValues()
{
    if (m_readValues)
        return offerList(m_readValues());
    if (!m_askForValues)
        return;
    m_isAsking = true;
    m_askForValues();
}

void ValueEdit::makeList()
{
    m_list = new QCompleter(this);
    m_list->setWidget(this);
    m_list->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_list->setMaxVisibleItems(12);
    m_list->popup()->setObjectName(u"lstValues"_s);
    m_list->popup()->installEventFilter(this);
    connect(m_list, qOverload<const QModelIndex &>(&QCompleter::activated), this,
            [this](const QModelIndex &picked) { pick(picked.row()); });
}

void ValueEdit::offerList(const ListedValues &list)
{
    QStringList entries = list.shown.isEmpty() ? list.values : list.shown;
    if (!list.end.isEmpty())
        entries.append(list.end);
    if (entries.isEmpty())
        return;
    if (!m_list)
        makeList();
    m_listed = list.values;
    {
        const QScopedValueRollback<bool> refilling(m_isRefilling, true);
        const int current = m_list->popup()->isVisible() ? m_list->popup()->currentIndex().row() : -1;
        m_list->setModel(new QStringListModel(entries, m_list));
        setFocus();
        m_list->complete();
        if (current >= 0) // values are only added
            m_list->popup()->setCurrentIndex(m_list->completionModel()->index(current, 0));
    }
}

void ValueEdit::showReading()
{
    if (m_isAsking)
        offerList({.end = FilterTexts::ReadingValues});
}

void ValueEdit::showValues(const OfferedValues &values)
{
    if (!m_isAsking)
        return;
    QString end;
    if (values.hasMore)
        end =
            values.left > 0 ? FilterTexts::MoreValuesLeft.arg(grouped(values.left)) : FilterTexts::MoreValues;
    if (values.values.isEmpty() && m_list)
        m_list->popup()->hide();
    offerList({.values = values.values, .end = end});
}

void ValueEdit::pick(int row)
{
    if (row < m_listed.size()) {
        take(m_listed.at(row));
    } else if (!m_listed.isEmpty() && m_askForValues) {
        // Delayed, because the list is about to close.
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isAsking = true;
                Q_EMIT moreWanted();
            },
            Qt::QueuedConnection);
    }
}

bool ValueEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && !m_isRefilling && m_isAsking) {
        m_isAsking = false;
        Q_EMIT listClosed();
    }
    return QLineEdit::eventFilter(watched, event);
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

// A value that is stored must be a fixed day; a filter can also contain a relative one.
void ValueEdit::offerCalendar()
{
    if (!m_calendar) {
        m_calendar = new DayCalendar(
            m_readValues ? DayCalendar::Offers::Today : DayCalendar::Offers::RelativeDays, this);
        connect(m_calendar, &DayCalendar::dayPicked, this, &ValueEdit::setDay);
        connect(m_calendar, &DayCalendar::wordPicked, this, &ValueEdit::take);
    }
    m_calendar->open(*this, dayOf(text()));
}

void ValueEdit::setDay(QDate day)
{
    // A time after the old date is kept.
    static const QRegularExpression time(u" +[0-9]{1,2}:[0-9:.]+$"_s);
    const QString kept = m_isList ? QString() : time.match(text()).captured();
    take(day.toString(Qt::ISODate) + kept);
}

} // namespace KOVAVSFDataGridLib
