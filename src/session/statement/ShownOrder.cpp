#include "session/statement/ShownOrder.h"

#include "ado/Recordset.h"
#include "query/QueryTexts.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/history/SharedHistory.h"
#include "sql/select/SelectParts.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

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

// The terms of the sort with the columns that they mean. Without a wait for the database, a derivation does
// not know what a star lists.
std::vector<OuterTerm> termsOver(const QStringList &headings,
                                 const std::shared_ptr<const Derivation> &derivation,
                                 const QString &statement, const Dialect &dialect)
{
    if (derivation && derivation->names().size() == headings.size())
        return derivation->outerTerms();
    std::vector<SourceField> fields;
    for (const QString &heading : headings)
        fields.push_back({heading, 0});
    return Derivation(statement, fields, dialect).outerTerms();
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
    if (derivation && derivation->isSortedInside())
        return {SortTerm()};
    const SqlScanner statement(session.result().recordset()->Source(), dialect);
    const SelectParts parts = SelectParts::of(statement);
    const QStringList headings = session.window().Headings();
    const std::vector<OuterTerm> found = termsOver(headings, derivation, statement.sql(), dialect);
    // The shown statement may lack fields that the opened one sorts by.
    const QStringList stable = derivation ? derivation->sortTerms() : QStringList();
    std::vector<SortTerm> terms;
    for (const SelectParts::Item &item : parts.sort) {
        int column = found.at(terms.size()).field + 1;
        for (int col = 1; col <= headings.size() && column == 0; ++col) {
            if (writtenColumn(session, col).compare(textOf(statement, item.value), Qt::CaseInsensitive) == 0)
                column = col;
        }
        const auto index = static_cast<qsizetype>(terms.size());
        terms.push_back({column, index < stable.size() ? stable.at(index) : textOf(statement, item.tokens),
                         item.isDescending});
    }
    return terms;
}

} // namespace KOVAVSFDataGridLib
