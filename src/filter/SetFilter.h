#pragma once

#include "filter/FilterSource.h"
#include "filter/saved/SavedFilterMenu.h"
#include "query/conditions/ConditionInForce.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace KOVAVSFDataGridLib {

class FilterCount;
class FilterRows;
class KeptConditions;
class SentenceLabel;
class ValueEdit;

// Builds a condition for the rows of a table. Call, in this order, Initialize, SetConnection or
// SetConnectionString, SetCurrentTable and SetTableName. ConditionText() then returns the condition.
class SetFilter final : public QWidget
{
    Q_OBJECT

public:
    explicit SetFilter(QWidget *parent = nullptr);

    // `caption` is shown before the table's name.
    void Initialize(const QString &caption, AllDBType database);
    // An open connection, which is shared, or a string that is opened when needed.
    void SetConnection(std::shared_ptr<ADODB::Connection> connection);
    void SetConnectionString(const QString &text);
    // The name shown to the user for what is filtered.
    void SetCurrentTable(const QString &name);
    // The text after FROM; reads and offers its fields. If that fails, shows the reason; a condition can
    // still be typed.
    void SetTableName(const QString &fromText);

    // The same with the fields of a result.
    void SetResult(const FilteredResult &result);

    // The condition that the filtered records already meet, for operators that compare records. Call it
    // before SetTableName and SetResult.
    void SetCurrentCondition(const QString &condition) { m_currentCondition = condition; }

    // What was built or typed, and the reverse. If a field no longer exists or brackets don't match, PutState
    // shows the reason and changes nothing.
    BuiltFilter State() const;
    // The same without rows that are a condition in force as somebody else has made it.
    BuiltFilter BuiltState() const;
    void PutState(const BuiltFilter &state);
    // As FilterRow has it. The user has not changed anything then, and neither after Begin().
    void Suggest(const QString &field, const QString &value);
    // Begins with conditions in force: as rows where there are rows for them, which leave them as they are
    // until the user changes them; else as lines that are kept unless the user unticks them. A field that
    // isn't empty is asked for besides.
    void Begin(const std::vector<ConditionInForce> &conditions, const QString &field);
    // Whether the user has changed anything since the builder was prepared.
    bool IsChanged() const { return State() != m_stateBefore; }

    // Where the user's saved filters of the table are stored; without it none are offered.
    void SetShelf(FilterShelf shelf) { m_saved->setShelf(std::move(shelf)); }

    // Whether the user wants to see the condition as SQL. Call it before SetTableName and SetResult.
    void SetSqlWanted(bool isWanted) { m_isSqlWanted = isWanted; }
    bool IsSqlWanted() const { return m_isSqlWanted; }

    // Shows below the condition what is wrong with it, until it is changed.
    void ShowNotice(const QString &notice) { show(notice); }

    // The condition, in a form that can be joined to others by AND. Empty if there is none or if it has an
    // error, which is then shown.
    QString ConditionText();
    // The same without the conditions in force that are kept; may be empty then. Of the last ConditionText().
    const QString &BuiltCondition() const { return m_builtCondition; }

private:
    void layOut();
    void readFields();
    void addRow();
    void onGroupsToggled(bool on);
    std::optional<BuiltFilter> completeState();
    QString wordsFor(const BuiltFilter &filter) const;
    void recall(const BuiltFilter &filter);
    void showFocusedPart();
    void onRowsChanged();
    void onConditionEdited();
    void backToRows();
    void showSql();
    std::optional<CountRequest> countRequest();
    void setByHand(bool isByHand);
    void enableParts();
    std::optional<QString> builtText();
    QString conditionByHand();
    QString sentence() const;
    void askFor(const QString &field);
    void noteInForce(const ConditionInForce &condition, const FilterState &rows, const FilterScope &scope);
    void onKeptChanged();
    // Values that were read before are shown without querying the database.
    void offerValues(const FilterField &field, ValueEdit &edit, int most);
    void onValuesArrived();
    void stopReading();
    void show(const QString &notice);

    FilterSource m_source;
    QHash<QString, OfferedValues> m_knownValues; // by the field's name for SQL
    std::unique_ptr<ValueReading> m_reading;     // the current one, and its field
    QPointer<ValueEdit> m_readingFor;
    FilterField m_readingOf;
    std::optional<OfferedValues> m_shownValues;
    QString m_caption;
    QString m_currentCondition;
    QString m_builtCondition;
    QHash<QString, QString> m_inForce; // as they are, by the conditions that their rows would have
    BuiltFilter m_stateBefore;
    std::vector<FilterField> m_fields;
    QLabel *m_table;
    SavedFilterMenu *m_saved;
    QScrollArea *m_scroll;
    KeptConditions *m_kept; // above the rows, in the area too
    FilterRows *m_rows;
    QPushButton *m_add;
    QCheckBox *m_groups;
    QPushButton *m_addBrackets;
    SentenceLabel *m_sentence; // the rows in words
    FilterCount *m_count;
    QCheckBox *m_sql;
    QLabel *m_conditionLabel;
    QLineEdit *m_condition;
    QPushButton *m_backToRows;
    QLabel *m_notice;
    bool m_isByHand = false;
    bool m_isSqlWanted = false;
};

} // namespace KOVAVSFDataGridLib
