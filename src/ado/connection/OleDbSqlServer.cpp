#include "ado/connection/OleDbSqlServer.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OleDbKeywords.h"

#include <QtCore/QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// A server in the form `tcp:host\instance,port`.
struct Server
{
    explicit Server(const QString &text)
    {
        static const QRegularExpression form(u"^(?:(tcp|np|lpc|admin):)?\\s*(.*?)\\s*(?:,\\s*(\\d+))?$"_s,
                                             QRegularExpression::CaseInsensitiveOption |
                                                 QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(text.trimmed());
        protocol = match.captured(1);
        host = match.captured(2);
        port = match.captured(3);
    }

    QString text() const
    {
        return (protocol.isEmpty() ? QString() : protocol + u':') + host +
               (port.isEmpty() ? QString() : u',' + port);
    }

    QString protocol;
    QString host; // including its instance
    QString port;
};

// Before server names could contain a protocol, the network library selected it.
QString protocolOf(const QString &library)
{
    if (library.compare("DBMSSOCN"_L1, Qt::CaseInsensitive) == 0)
        return u"tcp"_s;
    if (library.compare("DBNMPNTW"_L1, Qt::CaseInsensitive) == 0)
        return u"np"_s;
    if (library.compare("DBMSLPCN"_L1, Qt::CaseInsensitive) == 0)
        return u"lpc"_s;
    return {};
}

Server serverIn(ConnectionString &words)
{
    // An address takes precedence over a name.
    const QString address = extractValue(words, u"Address"_s);
    Server server(address.isEmpty() ? words.value(u"Server"_s) : address);
    if (server.host.isEmpty())
        server.host = u"(local)"_s; // the providers' default
    if (const QString port = extractValue(words, u"Port"_s); !port.isEmpty())
        server.port = port;
    const QString protocol = protocolOf(extractValue(words, u"Network"_s));
    if (server.protocol.isEmpty())
        server.protocol = protocol;
    return server;
}

void putServer(ConnectionString &words, Server server, const OdbcDriver &driver)
{
    if (driver.words != OdbcDriver::Words::FreeTds) {
        words.set(u"Server"_s, server.text());
        return;
    }
    // FreeTDS supports neither protocols nor the names for this machine.
    static const QRegularExpression here(u"^(\\.|\\(local\\))(?=\\\\|$)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    words.set(u"Server"_s, server.host.replace(here, u"localhost"_s));
    if (!server.port.isEmpty())
        words.set(u"Port"_s, server.port);
}

void putLogin(ConnectionString &words)
{
    const bool trusted = booleanValue(words, u"Trusted_Connection"_s).value_or(false);
    words.remove(u"Trusted_Connection"_s);
    if (!trusted)
        return;
    words.set(u"Trusted_Connection"_s, u"Yes"_s);
    words.remove(u"UID"_s);
    words.remove(u"PWD"_s);
}

// Drivers from version 18 on encrypt and check the server's certificate by default, but most providers never
// did. A host that could always connect must still be able to.
void putEncryption(ConnectionString &words, const OdbcDriver &driver, const QString &provider)
{
    const bool isStrict = words.value(u"Encrypt"_s).compare("strict"_L1, Qt::CaseInsensitive) == 0;
    std::optional<bool> encrypts = isStrict ? true : booleanValue(words, u"Encrypt"_s);
    words.remove(u"Encrypt"_s);
    if (!encrypts && provider.startsWith("MSOLEDBSQL19"_L1, Qt::CaseInsensitive))
        encrypts = true;
    if (isStrict && !driver.name.isEmpty() && !driver.encryptsByDefault())
        throw Error(adErrFeatureNotAvailable,
                    Texts::noStrictEncryption().arg(driver.name, driverToInstall(OleDbKind::SqlServer)));
    if (driver.words == OdbcDriver::Words::FreeTds) {
        if (encrypts)
            words.set(u"Encryption"_s, *encrypts ? u"require"_s : u"request"_s);
    } else if (isStrict) {
        words.set(u"Encrypt"_s, u"Strict"_s);
    } else if (encrypts || driver.encryptsByDefault()) {
        words.set(u"Encrypt"_s, encrypts.value_or(false) ? u"Yes"_s : u"No"_s);
    }
}

void putSwitch(ConnectionString &words, const QString &keyword)
{
    if (const std::optional<bool> on = booleanValue(words, keyword))
        words.set(keyword, *on ? u"Yes"_s : u"No"_s);
}

} // namespace

void finishSqlServer(ConnectionString &words, const OdbcDriver &driver, const QString &provider)
{
    if (!driver.name.isEmpty())
        putServer(words, serverIn(words), driver);
    putLogin(words);
    putEncryption(words, driver, provider);
    for (const QString &keyword :
         {u"TrustServerCertificate"_s, u"MARS_Connection"_s, u"AutoTranslate"_s, u"MultiSubnetFailover"_s})
        putSwitch(words, keyword);
    // These have no keyword for it. FreeTDS does not check certificates.
    if (driver.words == OdbcDriver::Words::FreeTds)
        words.remove(u"TrustServerCertificate"_s);
    else
        words.remove(u"PacketSize"_s);
}

} // namespace ADODB
