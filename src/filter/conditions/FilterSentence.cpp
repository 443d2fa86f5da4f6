#include "filter/conditions/FilterSentence.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterDays.h"
#include "filter/conditions/FilterValue.h"
#include "filter/tree/FilterTree.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString quoted(const QString &text)
{
    return FilterTexts::QuotedInSentence.arg(text);
}

QString wordsOfValue(FieldClass fieldClass, const QString &typed, QDate today)
{
    if (fieldClass == FieldClass::Text)
        return quoted(typed);
    QString text = valueInWords(fieldClass, typed.trimmed());
    const auto days = hasDays(fieldClass) ? readDays(text, today) : std::nullopt;
    if (!days || days->first.toString(Qt::ISODate) == text)
        return text;
    const QString first = days->first.toString(Qt::ISODate);
    const QDate last = days->end.addDays(-1);
    const QString meant =
        last == days->first ? first : FilterTexts::DaysInSentence.arg(first, last.toString(Qt::ISODate));
    return FilterTexts::MeantInSentence.arg(text, meant);
}

QString listInWords(const FilterChoice &choice, QDate today)
{
    QStringList words;
    for (const QString &item : splitFilterList(choice.value))
        words.append(wordsOfValue(choice.field.fieldClass, item, today));
    return words.join(FilterTexts::ListSeparator);
}

QString choiceInWords(const FilterChoice &choice, QDate today)
{
    const FilterOperator op = choice.op;
    const bool isText = choice.field.fieldClass == FieldClass::Text; // if so, values are in quotes
    const QString field = FilterTexts::FieldInSentence.arg(choice.field.caption);
    const auto value = [&](const QString &typed) {
        return wordsOfValue(choice.field.fieldClass, typed, today);
    };
    QString words;
    if (takesCount(op)) {
        const bool isTop = op == FilterOperator::Top;
        const CountedText &form =
            isText ? (isTop ? FilterTexts::FirstTextInSentence : FilterTexts::LastTextInSentence)
                   : (isTop ? FilterTexts::TopInSentence : FilterTexts::BottomInSentence);
        const QString count = choice.value.trimmed();
        words = form.arg(count.toLongLong(), count, field);
    } else if (op == FilterOperator::Duplicated) {
        words = FilterTexts::DuplicatedInSentence.arg(field);
    } else if (positiveOf(op) == FilterOperator::InList) {
        const Text form =
            isNegative(op)
                ? (isText ? FilterTexts::TextNotInListInSentence : FilterTexts::NotInListInSentence)
                : (isText ? FilterTexts::TextInListInSentence : FilterTexts::InListInSentence);
        words = form.arg(field, listInWords(choice, today));
    } else if (valueCount(op) == 2) {
        const Text form = isText ? FilterTexts::TextBetweenInSentence : FilterTexts::BetweenInSentence;
        words = form.arg(field, captionOf(op), value(choice.value), value(choice.lastValue));
    } else {
        const Text form = isText ? FilterTexts::TextComparedInSentence : FilterTexts::ValueComparedInSentence;
        words = valueCount(op) == 1 ? form.arg(field, captionOf(op), value(choice.value))
                                    : FilterTexts::StateInSentence.arg(field, captionOf(op));
    }
    if (choice.isNegated)
        words = FilterTexts::NotInSentence.arg(words);
    if (choice.asksForNull() && choice.includesNull)
        words += FilterTexts::WithNullInSentence;
    return words;
}

class Sentence
{
public:
    Sentence(const QList<SentenceTerm> &terms, QDate today) : m_terms(terms), m_today(today) {}

    // The parts of a group; nested groups are in brackets.
    QString partsOf(const FilterNode &group) const
    {
        QStringList words;
        for (const FilterNode &part : group.parts) {
            const bool isAlone = group.parts.size() == 1 && part.isGroup() && !part.hasBrackets;
            words.append(isAlone ? partsOf(part) : wordsOf(part));
        }
        const bool isAll = group.kind == FilterNode::Kind::All;
        return words.join(isAll ? FilterTexts::AndInSentence() : FilterTexts::OrInSentence());
    }

private:
    QString wordsOf(const FilterNode &part) const
    {
        if (!part.isGroup())
            return choiceInWords(m_terms.at(part.row).choice, m_today);
        const Text form = part.kind == FilterNode::Kind::None ? FilterTexts::NoneInSentence
                                                              : FilterTexts::BracketsInSentence;
        return form.arg(partsOf(part));
    }

    const QList<SentenceTerm> &m_terms;
    QDate m_today;
};

} // namespace

QString sentenceOf(const QList<SentenceTerm> &terms, QDate today)
{
    QList<FilterSql::Term> frames;
    for (const SentenceTerm &term : terms)
        frames.append({{}, term.opens, term.closes, term.orNext, term.negatedOpens});
    const auto tree = treeOf(frames);
    return tree ? Sentence(terms, today).partsOf(*tree) + FilterTexts::EndOfSentence() : QString();
}

QList<SentenceTerm> termsOf(const FilterState &rows, const std::vector<FilterField> &fields)
{
    QList<SentenceTerm> terms;
    for (const FilterRowState &row : rows) {
        const auto found = std::ranges::find(fields, row.field, &FilterField::caption);
        const FilterField field = found == fields.end() ? FilterField{row.field, row.field} : *found;
        terms.append({{field, row.op, row.value, row.lastValue, row.isNegated, row.includesNull},
                      row.opens,
                      row.closes,
                      row.orNext,
                      row.negatedOpens});
    }
    return terms;
}

} // namespace KOVAVSFDataGridLib
