#include "filter/FilterRow.h"

#include "filter/FilterTexts.h"
#include "filter/ValueEdit.h"
#include "forms/widgets/FieldCombo.h"
#include "forms/widgets/TextWidth.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FilterRow::FilterRow(std::shared_ptr<const FilterRowContext> context, QWidget *parent)
    : QWidget(parent),
      m_context(std::move(context)),
      m_opens(makeBrackets(u'(', FilterTexts::OpenBracket)),
      m_field(new FieldCombo(this)),
      m_operator(new QComboBox(this)),
      m_value(makeValue(FilterTexts::Value)),
      m_to(new QLabel(FilterTexts::To, this)),
      m_lastValue(makeValue(FilterTexts::LastValue)),
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
    connect(m_join, &QComboBox::currentIndexChanged, this, &FilterRow::changed);
    connect(m_delete, &QToolButton::clicked, this, &FilterRow::deleteRequested);
    onFieldChanged();
}

void FilterRow::makeParts()
{
    m_field->setAccessibleName(FilterTexts::Field);
    for (const FilterField &field : m_context->fields)
        m_field->addItem(field.caption);
    m_operator->setAccessibleName(FilterTexts::Operator);
    m_operator->setMaxVisibleItems(15);
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
    // Widths that do not depend on a row's contents, so that the rows stand in columns.
    m_field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_field->setMinimumWidth(widthOfDigits(*this, 22));
    m_operator->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_operator->setMinimumContentsLength(8);
    m_operator->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *values = new QWidget(this);
    values->setMinimumWidth(widthOfDigits(*this, 28));
    auto *valueRow = new QHBoxLayout(values);
    valueRow->setContentsMargins({});
    valueRow->addWidget(m_value, 1);
    valueRow->addWidget(m_to);
    valueRow->addWidget(m_lastValue, 1);
    QSizePolicy staying = m_join->sizePolicy();
    staying.setRetainSizeWhenHidden(true);
    m_join->setSizePolicy(staying);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(2);
    int column = 0;
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_opens, m_field, m_operator, values, m_closes, m_join, m_delete})
        grid->addWidget(part, 0, column++);
    constexpr int fieldColumn = 1;
    constexpr int valueColumn = 3;
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
    for (QWidget *part : std::initializer_list<QWidget *>{m_opens, m_field, m_operator, m_value, m_lastValue,
                                                          m_closes, m_join, m_delete}) {
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
        for (const FilterOperator offered : operatorsFor(field().fieldClass))
            m_operator->addItem(captionOf(offered), static_cast<int>(offered));
        m_operator->setCurrentIndex(std::max(0, m_operator->findData(previous)));
    }
    onOperatorChanged();
}

void FilterRow::onOperatorChanged()
{
    const int count = valueCount(op());
    m_value->setVisible(count >= 1);
    m_to->setVisible(count == 2);
    m_lastValue->setVisible(count == 2);
    m_value->setKind(field().fieldClass, op() == FilterOperator::InList);
    m_lastValue->setKind(field().fieldClass, false);
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
    return conditionOf(m_context->dialect, {field(), op(), m_value->text(), m_lastValue->text()});
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
