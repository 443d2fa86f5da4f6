#include "query/clsFilterManagement.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/fields/ChosenFields.h"
#include "session/editing/EditedRecord.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/LayoutTexts.h"
#include "session/layout/SavedLayout.h"

#include <QtCore/QHash>

#include <algorithm>
#include <set>
#include <utility>

// Applies a layout to the shown columns.
namespace KOVAVSFDataGridLib {

namespace {

// Chooses all fields but the hidden ones.
class AllButHidden final : public Questions
{
public:
    explicit AllButHidden(std::set<QString> hidden) : m_hidden(std::move(hidden)) {}

    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &allFields,
                                               const QStringList &) override
    {
        QStringList chosen;
        for (const OfferedField &field : allFields) {
            if (!m_hidden.contains(field.name))
                chosen.append(field.written);
        }
        return chosen.join(u',');
    }

private:
    const std::set<QString> m_hidden;
};

// The width of a column that can't be seen is in the catalogue.
int widthOf(Session &session, const QString &field)
{
    const clsDataField *const known = session.history().DataFields().Find(field);
    return known && known->FieldWidth > 0 ? known->FieldWidth : ColumnView::useDefaultWidth;
}

// Those that can be shown, in the order of the statement; some may have no column now.
QStringList knownFields(Session &session)
{
    QStringList names = session.columns().fieldsShownBy(FieldView::All);
    const QStringList headings = session.window().Headings();
    for (const QString &heading : headings) {
        if (!names.contains(heading))
            names.append(heading);
    }
    return names;
}

// Those whose columns can't be seen in the grid, which may give its place to a single record.
std::set<QString> hiddenFields(Session &session)
{
    const SessionWindow &window = session.window();
    const QStringList names = knownFields(session);
    const QStringList headings = window.Headings();
    std::set<QString> hidden(names.cbegin(), names.cend());
    for (int col = 1; col < window.Cols(); ++col) {
        if (window.ColWidth(col) != 0)
            hidden.erase(headings.at(col - 1));
    }
    return hidden;
}

// The columns of each heading, several of which can be equal, from the right.
QHash<QString, QList<int>> columnsByHeading(const SessionWindow &window)
{
    const QStringList headings = window.Headings();
    QList<int> fromTheRight(headings.size());
    for (int col = 1; col <= headings.size(); ++col)
        fromTheRight[headings.size() - 1 - window.placeOf(col)] = col;
    QHash<QString, QList<int>> columns;
    for (const int col : std::as_const(fromTheRight))
        columns[headings.at(col - 1)].append(col);
    return columns;
}

// The leftmost that is left; 0 when none is.
int takeColumn(QHash<QString, QList<int>> &columns, const QString &heading)
{
    const auto found = columns.find(heading);
    return found == columns.end() || found->isEmpty() ? 0 : found->takeLast();
}

// Returns the reason if it failed; empty on success.
QString showAllBut(Session &session, const std::set<QString> &hidden)
{
    if (QString reason = session.sharedHistory().whyNot(DerivationStep::Fields); !reason.isEmpty())
        return reason;
    if (!session.record().save())
        return LayoutTexts::NotSaved;
    if (hidden.empty()) {
        session.run(CommandKeys::All);
    } else {
        AllButHidden chooser(hidden);
        session.perform([&] { showChosenFields(session, &chooser); });
    }
    return hidden == hiddenFields(session) ? QString() : LayoutTexts::NotRead;
}

void applyColumns(Session &session, const SavedLayout &layout)
{
    SessionWindow &window = session.window();
    const std::set<QString> hidden = hiddenFields(session);
    QHash<QString, QList<int>> columns = columnsByHeading(window);
    for (const SavedLayout::Column &column : layout.columns) {
        const int width = column.width > 0 ? column.width : ColumnView::useDefaultWidth;
        const int col = takeColumn(columns, column.field);
        if (hidden.contains(column.field))
            session.columns().keepWidth(column.field, width);
        else if (col > 0)
            window.PutColWidth(col, width);
        window.putColumnFormat(column.field, column.format);
    }
    session.columns().SaveColumnWidths();
}

} // namespace

SavedLayout layoutOf(Session &session)
{
    SavedLayout layout;
    const SessionWindow &window = session.window();
    const std::set<QString> hidden = hiddenFields(session);
    QHash<QString, QList<int>> columns = columnsByHeading(window);
    const int frozen = window.frozenColumns();
    for (const QString &field : window.orderWith(knownFields(session))) {
        const int col = takeColumn(columns, field);
        const bool isHidden = hidden.contains(field);
        layout.columns.push_back({field, isHidden ? widthOf(session, field) : window.ColWidth(col), isHidden,
                                  window.columnFormat(field)});
        if (col > 0 && window.placeOf(col) < frozen)
            layout.frozen = static_cast<int>(layout.columns.size());
    }
    layout.showsNulls = window.showsNulls();
    return layout;
}

QString restoreLayout(Session &session, const SavedLayout &layout)
{
    if (!session.result().isOpen())
        return LayoutTexts::NothingShown;
    const QStringList fields = knownFields(session);
    const std::set<QString> known(fields.cbegin(), fields.cend());
    const std::set<QString> hiddenBefore = hiddenFields(session);
    std::set<QString> hidden = hiddenBefore;
    QStringList order;
    for (const SavedLayout::Column &column : layout.columns) {
        order.append(column.field);
        if (!column.isHidden)
            hidden.erase(column.field);
        else if (known.contains(column.field))
            hidden.insert(column.field);
    }
    if (!known.empty() && hidden.size() == known.size())
        return LayoutTexts::AllHidden;
    if (hidden != hiddenBefore) {
        if (QString reason = showAllBut(session, hidden); !reason.isEmpty())
            return reason;
    }
    const QStringList headings = session.window().Headings();
    const auto isThere = [&](const SavedLayout::Column &column) { return headings.contains(column.field); };
    const auto frozen =
        std::count_if(layout.columns.begin(), layout.columns.begin() + layout.frozen, isThere);
    session.window().arrangeColumns(order, static_cast<int>(frozen));
    applyColumns(session, layout);
    session.window().putShowsNulls(layout.showsNulls);
    return {};
}

} // namespace KOVAVSFDataGridLib
