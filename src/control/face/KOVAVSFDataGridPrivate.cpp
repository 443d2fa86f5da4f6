#include "control/face/KOVAVSFDataGridPrivate.h"

#include "ado/Adodc.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/face/DesignMode.h"
#include "control/input/EndKeys.h"
#include "control/parts/GridTexts.h"
#include "control/parts/HistoryMenu.h"
#include "control/parts/Survives.h"
#include "control/parts/lines/EmptyHint.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/settings/Configuration.h"
#include "control/viewer/ShowFullScreen.h"
#include "forms/Dialog_SQLST.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "grid/cells/TextCells.h"
#include "session/WindowRules.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"
#include "session/pages/Pages.h"
#include "session/statement/LoadedTable.h"
#include "session/statement/ShownStatement.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QSignalBlocker>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QCheckBox>

#include <stdexcept>

using namespace KOVAVSFDataGridLib;

KOVAVSFDataGrid::Private::Private(KOVAVSFDataGrid &control)
    : q(control),
      parts(control),
      window(control, parts),
      questions(&control),
      session(std::make_shared<Session>(window, questions, *this, controlRules, parts.Adodc1)),
      events(input, parts, *session),
      singleRecord(control, input, *session, parts),
      commands(control, input, *session, parts, events, singleRecord),
      pressedPart(parts),
      closeGuard(control, *session),
      selection(*session, parts),
      finder(*session, *parts.vsfgDataGrid, *parts.find),
      layout(*session, *parts.vsfgDataGrid)
{
    window.setSession(*session);
    questions.setHostKey([this] { return layout.key(); });
    window.setSingleRecordView(&singleRecord);
    window.setMenu(&commands.menu());
    window.setFinder(&finder);
    window.setHistoryMenu(new HistoryMenu(*parts.Toolbar1, *session));
    window.setFullScreen([this] {
        ShowFullScreen(q, *session, parts, [this](QWidget *viewer, const ConditionRequest &asked) {
            ConditionRequest request = session->shown().conditionRequest();
            request.refusal = asked.refusal;
            request.memory = asked.memory;
            request.condition = asked.condition;
            request.field = asked.field;
            request.value = asked.value;
            DialogQuestions inViewer(viewer);
            inViewer.setHostKey([this] { return layout.key(); });
            QString condition = inViewer.askCondition(request);
            asked.memory = request.memory;
            return condition;
        });
    });
    connect(parts.CheckSelAllRow, &QCheckBox::toggled, &q, [this](bool on) {
        parts.vsfgDataGrid->setSelectionBehavior(on ? QAbstractItemView::SelectRows
                                                    : QAbstractItemView::SelectItems);
    });
    connect(&events, &GridEvents::valueWanted, &q, [this] { showClickedValue(); });
    parts.CheckSelAllRow->setChecked(readSelectWholeRows());
    setThreeTierSwitch();
    connectHost();
}

// A command that waits for a dialog now ends on its own: its session can no longer show anything.
KOVAVSFDataGrid::Private::~Private()
{
    session->detach();
}

// The control's own views are updated before the host is notified of a move.
void KOVAVSFDataGrid::Private::connectHost()
{
    new EndKeys(*parts.vsfgDataGrid, *session, &q);
    connect(&input, &InputEvents::DataMouseDown, &q, &KOVAVSFDataGrid::DataMouseDown);
    connect(&input, &InputEvents::DataMouseUp, &q, &KOVAVSFDataGrid::DataMouseUp);
    connect(&input, &InputEvents::DataMouseMove, &q, &KOVAVSFDataGrid::DataMouseMove);
    connect(&input, &InputEvents::HeadClick, &q, &KOVAVSFDataGrid::HeadClick);
    connect(&input, &InputEvents::DataClick, &q, &KOVAVSFDataGrid::DataClick);
    connect(&input, &InputEvents::DataDblClick, &q, &KOVAVSFDataGrid::DataDblClick);
    connect(&input, &InputEvents::DataKeyDown, &q, &KOVAVSFDataGrid::DataKeyDown);
    connect(&input, &InputEvents::MouseUp, &q, &KOVAVSFDataGrid::MouseUp);
    connect(&input, &InputEvents::DataDBLClickOneCell, &q, &KOVAVSFDataGrid::DataDBLClickOneCell);
    connect(&input, &InputEvents::DataDBLClickOneRow, &q, &KOVAVSFDataGrid::DataDBLClickOneRow);
    connect(parts.Adodc1, &ADODB::Adodc::MoveComplete, &q, [this](ADODB::EventReasonEnum reason) {
        if (!session->result().isOpen() || session->result().recordset()->RecordCount() == 0)
            return;
        window.refreshStatus();
        window.refreshSingleRecord();
        Q_EMIT q.RecordChanged(reason,
                               static_cast<qint32>(session->result().recordset()->AbsolutePosition()));
    });
    connect(parts.lblEmpty, &EmptyHint::addWanted, &q,
            [this] { session->run(CommandKeys::AddRecord, ChosenBy::MenuItem); });
    connect(parts.Adodc1, &ADODB::Adodc::RecordChangeComplete, &q, [this] { window.refreshStatus(); });
    connect(parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete, &q,
            [this](ADODB::EventReasonEnum reason) { Q_EMIT q.RecordsetChanged(reason); });
}

// A host that handles the event has its own action for a double-click.
void KOVAVSFDataGrid::Private::showClickedValue()
{
    for (const QMetaMethod &event : {QMetaMethod::fromSignal(&KOVAVSFDataGrid::DataDblClick),
                                     QMetaMethod::fromSignal(&KOVAVSFDataGrid::DataDBLClickOneCell),
                                     QMetaMethod::fromSignal(&KOVAVSFDataGrid::DataDBLClickOneRow)}) {
        if (q.isSignalConnected(event))
            return;
    }
    if (parts.Toolbar1->isEnabled())
        session->run(CommandKeys::ShowValue);
}

void KOVAVSFDataGrid::Private::writeTexts()
{
    const ResultSet &result = session->result();
    window.showPageNumber(session->pages().current(), result.isOpen() ? result.recordset()->PageCount() : 0);
    window.refreshCommands();
    window.refreshStatus();
    parts.layOutFoot();
}

// After loading, the user continues in the grid, unless
// the focus is in another part of the host's form.
void KOVAVSFDataGrid::Private::focusGrid() const
{
    // The focus of a form that is not Qt's is only known when it is here. Asking for it would take it from
    // the form.
    const QWindow *const around = q.window()->windowHandle();
    if (around && around->parent() && around != QGuiApplication::focusWindow())
        return;
    const QWidget *const now = q.window()->focusWidget();
    if (!now || now == &q || q.isAncestorOf(now))
        parts.vsfgDataGrid->setFocus();
}

void KOVAVSFDataGrid::Private::setThreeTierSwitch() const
{
    const ThreeTierSettings settings = readThreeTierSettings();
    ADODB::ConnectionFactory &factory = ADODB::ConnectionFactory::instance();
    factory.SetThreeTier(settings.isOn);
    factory.SetMiddleTier(settings.tier);
}

bool KOVAVSFDataGrid::Private::notifyWritten(const char *name)
{
    return survives(q, [&](KOVAVSFDataGrid &control) {
        session->notifications().send(
            &control, [&control, name] { Q_EMIT control.PropertyChanged(QLatin1StringView(name)); });
    });
}

void KOVAVSFDataGrid::Private::filterWritten()
{
    notifyWritten("SQLFilter");
}

void KOVAVSFDataGrid::Private::askFilter(qint32 &cancel, const QString &base)
{
    Q_EMIT q.QurryFilter(cancel, base);
}

void KOVAVSFDataGrid::Private::fieldsChanged(const QString &statement)
{
    session->notifications().send(&q, [this, statement] { Q_EMIT q.ShowFieldsChange(statement); });
}

void KOVAVSFDataGrid::Private::refresh()
{
    session->notifications().send(&q, [this] { q.Refresh(); });
}

bool KOVAVSFDataGrid::Private::isUserMode() const
{
    return userMode.value_or(!isInFormEditor(q));
}

void KOVAVSFDataGrid::Private::applyBackColor()
{
    QPalette palette = parts.picMainBack->palette();
    palette.setColor(QPalette::Window, backColor.in(q.palette()));
    parts.picMainBack->setPalette(palette);
}

void KOVAVSFDataGrid::Private::runSteps(QStringView title, std::initializer_list<std::function<void()>> steps)
{
    for (const auto &step : steps) {
        qint32 number = 0;
        QString description;
        try {
            if (!survives(q, [&](KOVAVSFDataGrid &) { step(); }))
                return;
            continue;
        } catch (const ADODB::Error &error) {
            number = error.Number();
            description = error.Description();
        } catch (const std::exception &error) {
            qWarning("%s failed: %s", qPrintable(title.toString()), error.what());
            description = QString::fromUtf8(error.what());
        }
        const QString text = QString::number(number) + u'\r' + description + GridTexts::AskContinue;
        if (!Messages::ask(&q, text, title.toString(), QMessageBox::Critical))
            return;
    }
}

void KOVAVSFDataGrid::Private::showText(QStringView title, const QString &label, const QString &text)
{
    runSteps(title, {[&] {
                 Dialog_SQLST dialog(&q);
                 dialog.SetLabel(label);
                 dialog.SetText(text);
                 dialog.SetEditing(false, false);
                 dialog.exec();
             }});
}

std::optional<QString> KOVAVSFDataGrid::Private::editText(const QString &label, const QString &text)
{
    Dialog_SQLST dialog(&q);
    dialog.SetLabel(label);
    dialog.SetText(text);
    dialog.SetEditing(true, false);
    dialog.exec();
    return dialog.result();
}

QString KOVAVSFDataGrid::Private::cellText(int row, int col, const QString &title)
{
    try {
        return parts.vsfgDataGrid->TextMatrix(row, col);
    } catch (const std::out_of_range &) {
        Messages::show(&q, GridTexts::WrongCell, title);
        return {};
    }
}

void KOVAVSFDataGrid::Private::saveBeforeEnd()
{
    layout.save();
    const QSignalBlocker controlBlocked(q);
    const QSignalBlocker dataBlocked(parts.Adodc1);
    if (const std::optional<QString> failure = session->record().saveSilently())
        Messages::showLater(*failure);
}

FilterPlace KOVAVSFDataGrid::Private::filterPlace() const
{
    return {layout.key(), session->texts.connectionString, loadedTable(*session)};
}

void KOVAVSFDataGrid::Private::emptyGrid()
{
    parts.vsfgDataGrid->Show(std::make_unique<TextCells>(2, 2));
    parts.vsfgDataGrid->PutColWidth(1, FlexGrid::defaultColWidth);
}
