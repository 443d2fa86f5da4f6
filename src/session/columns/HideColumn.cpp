#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/fields/ChosenFields.h"
#include "session/history/SharedHistory.h"

// Shows the fields that are shown without one of them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Chooses all shown fields except one column's.
class AllButOne final : public Questions
{
public:
    AllButOne(const SessionWindow &window, int col)
    {
        const QStringList headings = window.Headings();
        for (const int shown : window.shownColumns()) {
            if (shown != col)
                m_shown.append(headings.at(shown - 1));
        }
    }

    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &allFields,
                                               const QStringList &) override
    {
        QStringList chosen;
        for (const OfferedField &field : allFields) {
            if (m_shown.contains(field.name))
                chosen.append(field.written);
        }
        return chosen.join(u',');
    }

private:
    QStringList m_shown;
};

const ColumnCommand::Registration registration({
    .key = u"HideColumn"_s,
    .place = 400,
    .caption = ColumnCommand::tr("隐藏此列(&H)"),
    .record = Record::IsLeft,
    .run =
        [](Session &session, int col) {
            AllButOne chooser(session.window(), col);
            showChosenFields(session, &chooser);
        },
    .step = DerivationStep::Fields,
    // Columns are hidden by their names.
    .canRun =
        [](Session &session, int col) {
            const QStringList headings = session.window().Headings();
            return session.result().hasRecords() && headings.count(headings.at(col - 1)) == 1 &&
                   session.window().shownColumns().size() > 1;
        },
});

} // namespace

} // namespace KOVAVSFDataGridLib
