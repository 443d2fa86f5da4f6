#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/conditions/FilterSentence.h"
#include "filter/rows/FilterRows.h"
#include "forms/Messages.h"

#include <QtWidgets/QLineEdit>

// What the builder holds, put in and taken out.
namespace KOVAVSFDataGridLib {

BuiltFilter SetFilter::State() const
{
    if (m_isByHand)
        return {.condition = m_condition->text()};
    return {.rows = m_rows->state()};
}

void SetFilter::PutState(const BuiltFilter &state)
{
    if (!state.condition.isEmpty()) {
        m_condition->setText(state.condition);
        onConditionEdited();
    } else if (!state.rows.isEmpty()) {
        if (m_isByHand)
            setByHand(false);
        const auto missing = m_rows->setState(state.rows);
        if (missing)
            show(FilterTexts::FieldMissing.arg(*missing));
        else
            m_rows->focusFirstPart();
    }
    // What is typed next takes its place.
    m_condition->selectAll();
    m_stateBefore = State();
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
    if (!filter.condition.isEmpty())
        return filter.condition;
    QString words = sentenceOf(termsOf(filter.rows, m_fields), QDate::currentDate());
    const QString end = FilterTexts::EndOfSentence;
    if (words.endsWith(end))
        words.chop(end.size());
    return words;
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
