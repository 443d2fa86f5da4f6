#include "filter/rows/FilterRow.h"

#include "filter/FilterTexts.h"
#include "filter/ValueEdit.h"
#include "filter/conditions/FilterValue.h"
#include "filter/rows/BracketCombo.h"
#include "filter/rows/FilterGrip.h"
#include "filter/rows/FilterValues.h"
#include "forms/widgets/FieldCombo.h"
#include "forms/widgets/TickBoxes.h"
#include "query/QueryTexts.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FilterRow::FilterRow(std::shared_ptr<const FilterRowContext> context, QWidget *parent)
    : QWidget(parent),
      m_grip(new FilterGrip(this)),
      m_opens(makeBrackets(BracketCombo::Side::Before)),
      m_not(new CheckBox(FilterTexts::Not, this)),
      m_field(new FieldCombo(this)),
      m_operator(new QComboBox(this)),
      m_value(makeValue()),
      m_to(new QLabel(FilterTexts::To, this)),
      m_lastValue(makeValue()),
      m_withNull(new CheckBox(FilterTexts::WithNull, this)),
      m_closes(makeBrackets(BracketCombo::Side::After)),
      m_join(new QComboBox(this)),
      m_enclose(new QToolButton(this)),
      m_delete(new QToolButton(this)),
      m_fault(new QLabel(this)),
      m_valueAtFault(m_value)
{
    makeParts();
    layOut();
    connect(m_field, &QComboBox::currentIndexChanged, this, &FilterRow::onFieldChanged);
    connect(m_operator, &QComboBox::currentIndexChanged, this, &FilterRow::onOperatorChanged);
    connect(m_not, &QCheckBox::toggled, this, &FilterRow::onNegated);
    connect(m_withNull, &QCheckBox::toggled, this, &FilterRow::changed);
    connect(m_join, &QComboBox::currentIndexChanged, this, &FilterRow::changed);
    connect(m_enclose, &QToolButton::clicked, this, &FilterRow::encloseRequested);
    connect(m_delete, &QToolButton::clicked, this, &FilterRow::deleteRequested);
    setContext(std::move(context));
}

void FilterRow::setContext(std::shared_ptr<const FilterRowContext> context)
{
    m_context = std::move(context);
    {
        const QSignalBlocker quiet(m_field);
        for (const FilterField &field : m_context->fields)
            m_field->addItem(field.caption);
    }
    onFieldChanged();
}

FilterField FilterRow::field() const
{
    const int index = m_field->currentIndex();
    return index < 0 ? FilterField() : m_context->fields.at(static_cast<std::size_t>(index));
}

FilterOperator FilterRow::op() const
{
    return static_cast<FilterOperator>(m_operator->currentData().toInt());
}

void FilterRow::offerValues(ValueEdit &edit)
{
    if (positiveOf(op()) == FilterOperator::InList && m_context->askTicks)
        pickList();
    else
        m_context->offerValues(field(), edit);
}

// "All except" is written as "not in list"; the check box for Null tells whether the list contains it.
void FilterRow::pickList()
{
    const QPointer<FilterRow> alive(this);
    const TickedValues named{.areLeftOut = false, .values = splitFilterList(m_value->text())};
    const auto picked = m_context->askTicks(field(), named);
    if (!alive || !picked)
        return;
    const bool leavesOut = isNegative(op()) != picked->areLeftOut;
    if (picked->areLeftOut && picked->values.isEmpty()) {
        putOperator(leavesOut ? FilterOperator::IsNotEmpty : FilterOperator::IsEmpty);
    } else {
        putOperator(leavesOut ? FilterOperator::NotInList : FilterOperator::InList);
        if (leavesOut && picked->hasNull)
            m_withNull->setChecked(*picked->hasNull == picked->areLeftOut);
        m_value->setText(listOf(*picked));
    }
    m_value->setFocus();
}

void FilterRow::putOperator(FilterOperator op)
{
    m_operator->setCurrentIndex(m_operator->findData(static_cast<int>(op)));
}

void FilterRow::onFieldChanged()
{
    const QVariant previous = m_operator->currentData();
    {
        const QSignalBlocker quiet(m_operator);
        m_operator->clear();
        for (const FilterOperator offered : operatorsFor(field())) {
            if (m_context->records || !comparesRecords(offered))
                m_operator->addItem(captionOf(offered), static_cast<int>(offered));
        }
        m_operator->setCurrentIndex(std::max(0, m_operator->findData(previous)));
    }
    // Another field has different values.
    if (!m_suggested.isEmpty() && m_value->text() == m_suggested)
        m_value->clear();
    m_suggested.clear();
    onOperatorChanged();
}

void FilterRow::onOperatorChanged()
{
    const int count = valueCount(op());
    const QString whyNoValues = field().hasOrder ? QString() : QueryTexts::TypeNotSorted.arg(field().caption);
    m_value->setVisible(count >= 1);
    m_to->setVisible(count == 2);
    m_lastValue->setVisible(count == 2);
    if (takesCount(op()))
        m_value->setCount();
    else
        m_value->setKind(field().fieldClass, positiveOf(op()) == FilterOperator::InList, whyNoValues);
    m_lastValue->setKind(field().fieldClass, false, whyNoValues);
    onNegated();
}

void FilterRow::onNegated()
{
    m_withNull->setVisible(choice().asksForNull());
    m_values->arrange();
    onEdited();
}

void FilterRow::onEdited()
{
    showFault({});
    Q_EMIT changed();
}

bool FilterRow::isStarted() const
{
    const int count = valueCount(op());
    return count > 0 && !m_value->text().isEmpty() && (count == 1 || !m_lastValue->text().isEmpty());
}

// When the user leaves a value, an error in it is shown, but not that it is still empty.
void FilterRow::onEditingFinished()
{
    if (isStarted())
        checkedCondition();
}

FilterCondition FilterRow::condition(bool isComplement) const
{
    if (isComplement)
        return complementOf(m_context->dialect, choice(), m_context->scope());
    if (const QString text = textInForce(); !text.isEmpty())
        return {text, {}};
    return conditionOf(m_context->dialect, choice(), m_context->scope());
}

QString FilterRow::textInForce() const
{
    return m_context->textInForce
               ? m_context->textInForce(conditionOf(m_context->dialect, choice(), m_context->scope()).sql)
               : QString();
}

bool FilterRow::isBlank() const
{
    const int count = valueCount(op());
    return count > 0 && m_value->text().isEmpty() && (count == 1 || m_lastValue->text().isEmpty());
}

FilterChoice FilterRow::choice() const
{
    return {field(), op(), m_value->text(), m_lastValue->text(), m_not->isChecked(), m_withNull->isChecked()};
}

FilterRowState FilterRow::state() const
{
    const FilterSql::Term framed = frame();
    return {.field = m_field->currentText(),
            .op = op(),
            .value = m_value->text(),
            .lastValue = m_lastValue->text(),
            .isNegated = m_not->isChecked(),
            .includesNull = m_withNull->isChecked(),
            .opens = framed.opens,
            .closes = framed.closes,
            .orNext = framed.orNext,
            .negatedOpens = framed.negatedOpens};
}

bool FilterRow::setState(const FilterRowState &state)
{
    const int fieldIndex = m_field->findText(state.field, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (fieldIndex < 0)
        return false;
    const int fieldBefore = m_field->currentIndex();
    m_field->setCurrentIndex(fieldIndex);
    const int opIndex = m_operator->findData(static_cast<int>(state.op));
    if (opIndex < 0) {
        m_field->setCurrentIndex(fieldBefore);
        return false;
    }
    m_operator->setCurrentIndex(opIndex);
    m_value->setText(valueInWords(field().fieldClass, state.value));
    m_lastValue->setText(valueInWords(field().fieldClass, state.lastValue));
    m_value->selectAll(); // selected, so that typing replaces it
    m_lastValue->selectAll();
    m_not->setChecked(state.isNegated);
    m_withNull->setChecked(state.includesNull);
    setFrame({{}, state.opens, state.closes, state.orNext, state.negatedOpens});
    return true;
}

void FilterRow::suggest(const QString &field, const QString &value)
{
    const int index = m_field->findText(field, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (index < 0)
        return;
    m_field->setCurrentIndex(index);
    if (value.isEmpty())
        m_operator->setFocus();
    if (value.isEmpty() || valueCount(op()) == 0)
        return;
    m_suggested = valueInWords(this->field().fieldClass, value);
    m_value->setText(m_suggested);
    m_value->setFocus();
    m_value->selectAll();
}

FilterCondition FilterRow::checkedCondition()
{
    FilterCondition found = condition();
    showFault(found.fault);
    m_valueAtFault = found.isLastValueAtFault ? m_lastValue : m_value;
    return found;
}

void FilterRow::showFault(const QString &fault)
{
    if (m_fault->text() == fault)
        return;
    m_fault->setText(fault);
    m_fault->setVisible(!fault.isEmpty());
    for (ValueEdit *edit : {m_value, m_lastValue}) {
        edit->setMarked(!fault.isEmpty());
        edit->setAccessibleDescription(fault);
    }
}

void FilterRow::clearBracketFault()
{
    if (m_fault->text() == FilterTexts::UnmatchedBracket)
        showFault({});
}

FilterSql::Term FilterRow::frame() const
{
    return {{}, m_opens->brackets(), m_closes->brackets(), m_join->currentIndex() == 1, m_opens->negated()};
}

void FilterRow::setFrame(const FilterSql::Term &frame)
{
    m_opens->put(frame.opens, frame.negatedOpens);
    m_closes->put(frame.closes);
    m_join->setCurrentIndex(frame.orNext ? 1 : 0);
}

void FilterRow::focusFirstPart()
{
    m_field->setFocus();
}

void FilterRow::focusFault()
{
    m_valueAtFault->setFocus();
}

} // namespace KOVAVSFDataGridLib
