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

// The common input for the rows of a builder.
struct FilterRowContext
{
    std::vector<FilterField> fields;
    Dialect dialect;
    // Shows the values of a field in a list of the editor; see ValueEdit.
    std::function<void(const FilterField &, ValueEdit &)> offerValues;
    // Lets the user choose the values of a list, starting with those already in it; no value if the user
    // cancels.
    std::function<std::optional<TickedValues>(const FilterField &, const TickedValues &)> askTicks = {};
    // The filtered records; without them, no operator compares records.
    std::optional<FilterSql::Records> records = {};
    std::function<QDate()> today = QDate::currentDate;
    // The condition in force that selects the same records as this condition of a row; empty if there is
    // none. The row is written like that one then.
    std::function<QString(const QString &)> textInForce = {};

    FilterScope scope() const { return {today(), records}; }
};

// One condition: brackets, field, operator, values, and how it is joined to the next one.
class FilterRow final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterRow(std::shared_ptr<const FilterRowContext> context, QWidget *parent = nullptr);
    // Offers other fields, in a row that has had none.
    void setContext(std::shared_ptr<const FilterRowContext> context);

    // Sets the object names of the parts; `number` is from 1.
    void setNumber(int number);
    // Whether another row follows, and whether the row may be deleted.
    void setPlace(bool isLast, bool isOnly);
    // In a tree, the row is indented and can be moved, and the groups around it determine how it is joined.
    // Without a level, it has brackets and its own join.
    void setLevel(std::optional<int> level);
    FilterGrip &grip() const { return *m_grip; }
    // Puts its parts into the tab order after `previous`, and returns the last one.
    QWidget *followInTabOrder(QWidget *previous);
    QWidget *lastPart() const;

    // The contents of the row, and the reverse. Returns false and changes nothing if the field or operator
    // isn't offered.
    FilterRowState state() const;
    bool setState(const FilterRowState &state);
    FilterChoice choice() const;
    // Whether values are missing and none is begun.
    bool isBlank() const;
    // Starts with a field and a value, which typing replaces. Without a value, the focus moves to the
    // operator.
    void suggest(const QString &field, const QString &value);
    // The row's current condition, or that of all other records. Does not change what is shown.
    FilterCondition condition(bool isComplement = false) const;
    // Whether it is a condition in force that somebody else has made, as that is.
    bool isInForce() const { return !textInForce().isEmpty(); }
    // The same, but also shows an error.
    FilterCondition checkedCondition();
    void showFault(const QString &fault);
    // An error in the brackets concerns all rows, so a change in any row clears it.
    void clearBracketFault();
    // Brackets and join, with an empty condition.
    FilterSql::Term frame() const;
    void setFrame(const FilterSql::Term &frame);

    void focusFirstPart();
    void focusFault();

Q_SIGNALS:
    void changed();
    void deleteRequested();
    // The user wants to put the row into a new group.
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
    QString textInForce() const;
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
    FilterValues *m_values = nullptr; // contains these four
    BracketCombo *m_closes;
    QComboBox *m_join;
    QToolButton *m_enclose;
    QToolButton *m_delete;
    std::optional<int> m_level;
    bool m_isLast = true;
    int m_number = 1;
    QLabel *m_fault;
    ValueEdit *m_valueAtFault; // the one with the last error found
    QString m_suggested;       // the value set by suggest()
};

} // namespace KOVAVSFDataGridLib
