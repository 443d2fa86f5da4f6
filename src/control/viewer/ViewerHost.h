#pragma once

#include <QtCore/QString>

#include <functional>
#include <memory>

class QWidget;

namespace ADODB {
class Connection;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

// What the full-screen viewer asks of the control that opened it.
struct ViewerHost
{
    struct Opened
    {
        std::shared_ptr<ADODB::Connection> connection;
        std::shared_ptr<ADODB::Recordset> recordset;
    };

    // Opens a statement in place of the one that is open, both in the control and for the viewer; `progress`
    // as in ADODB::Recordset::SetProgress. When that fails it throws ADODB::Error, and what was open still
    // is.
    std::function<Opened(const QString &statement, const std::function<bool(qint64 rowsRead)> &progress)>
        open;
    // Lets the user build a condition in a dialog above `parent`; an empty text when he cancels.
    std::function<QString(QWidget *parent)> askCondition;
};

} // namespace KOVAVSFDataGridLib
