#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// Filters by a condition that the host gives or the user builds; the dialog begins with `field`.
void filterByDialog(Session &session, const QString &field = {});

} // namespace KOVAVSFDataGridLib
