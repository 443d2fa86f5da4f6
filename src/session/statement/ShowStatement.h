#pragma once

#include <QtCore/QString>

#include <functional>

namespace KOVAVSFDataGridLib {

class Session;

// Shows the records of another statement, and lets `change` make the rest of the session fit it before the
// host is notified. False when the statement can't be read, which the user has been shown.
bool showStatement(Session &session, const QString &statement, const std::function<void()> &change);

} // namespace KOVAVSFDataGridLib
