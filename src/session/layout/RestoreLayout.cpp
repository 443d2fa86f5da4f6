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

int widthOf(Session &session, int col, const QString &heading)
{
    const int width = session.window().ColWidth(col);
    const clsDataField *const field = session.history().DataFields().Find(heading);
    return width == 0 && field && field->FieldWidth > 0 ? field->FieldWidth : width;
}

// The fields whose columns are not visible.
std::set<QString> hiddenFields(const SessionWindow &window)
{
    const QStringList headings = window.Headings();
    std::set<QString> hidden(headings.cbegin(), headings.cend());
    for (const int col : window.shownColumns())
        hidden.erase(headings.at(col - 1));
    return hidden;
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
    return hidden == hiddenFields(session.window()) ? QString() : LayoutTexts::NotRead;
}

void applyWidths(Session &session, const SavedLayout &layout)
{
    SessionWindow &window = session.window();
    const QStringList headings = window.Headings();
    QHash<QString, const SavedLayout::Column *> byField;
    for (const SavedLayout::Column &column : layout.columns)
        byField.insert(column.field, &column);
    for (int col = 1; col < window.Cols(); ++col) {
        const SavedLayout::Column *const column = byField.value(headings.at(col - 1));
        if (!column)
            continue;
        if (window.ColWidth(col) != 0)
            window.PutColWidth(col, column->width > 0 ? column->width : ColumnView::useDefaultWidth);
        window.putColumnFormat(col, column->format);
    }
    session.columns().SaveColumnWidths();
}

} // namespace

SavedLayout layoutOf(Session &session)
{
    SavedLayout layout;
    const SessionWindow &window = session.window();
    const QStringList headings = window.Headings();
    const std::set<QString> hidden = hiddenFields(window);
    layout.columns.resize(static_cast<std::size_t>(headings.size()));
    for (int col = 1; col < window.Cols(); ++col) {
        const QString &heading = headings.at(col - 1);
        layout.columns[static_cast<std::size_t>(window.placeOf(col))] = {
            heading, widthOf(session, col, heading), hidden.contains(heading), window.columnFormat(col)};
    }
    // Fields that the statement omits are hidden too.
    for (const clsDataField &field : session.history().DataFields()) {
        if (!headings.contains(field.FieldName))
            layout.columns.push_back({field.FieldName, std::max(field.FieldWidth, -1), true});
    }
    layout.frozen = window.frozenColumns();
    layout.showsNulls = window.showsNulls();
    return layout;
}

QString restoreLayout(Session &session, const SavedLayout &layout)
{
    if (!session.result().isOpen())
        return LayoutTexts::NothingShown;
    const QStringList headings = session.window().Headings();
    std::set<QString> hidden;
    QStringList order;
    for (const SavedLayout::Column &column : layout.columns) {
        order.append(column.field);
        if (column.isHidden && headings.contains(column.field))
            hidden.insert(column.field);
    }
    if (!headings.isEmpty() && hidden.size() == std::set<QString>(headings.cbegin(), headings.cend()).size())
        return LayoutTexts::AllHidden;
    if (hidden != hiddenFields(session.window())) {
        if (QString reason = showAllBut(session, hidden); !reason.isEmpty())
            return reason;
    }
    session.window().arrangeColumns(order, layout.frozen);
    applyWidths(session, layout);
    session.window().putShowsNulls(layout.showsNulls);
    return {};
}

} // namespace KOVAVSFDataGridLib
