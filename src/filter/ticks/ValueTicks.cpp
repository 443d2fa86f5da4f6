#include "filter/ticks/ValueTicks.h"

#include "ado/Error.h"
#include "ado/values/DisplayFormat.h"
#include "filter/FilterTexts.h"
#include "filter/ticks/TickList.h"
#include "forms/widgets/TickBoxes.h"
#include "language/GroupedNumber.h"

#include <QtCore/QDate>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Other forms of a date that people may search for.
QString spokenDay(const QString &day)
{
    const QDate date = QDate::fromString(day, Qt::ISODate);
    return FilterTexts::WholeDay.arg(date.year()).arg(date.month()).arg(date.day());
}

// The values that contain a text, or are shown with it.
OfferedValues found(const OfferedValues &values, const QString &text, bool areDays)
{
    OfferedValues found;
    found.decimals = values.decimals;
    const ADODB::DisplayFormat format{.leastDecimals = values.decimals};
    for (qsizetype i = 0; i < values.values.size(); ++i) {
        const QString &value = values.values.at(i);
        if (!value.contains(text, Qt::CaseInsensitive) && !format.applied(value).contains(text) &&
            !(areDays && spokenDay(value).contains(text)))
            continue;
        found.values.append(value);
        found.counts.append(values.counts.value(i, -1));
    }
    return found;
}

// Replaces Booleans with the words that users read and type.
void nameBooleans(QStringList &values)
{
    for (QString &value : values)
        value = value == "True"_L1 ? FilterTexts::Yes : FilterTexts::No;
}

} // namespace

ValueTicks::ValueTicks(QWidget *parent)
    : QWidget(parent),
      m_delay(new QTimer(this)),
      m_search(new QLineEdit(this)),
      m_checkAll(new CheckBox(this)),
      m_list(new TickList(m_state, this)),
      m_note(new QLabel(this)),
      m_progress(new QProgressBar(this)),
      m_stop(new QPushButton(FilterTexts::StopReading, this))
{
    m_search->setObjectName(u"txtSearch"_s);
    m_search->setPlaceholderText(FilterTexts::SearchHint);
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_checkAll->setObjectName(u"chkAll"_s);
    m_list->setObjectName(u"lstTicks"_s);
    m_note->setObjectName(u"lblTicks"_s);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_progress->setObjectName(u"prgReading"_s);
    m_progress->setAccessibleName(FilterTexts::ReadingTicks);
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_stop->setObjectName(u"cmdStop"_s);
    m_stop->setAutoDefault(false);
    constexpr int patience = 250; // milliseconds
    m_delay->setSingleShot(true);
    m_delay->setInterval(patience);
    layOut();
    connectParts();
    showReading(false);
    setFocusProxy(m_search);
}

ValueTicks::~ValueTicks() = default;

void ValueTicks::connectParts()
{
    connect(m_delay, &QTimer::timeout, this, &ValueTicks::read);
    connect(m_search, &QLineEdit::textChanged, this, &ValueTicks::onSearch);
    connect(m_search, &QLineEdit::returnPressed, this, &ValueTicks::tickFound);
    connect(m_checkAll, &QCheckBox::clicked, this, &ValueTicks::tickAll);
    connect(m_list, &TickList::ticked, this, [this] {
        showState();
        Q_EMIT changed();
    });
    connect(m_stop, &QPushButton::clicked, this, [this] {
        stop();
        m_fault = FilterTexts::ReadingStopped;
        m_search->setFocus();
        showState();
    });
}

void ValueTicks::layOut()
{
    auto *label = new QLabel(FilterTexts::SearchValues, this);
    label->setBuddy(m_search);
    auto *search = new QHBoxLayout;
    search->addWidget(label);
    search->addWidget(m_search, 1);
    auto *reading = new QHBoxLayout;
    reading->addWidget(m_progress, 1);
    reading->addWidget(m_stop);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addLayout(search);
    rows->addWidget(m_checkAll);
    rows->addWidget(m_list, 1);
    rows->addWidget(m_note);
    rows->addLayout(reading);
    // Two lines are reserved, so that nothing moves when the note gets longer.
    m_note->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ValueTicks::start(FieldClass fieldClass, Requests requests, const TickedValues &ticked)
{
    stop();
    m_fieldClass = fieldClass;
    m_requests = std::move(requests);
    m_state = TickState(ticked);
    m_all = {};
    m_found = {};
    m_fault.clear();
    const bool hasValues = fieldClass != FieldClass::Other;
    m_isComplete = !hasValues;
    m_beganWithSearch = false;
    {
        const QSignalBlocker quietly(m_search);
        m_search->clear();
    }
    m_search->setEnabled(hasValues);
    if (hasValues)
        read();
    fill();
    Q_EMIT changed();
}

void ValueTicks::stop()
{
    m_delay->stop();
    m_reading.reset();
    showReading(false);
}

void ValueTicks::read()
{
    stop();
    m_fault.clear();
    try {
        m_reading = std::make_unique<ValueReading>(m_requests(m_search->text()));
    } catch (const ADODB::Error &error) {
        m_fault = FilterTexts::ValuesUnreadable.arg(error.Description());
        return showState();
    }
    connect(m_reading.get(), &ValueReading::arrived, this, &ValueTicks::onValuesArrived);
    constexpr int patience = 100; // milliseconds before the list shows that it is being read
    if (m_reading->waitForValues(patience))
        return onValuesArrived();
    showReading(true);
    showState();
}

void ValueTicks::onValuesArrived()
{
    if (!m_reading)
        return;
    showReading(false);
    OfferedValues values = m_reading->values();
    if (m_fieldClass == FieldClass::Boolean)
        nameBooleans(values.values);
    const QString failure = m_reading->failure();
    m_fault = failure.isEmpty() ? values.note : FilterTexts::ValuesUnreadable.arg(failure);
    OfferedValues &target = isSearch() ? m_found : m_all;
    if (failure.isEmpty() && values == target)
        return; // don't refill a list that the user is working with
    target = values;
    if (!isSearch()) {
        m_isComplete = failure.isEmpty() && values.note.isEmpty() && !values.hasMore;
        if (m_isComplete && areDays())
            m_state.nameDays(values.values);
    }
    fill();
    Q_EMIT changed();
}

// A search is for values to tick. If everything is ticked, it therefore starts with nothing ticked.
void ValueTicks::onSearch()
{
    stop();
    if (isSearch() && m_state.isAllTicked()) {
        m_state.setAllTicked(false);
        m_beganWithSearch = true;
    } else if (!isSearch() && m_beganWithSearch && m_state.isNothingTicked()) {
        m_state.setAllTicked(true);
    }
    m_beganWithSearch = m_beganWithSearch && isSearch();
    m_found = {};
    m_fault = isSearch() ? QString() : m_all.note;
    if (isSearch() && !m_isComplete) {
        m_delay->start();
        showReading(true);
    }
    fill();
    Q_EMIT changed();
}

// Enter ticks what was found, unless something is already ticked.
void ValueTicks::tickFound()
{
    if (isSearch() && m_state.isNothingTicked() && areAllListed())
        tickAll();
}

void ValueTicks::tickAll()
{
    const bool isTicked = m_list->stateOfAll() != Qt::Checked;
    if (!isSearch()) {
        m_state.setAllTicked(isTicked);
    } else {
        for (const QString &value : listed().values)
            m_state.setTicked(value, isTicked);
    }
    fill();
    Q_EMIT changed();
}

OfferedValues ValueTicks::listed() const
{
    if (!isSearch())
        return m_all;
    return m_isComplete ? found(m_all, m_search->text(), areDays()) : m_found;
}

bool ValueTicks::isSearch() const
{
    return !m_search->text().isEmpty();
}

// Whether the list contains everything that it should.
bool ValueTicks::areAllListed() const
{
    return m_isComplete || (m_reading && !m_delay->isActive() && m_progress->isHidden() &&
                            m_fault.isEmpty() && !listed().hasMore);
}

bool ValueTicks::areDays() const
{
    return m_fieldClass == FieldClass::Date || m_fieldClass == FieldClass::Moment;
}

// Whether the list has a line for the records without a value.
bool ValueTicks::listsNull() const
{
    return !isSearch() && m_all.withoutValue != 0;
}

void ValueTicks::fill()
{
    m_list->list(m_fieldClass, listed(), listsNull(), isSearch());
    showState();
}

void ValueTicks::showState()
{
    m_checkAll->setText(isSearch() ? FilterTexts::AllFound : FilterTexts::AllValues);
    // "All" must not tick only a part of them.
    m_checkAll->setEnabled(isSearch() ? areAllListed() && !listed().values.isEmpty() : true);
    const Qt::CheckState state = m_list->topLevelItemCount() > 0 ? m_list->stateOfAll()
                                 : m_state.isAllTicked()         ? Qt::Checked
                                                                 : Qt::Unchecked;
    m_checkAll->setCheckState(state);
    m_note->setText(stateInWords());
}

QString ValueTicks::stateInWords() const
{
    if (!m_progress->isHidden())
        return FilterTexts::ReadingTicks;
    if (!m_fault.isEmpty())
        return m_fault;
    const OfferedValues values = listed();
    if (values.hasMore) {
        const QString first = grouped(values.values.size());
        return values.left > 0
                   ? FilterTexts::TooManyValuesOf.arg(first, grouped(values.values.size() + values.left))
                   : FilterTexts::TooManyValues.arg(first);
    }
    if (values.values.isEmpty())
        return isSearch() ? FilterTexts::NothingFound.arg(m_search->text()) : QString();
    const auto ticked = std::ranges::count_if(
        values.values, [this](const QString &value) { return m_state.isTicked(value); });
    // Records without a value have a box as well.
    const int nulls = listsNull() ? 1 : 0;
    const int tickedNulls = nulls == 1 && m_state.isNullTicked() ? 1 : 0;
    const qint64 all = values.values.size() + nulls;
    return FilterTexts::TicksOf.arg(all, grouped(all), grouped(ticked + tickedNulls));
}

void ValueTicks::showReading(bool isReading)
{
    m_progress->setVisible(isReading);
    m_stop->setVisible(isReading);
}

TickedValues ValueTicks::ticked() const
{
    TickedValues ticked = m_isComplete && m_fieldClass != FieldClass::Other
                              ? m_state.amongAll(m_all.values, areDays())
                              : m_state.asNamed();
    // If each record has a value, records without one need not be mentioned.
    if (m_all.withoutValue == 0)
        ticked.hasNull.reset();
    return ticked;
}

// The arrow keys lead from the search box to the list, as in a menu.
bool ValueTicks::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDown = watched == m_search && event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Down;
    if (!isDown || m_list->topLevelItemCount() == 0)
        return QWidget::eventFilter(watched, event);
    m_list->setFocus();
    if (!m_list->currentItem())
        m_list->setCurrentItem(m_list->topLevelItem(0));
    return true;
}

} // namespace KOVAVSFDataGridLib
