#include "ado/connection/OleDbWords.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OleDbKeywords.h"
#include "ado/connection/OleDbSqlServer.h"
#include "ado/providers/AccessFiles.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// Keywords that are already in `words` are kept.
void take(ConnectionString &words, OleDbKind kind, const ConnectionString &from)
{
    ConnectionString translated;
    for (const auto &[keyword, value] : from.parts()) {
        const QString word = odbcWord(kind, keyword);
        if (!word.isEmpty())
            translated.set(word, value);
    }
    for (const auto &[keyword, value] : translated.parts()) {
        if (words.value(keyword).isEmpty())
            words.set(keyword, value);
    }
}

[[noreturn]] void failWithoutDriver(OleDbKind kind, const QStringList &installed, int bits)
{
    throw Error(adErrProviderNotFound,
                Texts::noOleDbDriver().arg(driverToInstall(kind), QString::number(bits),
                                           installed.isEmpty() ? Texts::noneInstalled()
                                                               : installed.join(Texts::betweenNames())));
}

void finishOracle(ConnectionString &words, const OdbcDriver &driver)
{
    // An operating system user logs in under this name, without a password.
    if (booleanValue(words, u"Trusted_Connection"_s).value_or(false)) {
        words.set(u"UID"_s, u"/"_s);
        words.remove(u"PWD"_s);
    }
    words.remove(u"Trusted_Connection"_s);
    if (driver.words == OdbcDriver::Words::MicrosoftOracle && words.contains(u"DBQ"_s))
        words.set(u"Server"_s, extractValue(words, u"DBQ"_s));
}

void finishAccess(ConnectionString &words, const OdbcDriver &driver, int bits)
{
    const QString file = words.value(u"DBQ"_s);
    if (file.isEmpty())
        throw Error(adErrInvalidArgument, Texts::noDataSource());
    if (file.endsWith(".accdb"_L1, Qt::CaseInsensitive) &&
        !driver.name.contains(".accdb"_L1, Qt::CaseInsensitive))
        failWithoutDriver(OleDbKind::Access, {driver.name}, bits);
    // The driver uses one keyword for both passwords: the user's (only with a workgroup file) and the file's.
    const QString password = extractValue(words, u"DatabasePassword"_s);
    if (!password.isEmpty())
        words.set(u"PWD"_s, password);
    const QString mode = extractValue(words, u"Mode"_s);
    for (const QString &part : mode.split(u'|')) {
        if (part.trimmed().compare("Read"_L1, Qt::CaseInsensitive) == 0)
            words.set(u"ReadOnly"_s, u"1"_s);
        else if (part.trimmed().compare("Share Exclusive"_L1, Qt::CaseInsensitive) == 0)
            words.set(u"Exclusive"_s, u"1"_s);
    }
}

// Jet's provider also reads spreadsheets and text files. Then the first part is the format and not a
// `keyword=value`.
void refuseOtherFiles(const QString &extended)
{
    const QString format = extended.section(u';', 0, 0).trimmed();
    if (!format.isEmpty() && !format.contains(u'='))
        throw Error(adErrFeatureNotAvailable, Texts::onlyAccessFiles());
}

ConnectionString withoutOleDbWords(ConnectionString connection)
{
    // OdbcLogin handles these.
    static const QStringList kept{u"Provider"_s, u"Extended Properties"_s, u"Driver"_s, u"Mode"_s};
    const ConnectionString all = connection;
    for (const auto &[keyword, value] : all.parts()) {
        if (!kept.contains(keyword, Qt::CaseInsensitive) && odbcWord(OleDbKind::Odbc, keyword).isEmpty())
            connection.remove(keyword);
    }
    return connection;
}

// The driver named in the string besides the provider, if it is for the same database; else the best one.
OdbcDriver driverFor(OleDbKind kind, const QString &named, const QStringList &installed, int bits)
{
    if (installed.contains(named, Qt::CaseInsensitive)) {
        if (auto driver = bestDriver(kind, {named}))
            return *driver;
    }
    if (auto driver = bestDriver(kind, installed))
        return *driver;
    failWithoutDriver(kind, installed, bits);
}

// Only a data source name, which determines its own target.
bool isByName(const ConnectionString &words)
{
    const auto has = [&](std::initializer_list<QLatin1StringView> keywords) {
        return std::any_of(keywords.begin(), keywords.end(),
                           [&](QLatin1StringView keyword) { return !words.value(keyword).isEmpty(); });
    };
    return has({"DSN"_L1, "FILEDSN"_L1}) && !has({"Server"_L1, "Address"_L1, "DBQ"_L1});
}

} // namespace

ConnectionString inOdbcWords(const ConnectionString &connection,
                             const std::function<QStringList()> &installed, int bits)
{
    const QString provider = connection.value(u"Provider"_s);
    const auto kind = isForAccess(connection) ? OleDbKind::Access : oleDbKind(provider);
    if (!kind)
        return connection;
    if (*kind == OleDbKind::Odbc)
        return withoutOleDbWords(connection);

    const QString extended = connection.value(u"Extended Properties"_s);
    if (*kind == OleDbKind::Access)
        refuseOtherFiles(extended);
    ConnectionString words;
    take(words, *kind, connection);
    take(words, *kind, ConnectionString(extended));

    OdbcDriver driver;
    if (!isByName(words)) {
        driver = driverFor(*kind, connection.value(u"Driver"_s), installed(), bits);
        words.remove(u"DSN"_s);
        words.remove(u"FILEDSN"_s);
    }
    switch (*kind) {
    case OleDbKind::SqlServer:
        finishSqlServer(words, driver, provider);
        break;
    case OleDbKind::Oracle:
        finishOracle(words, driver);
        break;
    case OleDbKind::Access:
        finishAccess(words, driver, bits);
        break;
    case OleDbKind::Odbc:
        break;
    }

    ConnectionString result;
    if (!driver.name.isEmpty())
        result.set(u"Driver"_s, driver.name);
    for (const auto &[keyword, value] : words.parts()) {
        if (!value.isEmpty())
            result.set(keyword, value);
    }
    return result;
}

} // namespace ADODB
