#include "window/EventLog.h"

#include <QtCore/QTime>

#include <utility>

using namespace Qt::StringLiterals;

EventLog::EventLog(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setMaximumBlockCount(500);
    setLineWrapMode(NoWrap);
}

void EventLog::add(const QString &line)
{
    appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss  ")) + line);
}

void EventLog::listenTo(const KOVAVSFDataGrid &grid)
{
    m_grids.append(&grid);
    if (isVisible())
        connectTo(grid);
}

void EventLog::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    for (const auto &grid : std::as_const(m_grids)) {
        if (grid) {
            disconnect(grid, nullptr, this, nullptr);
            connectTo(*grid);
        }
    }
}

void EventLog::hideEvent(QHideEvent *event)
{
    QPlainTextEdit::hideEvent(event);
    for (const auto &grid : std::as_const(m_grids)) {
        if (grid)
            disconnect(grid, nullptr, this, nullptr);
    }
}

// All events except DataMouseMove, which is too frequent.
void EventLog::connectTo(const KOVAVSFDataGrid &grid)
{
    const auto log = [this](const QString &line) { add(line); };
    connect(&grid, &KOVAVSFDataGrid::DataMouseDown, this,
            [log](qint16 &button, qint16 &shift, float &x, float &y) {
                log(u"DataMouseDown %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
            });
    connect(&grid, &KOVAVSFDataGrid::DataMouseUp, this,
            [log](qint16 &button, qint16 &shift, float &x, float &y) {
                log(u"DataMouseUp %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
            });
    connect(&grid, &KOVAVSFDataGrid::HeadClick, this, [log](qint16 col) { log(u"HeadClick %1"_s.arg(col)); });
    connect(&grid, &KOVAVSFDataGrid::DataClick, this, [log] { log(u"DataClick"_s); });
    connect(&grid, &KOVAVSFDataGrid::DataDblClick, this, [log] { log(u"DataDblClick"_s); });
    connect(&grid, &KOVAVSFDataGrid::DataKeyDown, this,
            [log](qint16 &key, qint16 &shift) { log(u"DataKeyDown %1 %2"_s.arg(key).arg(shift)); });
    connect(&grid, &KOVAVSFDataGrid::MouseUp, this, [log](qint16 &button, qint16 &shift, float &x, float &y) {
        log(u"MouseUp %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
    });
    connect(&grid, &KOVAVSFDataGrid::ShowFieldsChange, this,
            [log](const QString &sql) { log(u"ShowFieldsChange "_s + sql); });
    connect(&grid, &KOVAVSFDataGrid::QurryFilter, this, [log](qint32 &cancel, const QString &lastFilter) {
        log(u"QurryFilter Cancel=%1 %2"_s.arg(cancel).arg(lastFilter));
    });
    connect(&grid, &KOVAVSFDataGrid::RecordChanged, this, [log](qint32 reason, qint32 position) {
        log(u"RecordChanged %1 %2"_s.arg(reason).arg(position));
    });
    connect(&grid, &KOVAVSFDataGrid::RecordsetChanged, this,
            [log](qint32 reason) { log(u"RecordsetChanged %1"_s.arg(reason)); });
    connect(&grid, &KOVAVSFDataGrid::DataDBLClickOneCell, this,
            [log](qint32 col, qint32 row) { log(u"DataDBLClickOneCell %1 %2"_s.arg(col).arg(row)); });
    connect(&grid, &KOVAVSFDataGrid::DataDBLClickOneRow, this,
            [log](qint32 row) { log(u"DataDBLClickOneRow %1"_s.arg(row)); });
    connect(&grid, &KOVAVSFDataGrid::HostError, this, [log](qint32 number, const QString &description) {
        log(u"HostError %1 %2"_s.arg(number).arg(description));
    });
}
