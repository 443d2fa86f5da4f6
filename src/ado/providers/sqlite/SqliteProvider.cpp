#include "ado/providers/sqlite/SqliteProvider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/DatabaseFile.h"
#include "ado/providers/sqlite/SqliteSession.h"

#include <QtCore/QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr double defaultTimeout = 2;

QString checkedPath(const QString &path)
{
    const QByteArray header = QByteArrayLiteral("SQLite format 3\0");
    const DatabaseFile file(path, header.size());
    if (file.header != header)
        throw Error(adErrOpeningFile, Texts::notADatabase().arg(file.shown));
    // SQLite opens these itself, and would block on a pipe.
    for (const QLatin1StringView ending : {"-journal"_L1, "-wal"_L1, "-shm"_L1}) {
        const QFileInfo beside(file.path + ending);
        if (beside.exists() && !beside.isFile())
            throw Error(adErrOpeningFile, Texts::fileIsSpecial().arg(file.shown + ending));
    }
    // An absolute path can't be mistaken for a URI with options of its own.
    return file.path;
}

int timeoutInMilliseconds(const ConnectionString &connection)
{
    bool ok = true;
    const QString text = connection.value(u"Connect Timeout"_s);
    const double seconds = text.isEmpty() ? defaultTimeout : text.toDouble(&ok);
    if (!ok || !(seconds >= 0 && seconds <= 24 * 60 * 60))
        throw Error(adErrInvalidArgument, Texts::badTimeout());
    return static_cast<int>(seconds * 1000);
}

} // namespace

QString SqliteProvider::name() const
{
    return u"SQLite"_s;
}

bool SqliteProvider::claims(const ConnectionString &connection) const
{
    const QString provider = connection.value(u"Provider"_s);
    if (!provider.isEmpty())
        return provider.compare(name(), Qt::CaseInsensitive) == 0;
    return connection.contains(u"Data Source"_s) && !isAccessFileName(connection.value(u"Data Source"_s));
}

std::shared_ptr<Session> SqliteProvider::open(const ConnectionString &connection) const
{
    const QString source = connection.value(u"Data Source"_s);
    if (source.isEmpty())
        throw Error(adErrInvalidArgument, Texts::noDataSource());
    const int timeout = timeoutInMilliseconds(connection);
    return std::make_shared<SqliteSession>(source == ":memory:"_L1 ? source : checkedPath(source), timeout);
}

std::optional<FileChoice> SqliteProvider::fileChoice() const
{
    return FileChoice{u"SQLite database file"_s, u"SQLite databases (*.db *.sqlite *.sqlite3)"_s, {}};
}

} // namespace ADODB
