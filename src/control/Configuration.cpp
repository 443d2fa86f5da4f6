#include "control/Configuration.h"

#include "control/platform/ModuleFolder.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString Application = u"KOVAVSFDataGrid"_s;
const QString SelectWholeRowsKey = u"Settings/ResChkSelAllRow"_s;

} // namespace

QString ReadProfileValue(const QString &section, const QString &key, const QString &filePath)
{
    const QSettings file(filePath, QSettings::IniFormat);
    const QString wanted = section + u'/' + key;
    for (const QString &name : file.allKeys()) {
        // A value with a comma is read as a list.
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return file.value(name).toStringList().join(u',').trimmed();
    }
    return u"Return Err"_s;
}

qint32 Read3TierSwitch()
{
    const QString file = QDir(moduleFolder()).filePath(u"MERIXUSER3TIER.cfg"_s);
    return ReadProfileValue(u"Use3Tier"_s, u"MERIX"_s, file).toUpper() == u"YES" ? 1 : 0;
}

bool readSelectWholeRows()
{
    return QSettings(Application, Application).value(SelectWholeRowsKey, u"1"_s).toString() == u"1";
}

void saveSelectWholeRows(bool on)
{
    QSettings(Application, Application).setValue(SelectWholeRowsKey, on ? u"1"_s : u"0"_s);
}

} // namespace KOVAVSFDataGridLib
