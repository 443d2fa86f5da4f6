#include "filter/rows/FilterRows.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterSentence.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FilterRows::FilterRows(QWidget *parent)
    : QWidget(parent), m_dropMark(new QFrame(this)), m_layout(new QVBoxLayout(this))
{
    m_dropMark->setObjectName(u"fraDrop"_s);
    m_dropMark->setFrameShape(QFrame::HLine);
    m_dropMark->setLineWidth(2);
    m_dropMark->hide();
    m_layout->addStretch();
    m_heads.append(newHead()); // before the rows, for the tab order
    start(std::make_shared<FilterRowContext>());
}

void FilterRows::start(std::shared_ptr<const FilterRowContext> context)
{
    const bool hadFields = m_context && !m_context->fields.empty();
    m_context = std::move(context);
    // A row is not built twice for a dialog that opens.
    if (m_rows.size() == 1 && !hadFields)
        return m_rows.constFirst()->setContext(m_context);
    const bool wasGrouped = isGrouped();
    m_outline.reset();
    const QList<FilterRow *> previous = std::exchange(m_rows, {});
    FilterRow *first = add();
    // In tab order, between the widgets before and after the rows; new parts would be last.
    if (!previous.isEmpty())
        first->followInTabOrder(previous.constLast()->lastPart());
    qDeleteAll(previous);
    setGrouped(wasGrouped);
}

FilterRow *FilterRows::addTo(qsizetype group)
{
    FilterRow *const row = append();
    if (m_outline)
        m_outline->add(group, m_rows.size() - 1);
    arrange();
    return row;
}

FilterRow *FilterRows::append()
{
    auto *row = new FilterRow(m_context, this);
    connect(row, &FilterRow::changed, this, &FilterRows::onRowChanged);
    connect(row, &FilterRow::deleteRequested, this, [this, row] { remove(row); });
    connect(row, &FilterRow::encloseRequested, this, [this, row] {
        outline().enclose(lineOf(row));
        arrange();
    });
    connectGrip(row->grip(), [this, row] { return lineOf(row); });
    if (!m_rows.isEmpty())
        row->followInTabOrder(m_rows.constLast()->lastPart());
    m_rows.append(row);
    return row;
}

void FilterRows::focusFirstPart()
{
    m_rows.constFirst()->focusFirstPart();
}

void FilterRows::remove(FilterRow *row)
{
    const qsizetype at = m_rows.indexOf(row);
    if (m_outline) {
        m_outline->removeRow(at);
        m_rows.removeAt(at);
    } else {
        // Brackets that include other rows too are kept around the remaining ones.
        const auto tree = treeOf(frames());
        const auto left = tree ? withRows(*tree, [at](qsizetype each) { return each != at; }) : std::nullopt;
        if (left)
            setFrames(flatOf(*left));
        m_rows.removeAt(at);
    }
    // Its parts must no longer be found, but the click that caused this is still in progress.
    row->hide();
    row->setParent(nullptr);
    row->deleteLater();
    arrange();
    m_rows.at(std::min(at, m_rows.size() - 1))->focusFirstPart();
}

void FilterRows::arrange()
{
    if (m_outline)
        orderRows();
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        FilterRow &row = *m_rows.at(i);
        row.setNumber(static_cast<int>(i) + 1);
        row.setPlace(i + 1 == m_rows.size(), m_rows.size() == 1);
        row.setLevel(m_outline ? std::optional(m_outline->lines().at(lineOf(&row)).level) : std::nullopt);
    }
    layOutLines();
    onRowChanged();
}

QList<FilterSql::Term> FilterRows::frames() const
{
    QList<FilterSql::Term> frames;
    for (const FilterRow *row : m_rows)
        frames.append(row->frame());
    return frames;
}

void FilterRows::setFrames(const QList<FilterPlace> &places)
{
    for (const FilterPlace &place : places)
        m_rows.at(place.row)->setFrame(place.term);
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
    const auto outline = std::exchange(m_outline, std::nullopt);
    const qsizetype before = m_rows.size();
    std::optional<QString> missing;
    // The rows are arranged together below: for each one, the time would grow with the square of their
    // number.
    QSignalBlocker oneChange(this);
    for (const FilterRowState &each : state) {
        if (!append()->setState(each)) {
            missing = each.field;
            break;
        }
    }
    oneChange.unblock();
    // Removes either the old or the new rows.
    const qsizetype first = missing ? before : 0;
    const qsizetype count = missing ? m_rows.size() - before : before;
    for (FilterRow *gone : m_rows.mid(first, count)) {
        m_rows.removeOne(gone);
        delete gone;
    }
    if (outline && missing)
        m_outline = outline;
    arrange();
    setGrouped(outline.has_value());
    return missing;
}

void FilterRows::suggest(const QString &field, const QString &value)
{
    m_rows.constFirst()->suggest(field, value);
}

// The rows that have a condition; no value if brackets don't match.
std::optional<FilterNode> FilterRows::completeTree() const
{
    const auto tree = treeOf(frames());
    return tree
               ? withRows(*tree, [this](qsizetype row) { return !m_rows.at(row)->condition().sql.isEmpty(); })
               : std::nullopt;
}

bool FilterRows::isBlank() const
{
    return m_rows.size() == 1 && m_rows.constFirst()->isBlank();
}

bool FilterRows::isAlternative() const
{
    const auto tree = completeTree();
    return tree && tree->kind == FilterNode::Kind::Any && tree->parts.size() > 1;
}

QString FilterRows::sentence() const
{
    const auto tree = completeTree();
    QList<SentenceTerm> terms;
    for (const FilterPlace &place : tree ? flatOf(*tree) : QList<FilterPlace>())
        terms.append({m_rows.at(place.row)->choice(), place.term.opens, place.term.closes, place.term.orNext,
                      place.term.negatedOpens});
    return sentenceOf(terms, m_context->today());
}

bool FilterRows::needsBrackets() const
{
    const auto tree = treeOf(frames());
    return tree && KOVAVSFDataGridLib::needsBrackets(*tree);
}

void FilterRows::addBrackets()
{
    if (const auto tree = treeOf(frames()))
        setFrames(flatOf(withBrackets(*tree)));
}

QString FilterRows::preview() const
{
    return written(completeTree());
}

std::optional<FilterNode> FilterRows::builtTree() const
{
    auto tree = completeTree();
    if (!tree || (tree->kind != FilterNode::Kind::All && tree->parts.size() > 1))
        return tree;
    std::erase_if(tree->parts, [this](const FilterNode &part) {
        return !part.isGroup() && !part.isComplement && m_rows.at(part.row)->isInForce();
    });
    return tree->parts.empty() ? std::nullopt : tree;
}

FilterState FilterRows::builtState() const
{
    const auto tree = builtTree();
    FilterState state;
    for (const FilterPlace &place : tree ? flatOf(*tree) : QList<FilterPlace>()) {
        FilterRowState row = m_rows.at(place.row)->state();
        row.opens = place.term.opens;
        row.closes = place.term.closes;
        row.orNext = place.term.orNext;
        row.negatedOpens = place.term.negatedOpens;
        state.append(row);
    }
    return state;
}

QString FilterRows::written(const std::optional<FilterNode> &tree) const
{
    QList<FilterSql::Term> terms;
    for (const FilterPlace &place : tree ? flatOf(withoutNone(*tree)) : QList<FilterPlace>()) {
        terms.append(place.term);
        terms.last().condition = m_rows.at(place.row)->condition(place.isComplement).sql;
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
    const qsizetype at = FilterSql::unmatchedBracket(frames());
    if (at < 0)
        return false;
    m_rows.at(at)->showFault(FilterTexts::UnmatchedBracket);
    m_rows.at(at)->focusFirstPart();
    return true;
}

} // namespace KOVAVSFDataGridLib
