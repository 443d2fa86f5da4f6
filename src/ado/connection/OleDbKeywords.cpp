#include "ado/connection/OleDbKeywords.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// Keywords are compared without spaces, because hosts write both `User ID` and `UserID`, `Trust Server
// Certificate` and `TrustServerCertificate`.
struct Word
{
    QLatin1StringView ole;
    QLatin1StringView odbc; // empty: no driver knows or needs it
};

// Keywords of OLE DB and of connection pools. They mean the same, or nothing, for every provider.
constexpr Word commonWords[] = {
    {"Provider"_L1, {}},
    {"PersistSecurityInfo"_L1, {}},
    {"OLEDBServices"_L1, {}},
    {"LocaleIdentifier"_L1, {}},
    {"Prompt"_L1, {}},
    {"WindowHandle"_L1, {}},
    {"AsynchronousProcessing"_L1, {}},
    {"CacheAuthentication"_L1, {}},
    {"EncryptPassword"_L1, {}},
    {"MaskPassword"_L1, {}},
    {"ImpersonationLevel"_L1, {}},
    {"ProtectionLevel"_L1, {}},
    {"BindFlags"_L1, {}},
    {"LockOwner"_L1, {}},
    {"Location"_L1, {}},
    {"Mode"_L1, {}},
    {"Pooling"_L1, {}},
    {"MinPoolSize"_L1, {}},
    {"MaxPoolSize"_L1, {}},
    {"Enlist"_L1, {}},
    {"ExtendedProperties"_L1, {}},
    {"Driver"_L1, {}},
    {"UserID"_L1, "UID"_L1},
    {"User"_L1, "UID"_L1},
    {"Username"_L1, "UID"_L1},
    {"Password"_L1, "PWD"_L1},
    {"ConnectTimeout"_L1, "Connect Timeout"_L1},
    {"ConnectionTimeout"_L1, "Connect Timeout"_L1},
    {"CommandTimeout"_L1, "Command Timeout"_L1},
    {"GeneralTimeout"_L1, "General Timeout"_L1},
};

constexpr Word sqlServerWords[] = {
    {"DataSource"_L1, "Server"_L1},
    {"NetworkAddress"_L1, "Address"_L1},
    {"Addr"_L1, "Address"_L1},
    {"InitialCatalog"_L1, "Database"_L1},
    {"IntegratedSecurity"_L1, "Trusted_Connection"_L1},
    {"ApplicationName"_L1, "APP"_L1},
    {"WorkstationID"_L1, "WSID"_L1},
    {"UseEncryptionforData"_L1, "Encrypt"_L1},
    {"TrustServerCertificate"_L1, "TrustServerCertificate"_L1},
    {"HostNameInCertificate"_L1, "HostNameInCertificate"_L1},
    {"MARSConnection"_L1, "MARS_Connection"_L1},
    {"MultipleActiveResultSets"_L1, "MARS_Connection"_L1},
    {"AutoTranslate"_L1, "AutoTranslate"_L1},
    {"CurrentLanguage"_L1, "Language"_L1},
    {"InitialFileName"_L1, "AttachDBFileName"_L1},
    {"NetworkLibrary"_L1, "Network"_L1},
    {"Net"_L1, "Network"_L1},
    {"PacketSize"_L1, "PacketSize"_L1},
    {"FailoverPartner"_L1, "Failover_Partner"_L1},
    {"ApplicationIntent"_L1, "ApplicationIntent"_L1},
    {"MultiSubnetFailover"_L1, "MultiSubnetFailover"_L1},
    {"ServerSPN"_L1, "ServerSPN"_L1},
    {"FailoverPartnerSPN"_L1, "FailoverPartnerSPN"_L1},
    {"Timeout"_L1, "Connect Timeout"_L1},
    {"UseProcedureforPrepare"_L1, {}},
    {"Tagwithcolumncollationwhenpossible"_L1, {}},
    {"DataTypeCompatibility"_L1, {}},
    {"Replicationservernameconnectoption"_L1, {}},
    {"TypeSystemVersion"_L1, {}},
    {"UserInstance"_L1, {}},
};

constexpr Word oracleWords[] = {
    {"DataSource"_L1, "DBQ"_L1},
    {"Server"_L1, "DBQ"_L1},
    {"IntegratedSecurity"_L1, "Trusted_Connection"_L1},
    {"OSAuthent"_L1, "Trusted_Connection"_L1},
    {"InitialCatalog"_L1, {}},
    {"Database"_L1, {}},
    {"PLSQLRSet"_L1, {}},
    {"FetchSize"_L1, {}},
    {"CacheType"_L1, {}},
    {"ChunkSize"_L1, {}},
    {"DistribTX"_L1, {}},
    {"OLEDB.NET"_L1, {}},
    {"PwdChgDlg"_L1, {}},
    {"NDataType"_L1, {}},
    {"UseSessionFormat"_L1, {}},
    {"VCharNull"_L1, {}},
    {"SchRstLng"_L1, {}},
    {"SPPrmDefVal"_L1, {}},
    {"SPPrmsLOB"_L1, {}},
    {"MetaDataCacheSize"_L1, {}},
    {"StmtCacheSize"_L1, {}},
    {"DeferUpdChk"_L1, {}},
    {"DBNotifications"_L1, {}},
    {"DBNotificationPort"_L1, {}},
};

constexpr Word accessWords[] = {
    {"DataSource"_L1, "DBQ"_L1},
    {"Database"_L1, "DBQ"_L1},
    {"InitialCatalog"_L1, {}},
    {"IntegratedSecurity"_L1, {}},
    {"Mode"_L1, "Mode"_L1},
    {"JetOLEDB:Systemdatabase"_L1, "SystemDB"_L1},
    {"JetOLEDB:DatabasePassword"_L1, "DatabasePassword"_L1},
};

std::span<const Word> wordsOf(OleDbKind kind)
{
    switch (kind) {
    case OleDbKind::SqlServer:
        return sqlServerWords;
    case OleDbKind::Oracle:
        return oracleWords;
    case OleDbKind::Access:
        return accessWords;
    case OleDbKind::Odbc:
        break;
    }
    return {};
}

} // namespace

QString odbcWord(OleDbKind kind, const QString &keyword)
{
    const QString plain = QString(keyword).remove(u' ');
    for (const std::span<const Word> words : {wordsOf(kind), std::span<const Word>(commonWords)}) {
        const auto found = std::ranges::find_if(
            words, [&](const Word &word) { return plain.compare(word.ole, Qt::CaseInsensitive) == 0; });
        if (found != words.end())
            return found->odbc;
    }
    if (kind == OleDbKind::Access && plain.startsWith("JetOLEDB:"_L1, Qt::CaseInsensitive))
        return {};
    return keyword;
}

std::optional<bool> booleanValue(const ConnectionString &words, const QString &keyword)
{
    const QString value = words.value(keyword);
    const auto isOneOf = [&](const auto &candidates) {
        return std::ranges::any_of(candidates, [&](QLatin1StringView candidate) {
            return value.compare(candidate, Qt::CaseInsensitive) == 0;
        });
    };
    if (value.isEmpty())
        return std::nullopt;
    if (isOneOf(std::array{"yes"_L1, "true"_L1, "1"_L1, "-1"_L1, "on"_L1, "SSPI"_L1, "mandatory"_L1}))
        return true;
    if (isOneOf(std::array{"no"_L1, "false"_L1, "0"_L1, "off"_L1, "optional"_L1}))
        return false;
    throw Error(adErrInvalidArgument, Texts::badSwitch().arg(keyword));
}

QString extractValue(ConnectionString &words, const QString &keyword)
{
    QString value = words.value(keyword);
    words.remove(keyword);
    return value;
}

} // namespace ADODB
