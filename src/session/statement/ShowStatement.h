#pragma once

#include <QtCore/QString>

#include <functional>

namespace KOVAVSFDataGridLib {

class Session;

// Shows the records of another statement. `change` updates the rest of the session before the host is
// notified. Returns false if the statement can't be read, after a message to the user.
bool showStatement(Session &session, const QString &statement, const std::function<void()> &change);

} // namespace KOVAVSFDataGridLib
