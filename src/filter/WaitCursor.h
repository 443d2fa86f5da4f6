#pragma once

#include <QtGui/QGuiApplication>

namespace KOVAVSFDataGridLib {

// Shows the wait cursor while it exists.
struct WaitCursor
{
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

} // namespace KOVAVSFDataGridLib
