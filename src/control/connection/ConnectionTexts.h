#pragma once

#include <QtCore/QString>

// The texts of the connection builder, collected here for proofreading. Only the host's developer sees them:
// it opens from ConnectDialog and the property pages, and uses their language.
namespace KOVAVSFDataGridLib::ConnectionTexts {

using namespace Qt::StringLiterals;

inline const QString Title = u"Build Connection"_s;
inline const QString ConnectTo = u"&Connect to:"_s;
inline const QString DataSource = u"ODBC data source %1"_s;
inline const QString Driver = u"ODBC driver %1"_s;
inline const QString NotInstalled = u"%1 (not installed)"_s;
inline const QString NothingInstalled = u"No ODBC data source or driver is installed on this computer."_s;
inline const QString File = u"&File:"_s;
inline const QString Browse = u"&Browse…"_s;
inline const QString BrowseTitle = u"Choose a Database File"_s;
inline const QString AllFiles = u"All files (*)"_s;
inline const QString Server = u"&Server:"_s;
inline const QString Port = u"&Port:"_s;
inline const QString PortHint = u"Empty for the default port"_s;
inline const QString Database = u"&Database:"_s;
inline const QString User = u"&User name:"_s;
inline const QString Password = u"Pass&word:"_s;
inline const QString Result = u"Connection st&ring:"_s;
inline const QString ResultHint = u"The password is not shown here."_s;
inline const QString Test = u"&Test"_s;
inline const QString Testing = u"Connecting…"_s;
inline const QString Connected = u"Connected."_s;
inline const QString NotConnected = u"The connection failed: %1"_s;
inline const QString Ok = u"OK"_s;
inline const QString Cancel = u"Cancel"_s;

} // namespace KOVAVSFDataGridLib::ConnectionTexts
