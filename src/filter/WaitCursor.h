#pragma once

#include <QtGui/QGuiApplication>

namespace KOVAVSFDataGridLib {

// Shows that the user has to wait while it lives.
struct WaitCursor
{
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

} // namespace KOVAVSFDataGridLib
