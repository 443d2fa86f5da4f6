#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/rows/ShowSorted.h"
#include "session/history/SharedHistory.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownOrder.h"

#include <algorithm>

// Sorts the records by a column, or by several in succession.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool canSort(Session &session, int)
{
    return session.result().hasRecords();
}

const SortTerm *termOf(const std::vector<SortTerm> &order, int col)
{
    const auto found = std::ranges::find(order, col, &SortTerm::column);
    return found == order.end() ? nullptr : &*found;
}

template<bool isWanted>
QString whyNotChanged(Session &session, int col)
{
    QString reason = whyNotSorted(session, col);
    if (!reason.isEmpty())
        return reason;
    const std::vector<SortTerm> order = shownOrder(session);
    if (static_cast<bool>(termOf(order, col)) != isWanted)
        return isWanted ? SessionMessages::NotSorted : SessionMessages::AlreadySorted;
    // What is left would be another order.
    const bool isWritten =
        std::ranges::none_of(order, [](const SortTerm &term) { return term.text.isEmpty(); });
    return isWritten ? QString() : SessionMessages::SortedByOther;
}

void sortBy(Session &session, const QStringList &terms)
{
    FilterManagerRollback rollback(session);
    const QString sort = terms.join(u',');
    QString statement;
    if (session.history().GetNextSQLBySort(sort, statement) && showSorted(session, statement, sort))
        rollback.keepChanges();
}

template<bool isDescending>
void sortByOne(Session &session, int col)
{
    sortBy(session, {writtenColumn(session, col) + (isDescending ? u" DESC"_s : QString())});
}

template<bool isDescending>
bool isSortedFirst(Session &session, int col)
{
    const std::vector<SortTerm> order = shownOrder(session);
    return !order.empty() && order.front().column == col && order.front().isDescending == isDescending;
}

QStringList textsOf(const std::vector<SortTerm> &order, int leftOut = 0)
{
    QStringList texts;
    for (const SortTerm &term : order) {
        if (leftOut == 0 || term.column != leftOut)
            texts.append(term.text);
    }
    return texts;
}

const ColumnCommand::Registration ascending({
    .key = u"SortAscending"_s,
    .place = 100,
    .caption = ColumnCommand::tr("升序(&A)"),
    .record = Record::IsLeft,
    .run = sortByOne<false>,
    .step = DerivationStep::Sort,
    .canRun = canSort,
    .whyNot = whyNotSorted,
    .isOn = isSortedFirst<false>,
});

const ColumnCommand::Registration descending({
    .key = u"SortDescending"_s,
    .place = 101,
    .caption = ColumnCommand::tr("降序(&D)"),
    .record = Record::IsLeft,
    .run = sortByOne<true>,
    .step = DerivationStep::Sort,
    .canRun = canSort,
    .whyNot = whyNotSorted,
    .isOn = isSortedFirst<true>,
});

const ColumnCommand::Registration add({
    .key = u"AddToSort"_s,
    .place = 102,
    .caption = ColumnCommand::tr("加入排序(&I)"),
    .record = Record::IsLeft,
    .run =
        [](Session &session, int col) {
            sortBy(session, textsOf(shownOrder(session)) + QStringList(writtenColumn(session, col)));
        },
    .step = DerivationStep::Sort,
    .canRun = canSort,
    .whyNot = whyNotChanged<false>,
});

const ColumnCommand::Registration remove({
    .key = u"RemoveFromSort"_s,
    .place = 103,
    .caption = ColumnCommand::tr("取消排序(&C)"),
    .record = Record::IsLeft,
    .run = [](Session &session, int col) { sortBy(session, textsOf(shownOrder(session), col)); },
    .step = DerivationStep::Sort,
    .canRun = canSort,
    .whyNot = whyNotChanged<true>,
});

} // namespace

} // namespace KOVAVSFDataGridLib
