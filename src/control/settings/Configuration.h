#pragma once

#include "ado/MiddleTier.h"

#include <QtCore/QString>

// What the control reads and keeps outside its host: an INI file beside the library, and one setting of
// the user.
namespace KOVAVSFDataGridLib {

// The value of an entry of an INI file without blanks around it, or "Return Err" when the file, the
// section or the key is missing. Names count in any letter case. A value is at most 254 characters long.
QString readProfileValue(const QString &section, const QString &key, const QString &filePath);

// 1 when the file MERIXUSER3TIER.cfg beside the library switches the middle tier on, else 0.
qint32 readThreeTierSwitch();

// The switch with the middle tier that its section names: `Server` and `Port`, or a whole `Connection`
// string. What isn't there is empty. The file is read once.
struct ThreeTierSettings
{
    bool isOn;
    ADODB::MiddleTier tier;
};
ThreeTierSettings readThreeTierSettings();

// Whether a click selects the whole row, as the user last left it; on at first.
bool readSelectWholeRows();
void saveSelectWholeRows(bool on);

// A layout of columns that is kept for the user under a name; empty when there is none.
QString readLayout(const QString &name);
void saveLayout(const QString &name, const QString &layout);

} // namespace KOVAVSFDataGridLib
