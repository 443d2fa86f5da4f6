#pragma once

#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/FilterSql.h"
#include "filter/conditions/FilterState.h"
#include "filter/conditions/TickedValues.h"
#include "filter/rows/BracketCombo.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <vector>

class QCheckBox;
class QLabel;
class QToolButton;

namespace KOVAVSFDataGridLib {

class FilterGrip;
class FilterValues;
class ValueEdit;

// What the rows of a builder are made for.
struct FilterRowContext
{
    std::vector<FilterField> fields;
    Dialect dialect;
    // Shows the values that a field has in a list of the editor; see ValueEdit.
    std::function<void(const FilterField &, ValueEdit &)> offerValues;
    // Asks which of a field's values a list names, beginning with those that it names already; nothing when
    // the user cancels.
    std::function<std::optional<TickedValues>(const FilterField &, const TickedValues &)> askTicks = {};
    // The records that are filtered; without them no operator compares records.
    std::optional<FilterSql::Records> records = {};
    std::function<QDate()> today = QDate::currentDate;

    FilterScope scope() const { return {today(), records}; }
};

// One condition: brackets, field, operator, values, and how it goes on with the next one.
class FilterRow final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterRow(std::shared_ptr<const FilterRowContext> context, QWidget *parent = nullptr);

    // Gives the parts their names; counted from 1.
    void setNumber(int number);
    // Whether a further row follows, and whether the row may be deleted.
    void setPlace(bool isLast, bool isOnly);
    // In a tree the row is indented and can be moved, and the groups around it say how it is joined; without
    // a level it has brackets and a join of its own.
    void setLevel(std::optional<int> level);
    FilterGrip &grip() const { return *m_grip; }
    // The tab key walks through this row after `previous`; the answer is its last part.
    QWidget *followInTabOrder(QWidget *previous);
    QWidget *lastPart() const;

    // What the row holds now, and the same put into it. False, and the row stays as it is, when its field or
    // operator isn't offered.
    FilterRowState state() const;
    bool setState(const FilterRowState &state);
    FilterChoice choice() const;
    // Whether values are missing and none is begun.
    bool isBlank() const;
    // Begins with a field, and with a value that the next text typed replaces; without a value the keyboard
    // goes to the operator.
    void suggest(const QString &field, const QString &value);
    // The row's condition as it stands now, or that of all other records; without touching what is shown.
    FilterCondition condition(bool isComplement = false) const;
    // The same, and shows what is wrong with it.
    FilterCondition checkedCondition();
    void showFault(const QString &fault);
    // A fault of the brackets is one of all rows together, so a change in any row takes it away.
    void clearBracketFault();
    // Brackets and join, with an empty condition.
    FilterSql::Term frame() const;
    void setFrame(const FilterSql::Term &frame);

    void focusFirstPart();
    void focusFault();

Q_SIGNALS:
    void changed();
    void deleteRequested();
    // The row shall be in a group of its own.
    void encloseRequested();

private:
    void makeParts();
    void layOut();
    ValueEdit *makeValue();
    BracketCombo *makeBrackets(BracketCombo::Side side);
    void placeParts();
    void nameGrip();
    void offerValues(ValueEdit &edit);
    void pickList();
    void putOperator(FilterOperator op);
    void onFieldChanged();
    void onOperatorChanged();
    void onEdited();
    void onNegated();
    void onEditingFinished();
    FilterField field() const;
    FilterOperator op() const;
    bool isStarted() const;

    std::shared_ptr<const FilterRowContext> m_context;
    FilterGrip *m_grip;
    BracketCombo *m_opens;
    QCheckBox *m_not;
    QComboBox *m_field;
    QComboBox *m_operator;
    ValueEdit *m_value;
    QLabel *m_to;
    ValueEdit *m_lastValue;
    QCheckBox *m_withNull;
    FilterValues *m_values = nullptr; // around these four
    BracketCombo *m_closes;
    QComboBox *m_join;
    QToolButton *m_enclose;
    QToolButton *m_delete;
    std::optional<int> m_level;
    bool m_isLast = true;
    int m_number = 1;
    QLabel *m_fault;
    ValueEdit *m_valueAtFault; // what was last found wrong
    QString m_suggested;       // the value that suggest() put in
};

} // namespace KOVAVSFDataGridLib
