#include "ado/Recordset.h"
#include "query/QueryTexts.h"
#include "query/colShowSQLSentences.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/fields/ChosenFields.h"
#include "session/history/SharedHistory.h"

#include <algorithm>

// Shows all shown fields except one.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Chooses all shown fields except one column's.
class AllButOne final : public Questions
{
public:
    // `entries` are the columns as a list has them, where their names don't tell them apart.
    AllButOne(const SessionWindow &window, int col, const QStringList &entries)
        : m_areNames(entries.isEmpty())
    {
        const QStringList columns = m_areNames ? window.Headings() : entries;
        for (const int shown : window.shownColumns()) {
            if (shown != col)
                m_shown.append(columns.value(shown - 1));
        }
    }

    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &allFields,
                                               const QStringList &) override
    {
        QStringList chosen;
        for (const OfferedField &field : allFields) {
            if (m_shown.contains(m_areNames ? field.name : field.written))
                chosen.append(field.written);
        }
        return chosen.join(u',');
    }

private:
    bool m_areNames;
    QStringList m_shown;
};

QStringList entriesOfColumns(Session &session)
{
    return session.history().EntriesOfEqualNames(session.result().recordset()->Source());
}

QString whyNotHidden(Session &session, int col)
{
    if (session.window().shownColumns().size() <= 1)
        return SessionMessages::LastColumn;
    const QString heading = session.window().Headings().value(col - 1);
    const colDataFields &fields = session.history().DataFields();
    const auto count = std::ranges::count(fields, heading, &clsDataField::FieldName);
    return count > 1 && entriesOfColumns(session).isEmpty() ? QueryTexts::EqualNames.arg(heading) : QString();
}

const ColumnCommand::Registration hideColumnCommand({
    .key = u"HideColumn"_s,
    .place = 400,
    .caption = ColumnCommand::tr("隐藏此列(&H)"),
    .record = Record::IsLeft,
    .run =
        [](Session &session, int col) {
            AllButOne chooser(session.window(), col, entriesOfColumns(session));
            showChosenFields(session, &chooser);
        },
    .step = DerivationStep::Fields,
    .canRun = [](Session &session, int) { return session.result().hasRecords(); },
    .whyNot = whyNotHidden,
});

} // namespace

} // namespace KOVAVSFDataGridLib
