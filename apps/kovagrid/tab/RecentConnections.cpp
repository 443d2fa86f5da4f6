#include "tab/RecentConnections.h"

#include "Settings.h"

#include <KOVAVSFDataGridLib/ado/ConnectionString.h>
#include <KOVAVSFDataGridLib/ado/Error.h>

#include <QtCore/QSettings>

using namespace Qt::StringLiterals;

namespace {

const QString settingsKey = u"recentConnections"_s;

} // namespace

QStringList RecentConnections::all()
{
    return userSettings()->value(settingsKey).toStringList();
}

void RecentConnections::add(const QString &connection)
{
    QString kept;
    try {
        kept = ADODB::ConnectionString(connection).textWithoutPassword();
    } catch (const ADODB::Error &) {
        return; // it is unknown where its password is
    }
    if (kept.isEmpty())
        return;
    QStringList list = all();
    list.removeAll(kept);
    list.prepend(kept);
    userSettings()->setValue(settingsKey, list.mid(0, most));
}

void RecentConnections::clear()
{
    userSettings()->remove(settingsKey);
}
