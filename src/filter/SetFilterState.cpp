#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/conditions/FilterSentence.h"
#include "filter/count/FilterCount.h"
#include "filter/kept/KeptConditions.h"
#include "filter/restored/RestoredRows.h"
#include "filter/rows/FilterRows.h"
#include "forms/Messages.h"
#include "query/conditions/ConditionParts.h"

#include <QtCore/QJsonDocument>
#include <QtWidgets/QLineEdit>

#include <algorithm>

// Saves and restores the contents of the builder.
namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The text of a condition that was typed; empty for others.
QString typedTextOf(const ConditionInForce &condition)
{
    const auto built = builtFilterOf(QJsonDocument::fromJson(condition.built.toUtf8()).object());
    return condition.field.isEmpty() && built ? built->condition : QString();
}

bool isTyped(const ConditionInForce &condition)
{
    return !typedTextOf(condition).isEmpty();
}

} // namespace

BuiltFilter SetFilter::State() const
{
    const QStringList kept = m_kept->kept();
    if (m_isByHand)
        return {.condition = m_condition->text(), .kept = kept};
    return {.rows = m_rows->isBlank() && !kept.isEmpty() ? FilterState() : m_rows->state(), .kept = kept};
}

void SetFilter::PutState(const BuiltFilter &state)
{
    // If anything is wrong, all stays as it was.
    const auto canKeep = [this](const QString &condition) { return m_kept->canAdd(condition); };
    if (!std::ranges::all_of(state.kept, canKeep) || !hasMatchedBrackets(state.rows))
        return show(FilterTexts::UnmatchedBracket);
    if (!state.condition.isEmpty()) {
        m_condition->setText(state.condition);
        onConditionEdited();
    } else if (!state.rows.isEmpty() || !state.kept.isEmpty()) {
        if (state.rows.isEmpty())
            m_rows->startAgain();
        else if (const auto missing = m_rows->setState(state.rows))
            return show(FilterTexts::FieldMissing.arg(*missing));
        if (m_isByHand)
            backToRows();
        else
            m_rows->focusFirstPart();
    }
    m_kept->clearTicks();
    for (const QString &kept : state.kept)
        m_kept->add(kept);
    m_kept->followInTabOrder(m_saved);
    // Selected, so that typing replaces it.
    m_condition->selectAll();
    m_stateBefore = State();
}

BuiltFilter SetFilter::BuiltState() const
{
    BuiltFilter state = State();
    if (!state.rows.isEmpty())
        state.rows = m_rows->builtState();
    return state;
}

void SetFilter::Begin(const std::vector<ConditionInForce> &conditions, const QString &field)
{
    FilterScope scope;
    if (m_source.hasTable())
        scope.records = {m_source.fromText(), m_currentCondition};
    // One that was typed can be edited where nothing else takes its place.
    const auto typed = std::ranges::find_if(conditions, isTyped);
    const bool canBeTyped = typed != conditions.end() && field.isEmpty();
    BuiltFilter state;
    bool isWhole = true;
    for (const ConditionInForce &each : conditions) {
        const bool isLine = canBeTyped && each.built.isEmpty();
        const auto rows = isLine ? std::nullopt : rowsOf(each, m_source.dialect(), m_fields, scope);
        auto joined = rows ? joinedRows(state.rows, *rows) : std::nullopt;
        if (joined) {
            noteInForce(each, *rows, scope);
            state.rows = *std::move(joined);
        } else if (m_kept->canAdd(each.text)) {
            state.kept.append(each.text);
        } else {
            isWhole = false;
        }
    }
    if (canBeTyped && state.rows.isEmpty()) {
        state.kept.removeOne(typed->text);
        state.condition = typedTextOf(*typed);
    }
    PutState(state);
    if (!field.isEmpty())
        askFor(field);
    if (!isWhole)
        show(FilterTexts::UnmatchedBracket);
}

// A row that somebody else's condition became is written as that one while it selects the same records. Of
// two that select the same, a heading's is written, which finds it there again.
void SetFilter::noteInForce(const ConditionInForce &condition, const FilterState &rows,
                            const FilterScope &scope)
{
    const bool isHeadings = !condition.field.isEmpty();
    if (!isHeadings && !condition.built.isEmpty())
        return; // it was built
    const Dialect dialect = m_source.dialect();
    const FilterChoice choice = termsOf(rows, m_fields).constFirst().choice;
    const QString written = conditionOf(dialect, choice, scope).sql;
    if (isHeadings || !m_inForce.contains(written))
        m_inForce.insert(written, isLooseCondition(condition.text, dialect) ? u'(' + condition.text + u')'
                                                                            : condition.text);
}

void SetFilter::askFor(const QString &field)
{
    const FilterState rows = m_rows->state();
    if (m_rows->isBlank()) {
        m_rows->suggest(field, {});
    } else if (std::ranges::find(rows, field, &FilterRowState::field) == rows.end()) {
        if (const auto bracketed = joinedRows(rows, {FilterRowState{.field = field}}))
            m_rows->setState(bracketed->first(rows.size()));
        m_rows->add()->suggest(field, {});
    }
    m_stateBefore = State();
}

QString SetFilter::sentence() const
{
    const QStringList kept = m_kept->wordsOf(m_kept->kept());
    QString rows = m_rows->sentence();
    if (kept.isEmpty())
        return rows;
    rows.chop(rows.isEmpty() ? 0 : FilterTexts::EndOfSentence().size());
    QStringList parts = kept;
    if (!rows.isEmpty())
        parts.append(m_rows->isAlternative() ? FilterTexts::BracketsInSentence.arg(rows) : rows);
    return parts.join(FilterTexts::AndInSentence()) + FilterTexts::EndOfSentence();
}

void SetFilter::onKeptChanged()
{
    show({});
    if (m_isByHand)
        m_count->restart();
    else
        onRowsChanged();
}

void SetFilter::Suggest(const QString &field, const QString &value)
{
    m_rows->suggest(field, value);
    m_condition->selectAll();
    m_stateBefore = State();
}

std::optional<BuiltFilter> SetFilter::completeState()
{
    if (ConditionText().isEmpty())
        return std::nullopt;
    return State();
}

QString SetFilter::wordsFor(const BuiltFilter &filter) const
{
    QStringList parts = m_kept->wordsOf(filter.kept);
    QString words = filter.condition;
    if (!filter.rows.isEmpty())
        words = sentenceOf(termsOf(filter.rows, m_fields), QDate::currentDate());
    const QString end = FilterTexts::EndOfSentence;
    if (!filter.rows.isEmpty() && words.endsWith(end))
        words.chop(end.size());
    if (!words.isEmpty())
        parts.append(words);
    return parts.join(FilterTexts::AndInSentence());
}

void SetFilter::recall(const BuiltFilter &filter)
{
    const QPointer<SetFilter> alive(this);
    if (IsChanged() &&
        !Messages::ask(this, FilterTexts::GiveUp, FilterTexts::Title, QMessageBox::Question, QMessageBox::No))
        return;
    if (alive)
        PutState(filter);
}

} // namespace KOVAVSFDataGridLib
