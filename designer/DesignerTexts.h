#pragma once

#include <QtCore/QString>

// The texts shown in Qt Designer, collected here for proofreading.
namespace KOVAVSFDataGridLib::DesignerTexts {

using namespace Qt::StringLiterals;

inline const QString Group = u"Database"_s;
inline const QString ToolTip = u"SQL result grid"_s;
inline const QString WhatsThis =
    u"Shows the result of a SELECT; the user filters, sorts and chooses fields without writing SQL."_s;
inline const QString PageAction = u"%1…"_s;
inline const QString PreviewAction = u"Preview Data…"_s;
inline const QString PreviewTitle = u"%1 - Preview Data"_s;

} // namespace KOVAVSFDataGridLib::DesignerTexts
