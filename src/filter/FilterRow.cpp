#include "filter/FilterRow.h"

#include "filter/FilterTexts.h"
#include "filter/ValueEdit.h"
#include "forms/widgets/FieldCombo.h"
#include "forms/widgets/TextWidth.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// As many of the letters that a combo box counts as the widest comparison has.
int lettersOfOperators(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    int widest = 0;
    for (const Text &caption : FilterTexts::Operators)
        widest = std::max(widest, metrics.horizontalAdvance(caption()));
    return std::max(8, widest / metrics.horizontalAdvance(u'X'));
}

} // namespace

FilterRow::FilterRow(std::shared_ptr<const FilterRowContext> context, QWidget *parent)
    : QWidget(parent),
      m_context(std::move(context)),
      m_opens(makeBrackets(u'(', FilterTexts::OpenBracket)),
      m_not(new QCheckBox(FilterTexts::Not, this)),
      m_field(new FieldCombo(this)),
      m_operator(new QComboBox(this)),
      m_value(makeValue(FilterTexts::Value)),
      m_to(new QLabel(FilterTexts::To, this)),
      m_lastValue(makeValue(FilterTexts::LastValue)),
      m_withNull(new QCheckBox(FilterTexts::WithNull, this)),
      m_closes(makeBrackets(u')', FilterTexts::CloseBracket)),
      m_join(new QComboBox(this)),
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
    connect(m_delete, &QToolButton::clicked, this, &FilterRow::deleteRequested);
    onFieldChanged();
}

void FilterRow::makeParts()
{
    m_field->setAccessibleName(FilterTexts::Field);
    for (const FilterField &field : m_context->fields)
        m_field->addItem(field.caption);
    m_not->setToolTip(FilterTexts::NotTip);
    m_not->setAccessibleDescription(FilterTexts::NotTip);
    m_withNull->setToolTip(FilterTexts::WithNullTip);
    m_withNull->setAccessibleDescription(FilterTexts::WithNullTip);
    m_withNull->setChecked(true);
    m_operator->setAccessibleName(FilterTexts::Operator);
    m_operator->setMaxVisibleItems(21);
    m_join->setAccessibleName(FilterTexts::Join);
    m_join->setToolTip(FilterTexts::Join);
    m_join->addItems({FilterTexts::And, FilterTexts::Or});
    m_delete->setAccessibleName(FilterTexts::DeleteRow);
    m_delete->setToolTip(FilterTexts::DeleteRow);
    m_delete->setText(u"×"_s);
    m_delete->setAutoRaise(true);
    m_delete->setFocusPolicy(Qt::StrongFocus);

    QPalette warning = m_fault->palette();
    const bool isDark = warning.color(QPalette::Window).lightness() < 128;
    warning.setColor(QPalette::WindowText, isDark ? QColor(255, 130, 120) : QColor(176, 20, 20));
    m_fault->setPalette(warning);
    m_fault->setTextFormat(Qt::PlainText);
    m_fault->setWordWrap(true);
    m_fault->hide();
}

void FilterRow::layOut()
{
    // Small enough for a screen of 800 pixels; the dialog is wider where there is room. Widths that do not
    // depend on a row's contents, so that the rows stand in columns.
    m_field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_field->setMinimumWidth(widthOfDigits(*this, 9));
    m_operator->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_operator->setMinimumContentsLength(lettersOfOperators(*this));
    m_operator->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *values = new QWidget(this);
    // Two days, the buttons beside them and the word between them.
    values->setMinimumWidth(widthOfDigits(*this, 36) + fontMetrics().horizontalAdvance(m_to->text()));
    auto *valueRow = new QHBoxLayout(values);
    valueRow->setContentsMargins({});
    valueRow->addWidget(m_value, 1);
    valueRow->addWidget(m_to);
    valueRow->addWidget(m_lastValue, 1);
    valueRow->addWidget(m_withNull);
    QSizePolicy staying = m_join->sizePolicy();
    staying.setRetainSizeWhenHidden(true);
    m_join->setSizePolicy(staying);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(2);
    int column = 0;
    for (QWidget *part : std::initializer_list<QWidget *>{m_opens, m_not, m_field, m_operator, values,
                                                          m_closes, m_join, m_delete})
        grid->addWidget(part, 0, column++);
    constexpr int fieldColumn = 2;
    constexpr int valueColumn = 4;
    grid->setColumnStretch(fieldColumn, 3);
    grid->setColumnStretch(valueColumn, 5);
    grid->addWidget(m_fault, 1, fieldColumn, 1, column - fieldColumn);
}

ValueEdit *FilterRow::makeValue(const QString &accessibleName)
{
    auto *edit = new ValueEdit(this);
    edit->setAccessibleName(accessibleName);
    edit->setValueAsker([this, edit] { m_context->offerValues(field(), *edit); });
    connect(edit, &QLineEdit::textChanged, this, &FilterRow::onEdited);
    connect(edit, &QLineEdit::editingFinished, this, &FilterRow::onEditingFinished);
    return edit;
}

QComboBox *FilterRow::makeBrackets(QChar bracket, const QString &accessibleName)
{
    auto *combo = new QComboBox(this);
    combo->setAccessibleName(accessibleName);
    combo->setToolTip(accessibleName);
    for (int count = 0; count <= mostBrackets; ++count)
        combo->addItem(QString(count, bracket));
    connect(combo, &QComboBox::currentIndexChanged, this, [this] { onEdited(); });
    return combo;
}

void FilterRow::setNumber(int number)
{
    const QString suffix = QString::number(number);
    m_opens->setObjectName(u"cmbOpen"_s + suffix);
    m_not->setObjectName(u"chkNot"_s + suffix);
    m_withNull->setObjectName(u"chkWithNull"_s + suffix);
    m_field->setObjectName(u"cmbField"_s + suffix);
    m_operator->setObjectName(u"cmbOperator"_s + suffix);
    m_value->setObjectName(u"txtValue"_s + suffix);
    m_lastValue->setObjectName(u"txtValue"_s + suffix + u'b');
    m_closes->setObjectName(u"cmbClose"_s + suffix);
    m_join->setObjectName(u"cmbJoin"_s + suffix);
    m_delete->setObjectName(u"cmdDeleteRow"_s + suffix);
    m_fault->setObjectName(u"lblFault"_s + suffix);
}

void FilterRow::setPlace(bool isLast, bool isOnly)
{
    m_join->setVisible(!isLast);
    m_delete->setEnabled(!isOnly);
}

void FilterRow::followInTabOrder(const FilterRow &previous)
{
    QWidget *last = previous.m_delete;
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_opens, m_not, m_field, m_operator, m_value, m_lastValue,
                                          m_withNull, m_closes, m_join, m_delete}) {
        setTabOrder(last, part);
        last = part;
    }
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

void FilterRow::onFieldChanged()
{
    const QVariant previous = m_operator->currentData();
    {
        const QSignalBlocker quiet(m_operator);
        m_operator->clear();
        for (const FilterOperator offered : operatorsFor(field().fieldClass)) {
            if (m_context->records || !comparesRecords(offered))
                m_operator->addItem(captionOf(offered), static_cast<int>(offered));
        }
        m_operator->setCurrentIndex(std::max(0, m_operator->findData(previous)));
    }
    // Another field has other values.
    if (!m_suggested.isEmpty() && m_value->text() == m_suggested)
        m_value->clear();
    m_suggested.clear();
    onOperatorChanged();
}

void FilterRow::onOperatorChanged()
{
    const int count = valueCount(op());
    m_value->setVisible(count >= 1);
    m_to->setVisible(count == 2);
    m_lastValue->setVisible(count == 2);
    if (takesCount(op()))
        m_value->setCount();
    else
        m_value->setKind(field().fieldClass, positiveOf(op()) == FilterOperator::InList);
    m_lastValue->setKind(field().fieldClass, false);
    onNegated();
}

void FilterRow::onNegated()
{
    m_withNull->setVisible(choice().asksForNull());
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

// Who leaves a value hears what is wrong with it, but not that a value is still missing.
void FilterRow::onEditingFinished()
{
    if (isStarted())
        checkedCondition();
}

FilterCondition FilterRow::condition() const
{
    return conditionOf(m_context->dialect, choice(), m_context->scope());
}

FilterChoice FilterRow::choice() const
{
    return {field(), op(), m_value->text(), m_lastValue->text(), m_not->isChecked(), m_withNull->isChecked()};
}

FilterRowState FilterRow::state() const
{
    return {.field = m_field->currentText(),
            .op = op(),
            .value = m_value->text(),
            .lastValue = m_lastValue->text(),
            .isNegated = m_not->isChecked(),
            .includesNull = m_withNull->isChecked(),
            .opens = m_opens->currentIndex(),
            .closes = m_closes->currentIndex(),
            .orNext = m_join->currentIndex() == 1};
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
    m_value->setText(state.value);
    m_lastValue->setText(state.lastValue);
    m_value->selectAll(); // what is typed next takes its place
    m_lastValue->selectAll();
    m_not->setChecked(state.isNegated);
    m_withNull->setChecked(state.includesNull);
    setBrackets(state.opens, state.closes);
    m_join->setCurrentIndex(state.orNext ? 1 : 0);
    return true;
}

void FilterRow::suggest(const QString &field, const QString &value)
{
    const int index = m_field->findText(field, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (index < 0)
        return;
    m_field->setCurrentIndex(index);
    if (valueCount(op()) == 0 || value.isEmpty())
        return;
    m_value->setText(value);
    m_value->setFocus();
    m_value->selectAll();
    m_suggested = value;
}

FilterCondition FilterRow::checkedCondition()
{
    const FilterCondition found = condition();
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
    m_value->setMarked(!fault.isEmpty());
    m_lastValue->setMarked(!fault.isEmpty());
}

void FilterRow::clearBracketFault()
{
    if (m_fault->text() == FilterTexts::UnmatchedBracket)
        showFault({});
}

FilterSql::Term FilterRow::frame() const
{
    return {{}, m_opens->currentIndex(), m_closes->currentIndex(), m_join->currentIndex() == 1};
}

void FilterRow::setBrackets(int opens, int closes)
{
    m_opens->setCurrentIndex(std::min(opens, mostBrackets));
    m_closes->setCurrentIndex(std::min(closes, mostBrackets));
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
