#include "control/face/KOVAVSFDataGridPrivate.h"

#include "ado/Adodc.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/face/Configuration.h"
#include "control/face/DesignMode.h"
#include "control/parts/EmptyHint.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/StatementLine.h"
#include "forms/Dialog_SQLST.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "grid/TextCells.h"
#include "grid/Twips.h"

#include <QtCore/QPointer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <stdexcept>

using namespace KOVAVSFDataGridLib;

namespace {

// Which record is current, in words.
QString placeOf(const ADODB::Recordset &recordset)
{
    if (recordset.EditMode() == ADODB::adEditAdd)
        return GridTexts::NewRecord.arg(recordset.RecordCount());
    return GridTexts::RecordOf.arg(std::max<qint64>(0, recordset.AbsolutePosition()))
        .arg(recordset.RecordCount());
}

} // namespace

KOVAVSFDataGrid::Private::Private(KOVAVSFDataGrid &control)
    : q(control),
      parts(control),
      result(*parts.Adodc1),
      pages(parts, result),
      reader(result),
      chooser(&control),
      events(control, parts, result, pages),
      commands(*this),
      pressedPart(parts)
{
    connect(parts.cmdPgae, &QPushButton::clicked, &q, [this] { commands.goToTypedPage(); });
    connect(parts.CheckSelAllRow, &QCheckBox::toggled, &q, [this](bool on) {
        parts.vsfgDataGrid->setSelectionBehavior(on ? QAbstractItemView::SelectRows
                                                    : QAbstractItemView::SelectItems);
    });
    parts.CheckSelAllRow->setChecked(readSelectWholeRows());
    giveThreeTierSwitch();
    connect(parts.Adodc1, &ADODB::Adodc::MoveComplete, &q, [this](ADODB::EventReasonEnum reason) {
        if (result.isOpen() && result.recordset()->RecordCount() != 0)
            Q_EMIT q.RecordChanged(reason, static_cast<qint32>(result.recordset()->AbsolutePosition()));
    });
    connect(parts.Adodc1, &ADODB::Adodc::RecordsetChangeComplete, &q,
            [this](ADODB::EventReasonEnum reason) { Q_EMIT q.RecordsetChanged(reason); });
    connect(parts.txtPage, &QLineEdit::returnPressed, parts.cmdPgae, &QPushButton::click);
    connect(&q, &KOVAVSFDataGrid::RecordChanged, &q, [this] { tellStatement(); });
}

void KOVAVSFDataGrid::Private::giveThreeTierSwitch()
{
    ADODB::ConnectionFactory &factory = ADODB::ConnectionFactory::instance();
    factory.SetThreeTier(Read3TierSwitch() != 0);
    factory.SetMiddleTier(readMiddleTier());
}

bool KOVAVSFDataGrid::Private::tellWritten(const char *name)
{
    const QPointer<KOVAVSFDataGrid> alive(&q);
    Q_EMIT q.PropertyChanged(QLatin1StringView(name));
    return alive;
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

void KOVAVSFDataGrid::Private::tellStatement()
{
    QString statement;
    const bool isOpen = result.isOpen() && filter && filter->SQLManager().GetLatestSQL(statement);
    const bool canGoBack = isOpen && filter->SQLManager().Count() > 1;
    if (isOpen)
        parts.lblStatement->tell(placeOf(*result.recordset()), statement);
    else
        parts.lblStatement->tell({}, {});
    if (!result.isOpen())
        parts.lblEmpty->tell(GridTexts::NothingLoaded);
    else if (result.recordset()->RecordCount() > 0)
        parts.lblEmpty->tell({});
    else
        parts.lblEmpty->tellNoRecords(canGoBack);
}

void KOVAVSFDataGrid::Private::runSteps(QStringView title, std::initializer_list<std::function<void()>> steps)
{
    const QPointer<KOVAVSFDataGrid> alive(&q);
    for (const auto &step : steps) {
        qint32 number = 0;
        QString description;
        try {
            step();
            if (!alive) // the host has deleted the control behind the dialog that the step showed
                return;
            continue;
        } catch (const ADODB::Error &error) {
            number = error.Number();
            description = error.Description();
        } catch (const std::exception &error) {
            description = QString::fromUtf8(error.what());
        }
        const QString text = QString::number(number) + u'\r' + description + GridTexts::AskContinue;
        if (!Messages::ask(&q, text, title.toString(), QMessageBox::Critical) || !alive)
            return;
    }
}

void KOVAVSFDataGrid::Private::showText(QStringView title, const QString &label, const QString &text)
{
    runSteps(title, {[&] { shared.scratch = text; },
                     [&] {
                         Dialog_SQLST dialog(&q);
                         dialog.SetLabel(label);
                         dialog.SetText(shared.scratch);
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
    if (dialog.result())
        shared.scratch = *dialog.result();
    return dialog.result();
}

QString KOVAVSFDataGrid::Private::cellText(int row, int col, const QString &title)
{
    try {
        return parts.vsfgDataGrid->TextMatrix(row, col);
    } catch (const std::out_of_range &) {
        Messages::tell(&q, GridTexts::WrongCell, title);
        return {};
    }
}

void KOVAVSFDataGrid::Private::emptyGrid()
{
    parts.vsfgDataGrid->Show(std::make_unique<TextCells>(2, 2));
    parts.vsfgDataGrid->PutColWidth(1, FlexGrid::DefaultColWidth);
}
