#include "ado/MiddleTier.h"

#include "ado/ConnectionString.h"
#include "ado/connection/OleDbDrivers.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// The keywords of all drivers for this.
const QStringList &userWords()
{
    static const QStringList words{u"UID"_s, u"User ID"_s, u"User"_s, u"Username"_s};
    return words;
}

const QStringList &passwordWords()
{
    static const QStringList words{u"PWD"_s, u"Password"_s};
    return words;
}

const QStringList &serverWords()
{
    static const QStringList words{u"Server"_s,  u"Servername"_s, u"Host"_s,           u"Hostname"_s,
                                   u"Address"_s, u"Addr"_s,       u"Network Address"_s};
    return words;
}

bool namesAny(const ConnectionString &text, const QStringList &words)
{
    return std::ranges::any_of(words, [&](const QString &word) { return text.contains(word); });
}

void copyWords(ConnectionString &text, const ConnectionString &from, const QStringList &words)
{
    if (namesAny(text, words))
        return;
    for (const QString &word : words) {
        if (from.contains(word))
            text.set(word, from.value(word));
    }
}

// A data source name counts too, because other keywords override its settings.
bool leadsToServer(const ConnectionString &text)
{
    return namesAny(text, serverWords()) || namesAny(text, {u"DSN"_s, u"FILEDSN"_s}) ||
           text.value(u"Provider"_s).startsWith("MSDASQL"_L1, Qt::CaseInsensitive);
}

ConnectionString throughServer(ConnectionString text, const QString &server, const QString &port)
{
    // The keyword means the server if a driver or a server's provider is named, otherwise a data source.
    const bool isServer =
        text.contains(u"Driver"_s) || oleDbKind(text.value(u"Provider"_s)) == OleDbKind::SqlServer;
    if (isServer && text.contains(u"Data Source"_s)) {
        text.set(u"Server"_s, text.value(u"Data Source"_s));
        text.remove(u"Data Source"_s);
    }
    if (!leadsToServer(text))
        return text;
    if (!server.isEmpty()) {
        const auto written =
            std::ranges::find_if(serverWords(), [&](const QString &word) { return text.contains(word); });
        const QString keyword = written == serverWords().end() ? serverWords().front() : *written;
        for (const QString &word : serverWords()) {
            if (word != keyword)
                text.remove(word);
        }
        text.set(keyword, server);
    }
    if (!port.isEmpty())
        text.set(u"Port"_s, port);
    return text;
}

} // namespace

ConnectionString MiddleTier::rewritten(const ConnectionString &database) const
{
    if (connection.trimmed().isEmpty())
        return throughServer(database, server, port);
    ConnectionString text(connection);
    copyWords(text, database, userWords());
    copyWords(text, database, passwordWords());
    return text;
}

} // namespace ADODB
