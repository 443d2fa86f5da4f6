#include "filter/FilterTexts.h"
#include "filter/ValueEdit.h"
#include "filter/rows/FilterGrip.h"
#include "filter/rows/FilterGroupHead.h"
#include "filter/rows/FilterRow.h"
#include "filter/rows/FilterValues.h"
#include "forms/widgets/FieldCombo.h"
#include "forms/widgets/TextWidth.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>

// Creates and arranges the parts of a row of the builder.
namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The width of the widest comparison, in the characters that a combo box counts.
int lettersOfOperators(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    int widest = 0;
    for (const Text &caption : FilterTexts::Operators)
        widest = std::max(widest, metrics.horizontalAdvance(caption()));
    return std::max(8, widest / metrics.horizontalAdvance(u'X'));
}

} // namespace

void FilterRow::makeParts()
{
    m_not->setToolTip(FilterTexts::NotTip);
    m_not->setAccessibleDescription(FilterTexts::NotTip);
    m_withNull->setToolTip(FilterTexts::WithNullTip);
    m_withNull->setAccessibleDescription(FilterTexts::WithNullTip);
    m_withNull->setChecked(true);
    m_operator->setMaxVisibleItems(21);
    m_join->setToolTip(FilterTexts::Join);
    m_join->addItems({FilterTexts::And, FilterTexts::Or});
    m_delete->setToolTip(FilterTexts::DeleteRow);
    m_delete->setText(u"×"_s);
    m_delete->setAutoRaise(true);
    m_delete->setFocusPolicy(Qt::StrongFocus);
    m_enclose->setToolTip(FilterTexts::EncloseRow);
    m_enclose->setText(u"( )"_s);
    m_enclose->setAutoRaise(true);
    m_enclose->setFocusPolicy(Qt::StrongFocus);

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
    // Small enough for a screen of 800 pixels; the dialog is wider if there is room. The widths do not depend
    // on a row's contents, so the rows are aligned.
    m_field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_field->setMinimumWidth(widthOfDigits(*this, 9));
    m_operator->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_operator->setMinimumContentsLength(lettersOfOperators(*this));
    m_operator->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_operator->setMinimumWidth(widthOfDigits(*this, 11)); // for a narrow window
    const std::initializer_list<QWidget *> before = {m_grip, m_opens, m_not, m_field, m_operator};
    const std::initializer_list<QWidget *> after = {m_closes, m_join, m_enclose, m_delete};
    int lineHeight = 0;
    for (const auto &parts : {before, after}) {
        for (const QWidget *part : parts)
            lineHeight = std::max(lineHeight, part->sizeHint().height());
    }
    m_values = new FilterValues({m_value, m_to, m_lastValue, m_withNull}, lineHeight, this);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(2);
    int column = 0;
    // All are aligned with the first line of the values, of which there can be several.
    const auto place = [&](QWidget *part) {
        part->setMinimumHeight(lineHeight);
        grid->addWidget(part, 0, column++, Qt::AlignTop);
    };
    std::ranges::for_each(before, place);
    place(m_values);
    std::ranges::for_each(after, place);
    constexpr int fieldColumn = 3;
    constexpr int valueColumn = 5;
    grid->setColumnStretch(fieldColumn, 3);
    grid->setColumnStretch(valueColumn, 6);
    grid->addWidget(m_fault, 1, fieldColumn, 1, column - fieldColumn);
    placeParts();
}

ValueEdit *FilterRow::makeValue()
{
    auto *edit = new ValueEdit(this);
    edit->setValueAsker([this, edit] { offerValues(*edit); });
    connect(edit, &QLineEdit::textChanged, this, &FilterRow::onEdited);
    connect(edit, &QLineEdit::editingFinished, this, &FilterRow::onEditingFinished);
    return edit;
}

BracketCombo *FilterRow::makeBrackets(BracketCombo::Side side)
{
    const QString name =
        side == BracketCombo::Side::Before ? FilterTexts::OpenBracket : FilterTexts::CloseBracket;
    auto *combo = new BracketCombo(side, name, this);
    connect(combo, &QComboBox::currentIndexChanged, this, &FilterRow::onEdited);
    return combo;
}

void FilterRow::setNumber(int number)
{
    const QString suffix = QString::number(number);
    const auto name = [&](QWidget &part, const QString &objectName, const Text &said) {
        part.setObjectName(objectName);
        part.setAccessibleName(FilterTexts::PartOfRow.arg(said(), suffix));
    };
    name(*m_opens, u"cmbOpen"_s + suffix, FilterTexts::OpenBracket);
    name(*m_not, u"chkNot"_s + suffix, FilterTexts::Not);
    name(*m_withNull, u"chkWithNull"_s + suffix, FilterTexts::WithNull);
    name(*m_field, u"cmbField"_s + suffix, FilterTexts::Field);
    name(*m_operator, u"cmbOperator"_s + suffix, FilterTexts::Operator);
    name(*m_value, u"txtValue"_s + suffix, FilterTexts::Value);
    name(*m_lastValue, u"txtValue"_s + suffix + u'b', FilterTexts::LastValue);
    name(*m_closes, u"cmbClose"_s + suffix, FilterTexts::CloseBracket);
    name(*m_join, u"cmbJoin"_s + suffix, FilterTexts::Join);
    name(*m_enclose, u"cmdEnclose"_s + suffix, FilterTexts::EncloseRow);
    name(*m_delete, u"cmdDeleteRow"_s + suffix, FilterTexts::DeleteRow);
    m_grip->setObjectName(u"grpMoveRow"_s + suffix);
    m_fault->setObjectName(u"lblFault"_s + suffix);
    m_number = number;
    nameGrip();
}

// Includes the row's position, so that screen readers announce a move.
void FilterRow::nameGrip()
{
    m_grip->setAccessibleName(FilterTexts::MoveRow.arg(m_number).arg(m_level.value_or(0)));
}

void FilterRow::setPlace(bool isLast, bool isOnly)
{
    m_isLast = isLast;
    m_delete->setEnabled(!isOnly);
    placeParts();
}

void FilterRow::setLevel(std::optional<int> level)
{
    m_level = level;
    nameGrip();
    placeParts();
}

void FilterRow::placeParts()
{
    for (QWidget *part : std::initializer_list<QWidget *>{m_opens, m_closes})
        part->setVisible(!m_level);
    for (QWidget *part : std::initializer_list<QWidget *>{m_grip, m_enclose})
        part->setVisible(m_level.has_value());
    // The last row reserves room for a join too, so that the rows are aligned.
    QSizePolicy staying = m_join->sizePolicy();
    staying.setRetainSizeWhenHidden(!m_level);
    m_join->setSizePolicy(staying);
    m_join->setVisible(!m_isLast && !m_level);
    layout()->setContentsMargins(indentOf(*this, m_level.value_or(0)), 0, 0, 0);
}

QWidget *FilterRow::lastPart() const
{
    return m_delete;
}

QWidget *FilterRow::followInTabOrder(QWidget *previous)
{
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_grip, m_opens, m_not, m_field, m_operator, m_value, m_lastValue,
                                          m_withNull, m_closes, m_join, m_enclose, m_delete}) {
        setTabOrder(previous, part);
        previous = part;
    }
    return previous;
}

} // namespace KOVAVSFDataGridLib
