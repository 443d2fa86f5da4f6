#pragma once

#include "ado/MiddleTier.h"

#include <QtCore/QString>

// What the control reads and stores outside its host: an INI file beside the library, and the user's
// settings.
namespace KOVAVSFDataGridLib {

// The trimmed value of an entry in an INI file, or "Return Err" if the file, the section or the key is
// missing. Names are case-insensitive. A value has at most 254 characters.
QString readProfileValue(const QString &section, const QString &key, const QString &filePath);

// 1 if the file MERIXUSER3TIER.cfg beside the library turns the middle tier on, else 0.
qint32 readThreeTierSwitch();

// The switch, and the middle tier in its section: `Server` and `Port`, or a complete `Connection` string.
// Missing entries are empty. The file is read only once.
struct ThreeTierSettings
{
    bool isOn;
    ADODB::MiddleTier tier;
};
ThreeTierSettings readThreeTierSettings();

// Whether a click selects the whole row, as the user last chose; true by default.
bool readSelectWholeRows();
void saveSelectWholeRows(bool on);

// A column layout stored for the user under a name; empty if there is none.
QString readLayout(const QString &name);
void saveLayout(const QString &name, const QString &layout);

} // namespace KOVAVSFDataGridLib
