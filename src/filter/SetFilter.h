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

// Builds a condition for the rows of a table. Prepare it in this order: Initialize, one of SetConnection and
// SetConnectionString, SetCurrentTable, SetTableName; ConditionText() then answers what was built.
class SetFilter final : public QWidget
{
    Q_OBJECT

public:
    explicit SetFilter(QWidget *parent = nullptr);

    // `caption` stands before the table's name.
    void Initialize(const QString &caption, AllDBType database);
    // An open connection, which is shared, or a string that is opened when it is needed.
    void SetConnection(std::shared_ptr<ADODB::Connection> connection);
    void SetConnectionString(const QString &text);
    // What the user is shown as filtered.
    void SetCurrentTable(const QString &name);
    // The text behind FROM whose fields are offered; reads them. When that fails the builder says why, and a
    // condition can still be typed.
    void SetTableName(const QString &fromText);

    // The same with the fields of a result.
    void SetResult(const FilteredResult &result);

    // The condition that the filtered records meet already, for what compares them with each other. Before
    // SetTableName and SetResult.
    void SetCurrentCondition(const QString &condition) { m_currentCondition = condition; }

    // What was built or typed, and the same put in. When a field of it isn't there any more, the builder says
    // so and stays as it is.
    BuiltFilter State() const;
    void PutState(const BuiltFilter &state);
    // As FilterRow has it. The user has not changed anything then, and neither after Begin().
    void Suggest(const QString &field, const QString &value);
    // Begins with conditions in force: as rows where they were made from such or from ticked values, else as
    // lines that are kept unless the user unticks them. A field that isn't empty is asked for besides.
    void Begin(const std::vector<ConditionInForce> &conditions, const QString &field);
    // Whether the user has changed anything since the builder was prepared.
    bool IsChanged() const { return State() != m_stateBefore; }

    // Where the filters of the table are kept that the user saves; without it none are.
    void SetShelf(FilterShelf shelf) { m_saved->setShelf(std::move(shelf)); }

    // Whether the user wants to see the condition as SQL. Before SetTableName and SetResult.
    void SetSqlWanted(bool isWanted) { m_isSqlWanted = isWanted; }
    bool IsSqlWanted() const { return m_isSqlWanted; }

    // Says below the condition what is wrong with it, until it is changed.
    void ShowNotice(const QString &notice) { show(notice); }

    // The condition, ready to be joined to others by AND. Empty when there is none or something is wrong with
    // it, which is then shown.
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
    void onKeptChanged();
    // Values that were read once are shown again without asking the database.
    void offerValues(const FilterField &field, ValueEdit &edit, int most);
    void onValuesArrived();
    void stopReading();
    void show(const QString &notice);

    FilterSource m_source;
    QHash<QString, OfferedValues> m_knownValues; // by the field as written
    std::unique_ptr<ValueReading> m_reading;     // that is under way, and what for
    QPointer<ValueEdit> m_readingFor;
    FilterField m_readingOf;
    std::optional<OfferedValues> m_shownValues;
    QString m_caption;
    QString m_currentCondition;
    QString m_builtCondition;
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
