#include "filter/conditions/FilterSentence.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterDays.h"
#include "filter/conditions/FilterValue.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool hasDays(FieldClass fieldClass)
{
    return fieldClass == FieldClass::Date || fieldClass == FieldClass::Moment;
}

QString quoted(const QString &text)
{
    return FilterTexts::QuotedInSentence.arg(text);
}

QString valueInWords(FieldClass fieldClass, const QString &typed, QDate today)
{
    if (fieldClass == FieldClass::Text)
        return quoted(typed);
    const QString text = typed.trimmed();
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
        words.append(valueInWords(choice.field.fieldClass, item, today));
    return words.join(FilterTexts::ListSeparator);
}

QString choiceInWords(const FilterChoice &choice, QDate today)
{
    const FilterOperator op = choice.op;
    const QString field = FilterTexts::FieldInSentence.arg(choice.field.caption);
    const auto value = [&](const QString &typed) {
        return valueInWords(choice.field.fieldClass, typed, today);
    };
    QString words;
    if (takesCount(op)) {
        const Text form =
            op == FilterOperator::Top ? FilterTexts::TopInSentence : FilterTexts::BottomInSentence;
        words = form.arg(field, choice.value.trimmed());
    } else if (op == FilterOperator::Duplicated) {
        words = FilterTexts::DuplicatedInSentence.arg(field);
    } else if (positiveOf(op) == FilterOperator::InList) {
        const Text form = isNegative(op) ? FilterTexts::NotInListInSentence : FilterTexts::InListInSentence;
        words = form.arg(field, listInWords(choice, today));
    } else if (valueCount(op) == 2) {
        words = FilterTexts::BetweenInSentence.arg(field, captionOf(op), value(choice.value),
                                                   value(choice.lastValue));
    } else {
        const Text form = choice.field.fieldClass == FieldClass::Text ? FilterTexts::TextComparedInSentence
                                                                      : FilterTexts::ValueComparedInSentence;
        words = valueCount(op) == 1 ? form.arg(field, captionOf(op), value(choice.value))
                                    : FilterTexts::StateInSentence.arg(field, captionOf(op));
    }
    if (choice.isNegated)
        words = FilterTexts::NotInSentence.arg(words);
    if (choice.asksForNull() && choice.includesNull)
        words += FilterTexts::WithNullInSentence;
    return words;
}

// Reads terms as a database does, and brackets the ones that AND joins among others that OR joins.
class Reader
{
public:
    Reader(const QList<SentenceTerm> &terms, QDate today) : m_terms(terms), m_today(today) {}

    // From the next term up to the bracket that closes this level, or to the end.
    QString level()
    {
        QStringList alternatives;
        QStringList joined;
        bool hasBoth = false;
        for (;;) {
            joined.append(operand());
            const bool isEnd = m_at >= m_terms.size() || m_pendingCloses > 0;
            const bool isOr = !isEnd && m_terms.at(m_at - 1).orNext;
            if (isEnd || isOr) {
                hasBoth |= joined.size() > 1;
                alternatives.append(joined.join(FilterTexts::AndInSentence));
                m_isCompound.append(joined.size() > 1);
                joined.clear();
            }
            if (isEnd)
                break;
        }
        const qsizetype first = m_isCompound.size() - alternatives.size();
        for (qsizetype i = 0; i < alternatives.size(); ++i) {
            if (hasBoth && alternatives.size() > 1 && m_isCompound.at(first + i))
                alternatives[i] = FilterTexts::BracketsInSentence.arg(alternatives.at(i));
        }
        m_isCompound.resize(first);
        return alternatives.join(FilterTexts::OrInSentence);
    }

private:
    // A term, or all that its brackets enclose.
    QString operand()
    {
        if (m_pendingOpens < 0)
            m_pendingOpens = m_terms.at(m_at).opens;
        if (m_pendingOpens > 0) {
            --m_pendingOpens;
            const QString inner = level();
            // A bracket that is never closed ends with the last term.
            m_pendingCloses = std::max(0, m_pendingCloses - 1);
            return FilterTexts::BracketsInSentence.arg(inner);
        }
        const SentenceTerm &term = m_terms.at(m_at++);
        m_pendingOpens = -1;
        m_pendingCloses = term.closes;
        return choiceInWords(term.choice, m_today);
    }

    const QList<SentenceTerm> &m_terms;
    QDate m_today;
    qsizetype m_at = 0;
    int m_pendingOpens = -1; // brackets of the next term that were not entered yet; -1 before they are read
    int m_pendingCloses = 0;
    QList<bool> m_isCompound;
};

} // namespace

QString sentenceOf(const QList<SentenceTerm> &terms, QDate today)
{
    if (terms.isEmpty())
        return {};
    return Reader(terms, today).level() + FilterTexts::EndOfSentence;
}

} // namespace KOVAVSFDataGridLib
