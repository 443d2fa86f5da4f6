#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// Filters by a condition of the host or one that the user builds; the dialog starts with `field`.
void filterByDialog(Session &session, const QString &field = {});

} // namespace KOVAVSFDataGridLib
