#include "session/statement/ShownOrder.h"

#include "ado/Recordset.h"
#include "query/QueryTexts.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/history/SharedHistory.h"
#include "sql/Names.h"
#include "sql/select/SelectParts.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

int columnNamed(const QStringList &headings, const QString &written, QStringView name)
{
    const auto found = std::ranges::find_if(headings, [&](const QString &heading) {
        return heading.compare(written, Qt::CaseInsensitive) == 0 ||
               heading.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headings.end() ? 0 : static_cast<int>(found - headings.begin()) + 1;
}

} // namespace

QString writtenColumn(Session &session, int col)
{
    // Uses the opened statement, not the shown one: "All" and "Part" only hide columns.
    return session.history().GetColumnRealName(session.result().recordset()->Source(),
                                               session.window().Headings(), col - 1);
}

QString whyNotWritten(Session &session, int col)
{
    if (!writtenColumn(session, col).isEmpty())
        return {};
    const QStringList headings = session.window().Headings();
    const QString heading = headings.value(col - 1);
    return (headings.count(heading) > 1 ? QueryTexts::EqualNames : QueryTexts::UnknownTable).arg(heading);
}

QString whyNotSorted(Session &session, int col)
{
    const QString reason = whyNotWritten(session, col);
    return reason.isEmpty() ? session.history().WhyNotSorted(session.result().recordset()->Source(), col - 1)
                            : reason;
}

namespace {

// Whether it has its order from within its table, by something that its result lacks.
bool isSortedInside(const Derivation &derivation, const Dialect &dialect)
{
    const QString table = derivation.isSorted() ? QString() : derivation.table();
    return !table.isEmpty() && std::ranges::any_of(Derivation(table, {}, dialect).outerTerms(),
                                                   [](const OuterTerm &term) { return term.text.isEmpty(); });
}

} // namespace

std::vector<SortTerm> shownOrder(Session &session)
{
    if (!session.result().isOpen() || session.sharedHistory().isManager(nullptr))
        return {};
    const auto derivation = session.history().DerivationOf(session.result().recordset()->Source());
    if (derivation && derivation->isTable()) {
        std::vector<SortTerm> terms;
        for (const OuterTerm &term : derivation->outerTerms())
            terms.push_back({term.field + 1, term.text, term.isDescending});
        return terms;
    }
    const Dialect dialect = dialectOf(session.filterManager().DBType(), session.result().engine());
    if (derivation && isSortedInside(*derivation, dialect))
        return {SortTerm()};
    const SqlScanner statement(session.result().recordset()->Source(), dialect);
    const SelectParts parts = SelectParts::of(statement);
    const QStringList headings = session.window().Headings();
    // The shown statement may lack fields that the opened one sorts by.
    const QStringList stable = derivation ? derivation->sortTerms() : QStringList();
    std::vector<SortTerm> terms;
    for (const SelectParts::Item &item : parts.sort) {
        const QString value = textOf(statement, item.value);
        int column = 0;
        if (statement.at(item.value.begin).kind == SqlToken::Kind::Number)
            column = value.toInt() <= headings.size() ? value.toInt() : 0;
        // If several columns have the name, its table distinguishes them.
        for (int col = 1; col <= headings.size() && column == 0; ++col) {
            if (headings.count(headings.at(col - 1)) > 1 &&
                writtenColumn(session, col).compare(value, Qt::CaseInsensitive) == 0)
                column = col;
        }
        if (column == 0 && item.isName)
            column = columnNamed(headings, value, lastNamePart(value));
        for (int col = 1; col <= headings.size() && column == 0; ++col) {
            if (writtenColumn(session, col).compare(value, Qt::CaseInsensitive) == 0)
                column = col;
        }
        const auto index = static_cast<qsizetype>(terms.size());
        terms.push_back({column, index < stable.size() ? stable.at(index) : textOf(statement, item.tokens),
                         item.isDescending});
    }
    return terms;
}

} // namespace KOVAVSFDataGridLib
