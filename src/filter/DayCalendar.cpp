#include "filter/DayCalendar.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterDays.h"
#include "language/Language.h"

#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 4; // of the buttons for words

// Without an icon theme, Qt's arrows for changing the month are green, whatever the palette.
void usePlainArrows(const QCalendarWidget &calendar)
{
    if (auto *previous = calendar.findChild<QToolButton *>(u"qt_calendar_prevmonth"_s))
        previous->setArrowType(Qt::LeftArrow);
    if (auto *next = calendar.findChild<QToolButton *>(u"qt_calendar_nextmonth"_s))
        next->setArrowType(Qt::RightArrow);
}

} // namespace

DayCalendar::DayCalendar(Offers offers, QWidget *parent)
    : QCalendarWidget(parent), m_offers(offers), m_words(new QWidget(this))
{
    setObjectName(u"calDays"_s);
    setWindowFlag(Qt::Popup);
    setVerticalHeaderFormat(NoVerticalHeader);
    usePlainArrows(*this);
    auto *grid = new QGridLayout(m_words);
    grid->setContentsMargins({});
    grid->setSpacing(0);
    const auto words = m_offers == Offers::Today ? 1 : static_cast<int>(relativeDayWords().size());
    for (int place = 0; place < words; ++place) {
        m_buttons.append(newButton(place));
        grid->addWidget(m_buttons.last(), place / columns, place % columns);
    }
    layout()->addWidget(m_words);
    Language::keepTranslated(*this, [this] { writeTexts(); });
    connect(this, &QCalendarWidget::clicked, this, &DayCalendar::pickDay);
    connect(this, &QCalendarWidget::activated, this, &DayCalendar::pickDay);
}

QToolButton *DayCalendar::newButton(int place)
{
    auto *button = new QToolButton(m_words);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, [this, place] { pickWord(place); });
    return button;
}

void DayCalendar::writeTexts()
{
    setLocale(QLocale(Language::current().replace(u'-', u'_')));
    setFirstDayOfWeek(Qt::Monday); // instead of the locale's
    const QStringList words =
        m_offers == Offers::Today ? QStringList{FilterTexts::Today()} : relativeDayWords();
    for (qsizetype place = 0; place < m_buttons.size(); ++place)
        m_buttons.at(place)->setText(words.at(place));
}

// QCalendarWidget ignores its layout here.
QSize DayCalendar::minimumSizeHint() const
{
    const QSize days = QCalendarWidget::minimumSizeHint();
    const QSize words = m_words->sizeHint();
    return {std::max(days.width(), words.width()), days.height() + words.height()};
}

void DayCalendar::open(const QWidget &editor, QDate day)
{
    if (day.isValid())
        setSelectedDate(day);
    resize(sizeHint());
    show();
    const QRect free = editor.screen()->availableGeometry();
    QPoint place = editor.mapToGlobal(editor.rect().bottomLeft());
    if (place.y() + height() > free.bottom())
        place.setY(editor.mapToGlobal(editor.rect().topLeft()).y() - height());
    place.setX(std::max(free.left(), std::min(place.x(), free.right() - width())));
    move(place);
    setFocus();
}

void DayCalendar::pickWord(int place)
{
    if (m_offers == Offers::Today)
        return pickDay(QDate::currentDate());
    close();
    Q_EMIT wordPicked(m_buttons.at(place)->text());
}

void DayCalendar::pickDay(QDate day)
{
    close();
    Q_EMIT dayPicked(day);
}

} // namespace KOVAVSFDataGridLib
