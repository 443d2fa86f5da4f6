#include "control/parts/HistoryMenu.h"

#include "control/parts/GridTexts.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/WholeText.h"
#include "language/GroupedNumber.h"
#include "language/Language.h"
#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/HistorySteps.h"

#include <QtGui/QAction>
#include <QtGui/QScreen>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int widestStatement = 48; // digits

QString noteText(const HistoryStep &step)
{
    return step.note ? GridTexts::HistoryNote.arg(step.note->records, grouped(step.note->records),
                                                  step.note->time.toString(u"HH:mm:ss"_s))
                     : QString();
}

} // namespace

HistoryMenu::HistoryMenu(GridToolbar &toolbar, Session &session)
    : Menu(&toolbar), m_toolbar(toolbar), m_session(session)
{
    setObjectName(u"HistoryMenu"_s);
    Language::keepTranslated(*this, [this] { setAccessibleName(GridTexts::HistoryName); });
    setToolTipsVisible(true);
    toolbar.setButtonMenu(CommandKeys::ToPreview, *this);
    connect(this, &QMenu::aboutToShow, this, &HistoryMenu::fill);
}

void HistoryMenu::open()
{
    const QWidget *const button = m_toolbar.shownButton(CommandKeys::ToPreview);
    const QWidget &above = button ? *button : m_toolbar;
    popup(above.mapToGlobal(QPoint(0, above.height())));
}

void HistoryMenu::fill()
{
    clear();
    // The notes and the marks need the rest of a narrow screen.
    const int widest = std::min(fontMetrics().horizontalAdvance(u'0') * widestStatement,
                                m_toolbar.screen()->availableGeometry().width() * 2 / 5);
    for (const HistoryStep &step : historySteps(m_session)) {
        // The latest addition is at the end, so the middle is elided.
        QString text = fontMetrics().elidedText(step.statement.simplified(), Qt::ElideMiddle, widest);
        QAction *const action = addAction(text.replace(u'&', "&&"_L1) + u'\t' + noteText(step));
        action->setToolTip(wholeTextTip(step.statement, m_toolbar));
        action->setData(step.steps);
        action->setCheckable(true);
        action->setChecked(step.steps == 0);
        if (step.steps == 0)
            setActiveAction(action);
        connect(action, &QAction::triggered, this, [this, steps = step.steps] {
            if (m_toolbar.isEnabled())
                goToStep(m_session, steps);
        });
    }
    if (isEmpty())
        addAction(GridTexts::NoHistory)->setEnabled(false);
    else
        addForward();
}

void HistoryMenu::addForward()
{
    const Command *const forward = Command::find(CommandKeys::Forward);
    if (!forward)
        return;
    addSeparator();
    QAction *const action = addAction(forward->menu.caption() + u'\t' +
                                      QKeySequence(forward->shortcut).toString(QKeySequence::NativeText));
    action->setObjectName(u"HistoryForward"_s);
    const QString why = m_session.whyNot(*forward);
    action->setEnabled(why.isEmpty());
    action->setToolTip(why);
    connect(action, &QAction::triggered, this, [this] {
        if (m_toolbar.isEnabled())
            m_session.run(CommandKeys::Forward, ChosenBy::MenuItem);
    });
}

} // namespace KOVAVSFDataGridLib
