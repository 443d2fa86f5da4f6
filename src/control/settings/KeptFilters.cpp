#include "control/settings/KeptFilters.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QSettings>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString settingsName = u"KOVAVSFDataGrid"_s;
const QString sqlKey = u"Filters/ShowSql"_s;
const QString wordsKey = u"Find/Words"_s;

// The connection string without the user's login, in a canonical order.
QString databaseOf(const QString &connectionString)
{
    static const QStringList logins{u"user id"_s, u"uid"_s, u"user"_s, u"username"_s};
    try {
        const ADODB::ConnectionString parsed(connectionString);
        QStringList parts;
        for (const ADODB::ConnectionString::Part &part : parsed.parts()) {
            const QString keyword = part.keyword.toLower();
            if (!ADODB::ConnectionString::isPassword(part.keyword) && !logins.contains(keyword))
                parts.append(keyword + u'=' + part.value);
        }
        parts.sort();
        return parts.join(u';');
    } catch (const ADODB::Error &) {
        return {}; // such a string can't be opened
    }
}

// A hash of fixed length, whatever characters the names have.
QString keyOf(const FilterPlace &place)
{
    const QString names = place.hostKey + u'\n' + databaseOf(place.connectionString) + u'\n' + place.table;
    const QByteArray hash = QCryptographicHash::hash(names.toUtf8(), QCryptographicHash::Sha1);
    return u"Filters/"_s + QString::fromLatin1(hash.toHex());
}

} // namespace

QString readFilters(const FilterPlace &place)
{
    return QSettings(settingsName, settingsName).value(keyOf(place)).toString();
}

void saveFilters(const FilterPlace &place, const QString &filters)
{
    QSettings(settingsName, settingsName).setValue(keyOf(place), filters);
}

bool readSqlWanted()
{
    return QSettings(settingsName, settingsName).value(sqlKey).toBool();
}

void saveSqlWanted(bool isWanted)
{
    if (readSqlWanted() != isWanted) // which seldom changes; the file is written each time
        QSettings(settingsName, settingsName).setValue(sqlKey, isWanted);
}

QStringList readSearchedWords()
{
    return QSettings(settingsName, settingsName).value(wordsKey).toStringList();
}

void saveSearchedWords(const QStringList &words)
{
    QSettings(settingsName, settingsName).setValue(wordsKey, words);
}

} // namespace KOVAVSFDataGridLib
