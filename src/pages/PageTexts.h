#pragma once

#include <QtCore/QString>

// The texts of the property pages, collected here for proofreading. Only the host's developer sees them.
namespace KOVAVSFDataGridLib::PageTexts {

using namespace Qt::StringLiterals;

// The label above a page's text is the property's name.
inline const QString ConnectionString = u"&ConnectionString:"_s;
inline const QString ConnectionStringHint =
    u"Applying it clears SQLShow, SQLPartDisplay, SQLFilter and SQLSort."_s;
inline const QString Build = u"&Build…"_s;
inline const QString BuildHint = u"Opens the connection builder and uses the string that it builds."_s;
inline const QString NoBuilder = u"No connection builder is available here; type the connection string."_s;
inline const QString ShowWhole = u"Sho&w…"_s;
inline const QString ShowWholeHint = u"Shows the whole connection string in a separate window."_s;
inline const QString WholeLabel = u"ConnectionString:"_s;

inline const QString SqlShow = u"S&QLShow:"_s;
inline const QString SqlShowHint = u"The SELECT to show. Applying it also sets SQLPartDisplay."_s;

inline const QString RecordSource = u"&RecordSource:"_s;
inline const QString RecordSourceHint = u"The statement that the last load opened. It is read-only."_s;

inline const QString PartDisplay = u"SQL&PartDisplay:"_s;
inline const QString PartDisplayHint =
    u"The fields that SQLShow names. For a \"*\", all fields of its tables if the connection can be opened."_s;
inline const QString NotChosen = u"&Fields not chosen:"_s;
inline const QString Chosen = u"C&hosen fields:"_s;
inline const QString Add = u"&Add >"_s;
inline const QString Remove = u"< Re&move"_s;

// PropertyPage
inline const QString IsReadOnly = u"%1 is read-only and can't be changed here."_s;

// PageDialog
inline const QString DialogTitle = u"%1 - Property Page"_s;
inline const QString Ok = u"OK"_s;
inline const QString Cancel = u"Cancel"_s;
inline const QString Apply = u"App&ly"_s;

} // namespace KOVAVSFDataGridLib::PageTexts
