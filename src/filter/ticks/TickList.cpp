#include "filter/ticks/TickList.h"

#include "ado/values/DisplayFormat.h"
#include "filter/FilterTexts.h"
#include "forms/widgets/TickBoxes.h"
#include "language/GroupedNumber.h"

#include <QtCore/QDate>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeWidgetItemIterator>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int valueColumn = 0;
constexpr int countColumn = 1;
constexpr int entryRole = Qt::UserRole;
constexpr int valueRole = Qt::UserRole + 1;
constexpr int countRole = Qt::UserRole + 2;

// Shortens a text to one readable line.
QString lineOf(QString text)
{
    constexpr qsizetype longest = 200;
    text.truncate(longest);
    return text.replace("\r\n"_L1, "↵"_L1).replace(u'\n', u'↵').replace(u'\r', u'↵').replace(u'\t', u' ');
}

void putCount(QTreeWidgetItem &item, qint64 count)
{
    item.setData(valueColumn, countRole, count);
    if (count >= 0)
        item.setText(countColumn, grouped(count));
    item.setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
}

// Adds to the count of a year or a month.
void addCount(QTreeWidgetItem *item, qint64 count)
{
    for (; item && count >= 0; item = item->parent())
        putCount(*item, item->data(valueColumn, countRole).toLongLong() + count);
}

} // namespace

TickList::TickList(TickState &state, QWidget *parent) : QTreeWidget(parent), m_state(state)
{
    setItemDelegate(new TickDelegate(this));
    setColumnCount(2);
    setHeaderLabels({FilterTexts::ValueList, FilterTexts::CountOfRecords});
    headerItem()->setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(valueColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(countColumn, QHeaderView::ResizeToContents);
    header()->setSectionsClickable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAccessibleName(FilterTexts::ValueList);
    connect(this, &QTreeWidget::itemChanged, this, &TickList::onItemChanged);
}

void TickList::list(FieldClass fieldClass, const OfferedValues &values, bool hasNull, bool areOpen)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    const Place place = this->place();
    clear();
    fill(fieldClass, values, hasNull, areOpen);
    restore(place);
}

TickList::Place TickList::place()
{
    Place place{.scrolled = verticalScrollBar()->value()};
    if (currentItem())
        place.current = currentItem()->data(valueColumn, valueRole).toString();
    for (QTreeWidgetItemIterator item(this); *item; ++item) {
        if ((*item)->isExpanded())
            place.open.insert((*item)->data(valueColumn, valueRole).toString());
    }
    return place;
}

void TickList::restore(const Place &place)
{
    for (QTreeWidgetItemIterator item(this); *item; ++item) {
        const QString value = (*item)->data(valueColumn, valueRole).toString();
        if (place.open.contains(value))
            (*item)->setExpanded(true);
        if (place.current == value)
            setCurrentItem(*item);
    }
    verticalScrollBar()->setValue(place.scrolled);
}

void TickList::fill(FieldClass fieldClass, const OfferedValues &values, bool hasNull, bool areOpen)
{
    const bool areDays = fieldClass == FieldClass::Date || fieldClass == FieldClass::Moment;
    setRootIsDecorated(areDays);
    QTreeWidgetItem *const root = invisibleRootItem();
    if (hasNull)
        add(root, Entry::Null, FilterTexts::NullValue, {}, values.withoutValue);
    // For pictures and the like, only Null or not Null can be ticked.
    if (fieldClass == FieldClass::Other)
        add(root, Entry::Others, FilterTexts::AnyValue, {}, -1);
    if (areDays)
        return addDays(values, areOpen);
    const ADODB::DisplayFormat format{.leastDecimals = values.decimals};
    for (qsizetype i = 0; i < values.values.size(); ++i) {
        const QString &value = values.values.at(i);
        add(root, Entry::Value, lineOf(format.applied(value)), value, values.counts.value(i, -1));
    }
}

void TickList::addDays(const OfferedValues &days, bool areOpen)
{
    QTreeWidgetItem *year = nullptr;
    QTreeWidgetItem *month = nullptr;
    QDate last;
    for (qsizetype i = 0; i < days.values.size(); ++i) {
        const QDate day = QDate::fromString(days.values.at(i), Qt::ISODate);
        if (!day.isValid())
            continue;
        if (!year || day.year() != last.year()) {
            year = group(invisibleRootItem(), FilterTexts::YearOfDays.arg(day.year()),
                         day.toString(u"yyyy"_s), areOpen);
            month = nullptr;
        }
        if (!month || day.month() != last.month())
            month =
                group(year, FilterTexts::MonthOfDays.arg(day.month()), day.toString(u"yyyy-MM"_s), areOpen);
        add(month, Entry::Value, FilterTexts::DayOfDays.arg(day.day()), days.values.at(i),
            days.counts.value(i, -1));
        addCount(month, days.counts.value(i, -1));
        last = day;
    }
    if (!areOpen && topLevelItemCount() == 1 && year)
        year->setExpanded(true);
}

QTreeWidgetItem *TickList::group(QTreeWidgetItem *parent, const QString &text, const QString &value,
                                 bool isOpen)
{
    auto *item = new QTreeWidgetItem(parent, {text});
    item->setData(valueColumn, valueRole, value);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setExpanded(isOpen);
    return item;
}

void TickList::add(QTreeWidgetItem *parent, Entry entry, const QString &text, const QString &value,
                   qint64 count)
{
    auto *item = new QTreeWidgetItem({text});
    item->setData(valueColumn, entryRole, static_cast<int>(entry));
    item->setData(valueColumn, valueRole, value);
    item->setCheckState(valueColumn, isTicked(entry, value) ? Qt::Checked : Qt::Unchecked);
    putCount(*item, count);
    parent->addChild(item);
}

bool TickList::isTicked(Entry entry, const QString &value) const
{
    switch (entry) {
    case Entry::Null:
        return m_state.isNullTicked();
    case Entry::Others:
        return m_state.areOthersTicked();
    case Entry::Value:
        return m_state.isTicked(value);
    }
    Q_UNREACHABLE();
}

void TickList::onItemChanged(const QTreeWidgetItem *item)
{
    // The days of a year or a month change with it automatically.
    if (m_isFilling || item->childCount() > 0)
        return;
    const bool isTicked = item->checkState(valueColumn) == Qt::Checked;
    switch (static_cast<Entry>(item->data(valueColumn, entryRole).toInt())) {
    case Entry::Null:
        m_state.setNullTicked(isTicked);
        break;
    case Entry::Others:
        m_state.setOthersTicked(isTicked);
        break;
    case Entry::Value:
        m_state.setTicked(item->data(valueColumn, valueRole).toString(), isTicked);
        break;
    }
    Q_EMIT ticked();
}

Qt::CheckState TickList::stateOfAll() const
{
    int checked = 0;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const Qt::CheckState state = topLevelItem(i)->checkState(valueColumn);
        if (state == Qt::PartiallyChecked)
            return state;
        checked += state == Qt::Checked ? 1 : 0;
    }
    if (checked == 0)
        return Qt::Unchecked;
    return checked == topLevelItemCount() ? Qt::Checked : Qt::PartiallyChecked;
}

} // namespace KOVAVSFDataGridLib
