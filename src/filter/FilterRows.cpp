#include "filter/FilterRows.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterSentence.h"

#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

FilterRows::FilterRows(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->addStretch();
    start(std::make_shared<FilterRowContext>());
}

void FilterRows::start(std::shared_ptr<const FilterRowContext> context)
{
    m_context = std::move(context);
    const QList<FilterRow *> previous = std::exchange(m_rows, {});
    FilterRow *first = add();
    // Between what stands before and behind the rows, which a new part alone would come after.
    if (!previous.isEmpty())
        first->followInTabOrder(*previous.constLast());
    qDeleteAll(previous);
}

FilterRow *FilterRows::add()
{
    auto *row = new FilterRow(m_context, this);
    connect(row, &FilterRow::changed, this, &FilterRows::onRowChanged);
    connect(row, &FilterRow::deleteRequested, this, [this, row] { remove(row); });
    if (!m_rows.isEmpty())
        row->followInTabOrder(*m_rows.constLast());
    m_layout->insertWidget(static_cast<int>(m_rows.size()), row);
    m_rows.append(row);
    arrange();
    return row;
}

void FilterRows::focusFirstPart()
{
    m_rows.constFirst()->focusFirstPart();
}

void FilterRows::remove(FilterRow *row)
{
    const qsizetype at = m_rows.indexOf(row);
    m_rows.removeAt(at);
    // Brackets that reach beyond the row stay around what is left.
    FilterSql::Term gone = row->frame();
    const int own = std::min(gone.opens, gone.closes);
    if (at < m_rows.size()) {
        const FilterSql::Term next = m_rows.at(at)->frame();
        m_rows.at(at)->setBrackets(next.opens + gone.opens - own, next.closes);
    }
    if (at > 0) {
        const FilterSql::Term previous = m_rows.at(at - 1)->frame();
        m_rows.at(at - 1)->setBrackets(previous.opens, previous.closes + gone.closes - own);
    }
    // Its parts must not be found any more, but the click that brought this about is still under way in it.
    row->hide();
    row->setParent(nullptr);
    row->deleteLater();
    arrange();
    m_rows.at(std::min(at, m_rows.size() - 1))->focusFirstPart();
}

void FilterRows::arrange()
{
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        m_rows.at(i)->setNumber(static_cast<int>(i) + 1);
        m_rows.at(i)->setPlace(i + 1 == m_rows.size(), m_rows.size() == 1);
    }
    onRowChanged();
}

void FilterRows::onRowChanged()
{
    for (FilterRow *row : std::as_const(m_rows))
        row->clearBracketFault();
    Q_EMIT changed();
}

FilterState FilterRows::state() const
{
    FilterState state;
    for (const FilterRow *row : m_rows)
        state.append(row->state());
    return state;
}

std::optional<QString> FilterRows::setState(const FilterState &state)
{
    const qsizetype before = m_rows.size();
    std::optional<QString> missing;
    for (const FilterRowState &each : state) {
        if (!add()->setState(each)) {
            missing = each.field;
            break;
        }
    }
    // Either those before or those just made go.
    const qsizetype first = missing ? before : 0;
    const qsizetype count = missing ? m_rows.size() - before : before;
    for (FilterRow *gone : m_rows.mid(first, count)) {
        m_rows.removeOne(gone);
        delete gone;
    }
    arrange();
    return missing;
}

void FilterRows::suggest(const QString &field, const QString &value)
{
    m_rows.constFirst()->suggest(field, value);
}

QString FilterRows::sentence() const
{
    QList<SentenceTerm> terms;
    QList<FilterSql::Term> frames;
    for (const FilterRow *row : m_rows) {
        if (row->condition().sql.isEmpty())
            continue;
        const FilterSql::Term frame = row->frame();
        terms.append({row->choice(), frame.opens, frame.closes, frame.orNext});
        frames.append(frame);
    }
    return FilterSql::unmatchedBracket(frames) < 0 ? sentenceOf(terms, m_context->today()) : QString();
}

QString FilterRows::preview() const
{
    QList<FilterSql::Term> terms;
    for (const FilterRow *row : m_rows) {
        FilterSql::Term term = row->frame();
        term.condition = row->condition().sql;
        if (!term.condition.isEmpty())
            terms.append(term);
    }
    return FilterSql::join(terms);
}

QString FilterRows::checkedText()
{
    FilterRow *firstFault = nullptr;
    for (FilterRow *row : std::as_const(m_rows)) {
        if (!row->checkedCondition().fault.isEmpty() && !firstFault)
            firstFault = row;
    }
    if (firstFault) {
        firstFault->focusFault();
        return {};
    }
    return markUnmatchedBracket() ? QString() : preview();
}

bool FilterRows::markUnmatchedBracket()
{
    QList<FilterSql::Term> terms;
    for (const FilterRow *row : std::as_const(m_rows))
        terms.append(row->frame());
    const qsizetype at = FilterSql::unmatchedBracket(terms);
    if (at < 0)
        return false;
    m_rows.at(at)->showFault(FilterTexts::UnmatchedBracket);
    m_rows.at(at)->focusFirstPart();
    return true;
}

} // namespace KOVAVSFDataGridLib
