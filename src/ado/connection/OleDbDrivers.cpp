#include "ado/connection/OleDbDrivers.h"

#include "ado/ConnectionString.h"
#include "ado/Texts.h"

#include <QtCore/QRegularExpression>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

struct KnownProvider
{
    QLatin1StringView name;
    OleDbKind kind;
};

constexpr KnownProvider knownProviders[] = {
    {"MSDASQL"_L1, OleDbKind::Odbc},
    {"SQLOLEDB"_L1, OleDbKind::SqlServer},
    {"MSOLEDBSQL"_L1, OleDbKind::SqlServer},
    {"MSOLEDBSQL19"_L1, OleDbKind::SqlServer},
    {"SQLNCLI"_L1, OleDbKind::SqlServer},
    {"SQLNCLI10"_L1, OleDbKind::SqlServer},
    {"SQLNCLI11"_L1, OleDbKind::SqlServer},
    {"OraOLEDB.Oracle"_L1, OleDbKind::Oracle},
    {"MSDAORA"_L1, OleDbKind::Oracle},
    {"Microsoft.Jet.OLEDB"_L1, OleDbKind::Access},
    {"Microsoft.ACE.OLEDB"_L1, OleDbKind::Access},
};

struct KnownDriver
{
    OleDbKind kind;
    OdbcDriver::Words words;
    QStringView pattern; // the first group is the version
};

// Best first.
constexpr KnownDriver knownDrivers[] = {
    {OleDbKind::SqlServer, OdbcDriver::Words::Microsoft, u"ODBC Driver (\\d+)(?:\\.\\d+)? for SQL Server"},
    {OleDbKind::SqlServer, OdbcDriver::Words::Microsoft, u"SQL Server Native Client (\\d+)\\.\\d+"},
    {OleDbKind::SqlServer, OdbcDriver::Words::Microsoft, u"SQL Native Client"},
    {OleDbKind::SqlServer, OdbcDriver::Words::Microsoft, u"SQL Server"},
    {OleDbKind::SqlServer, OdbcDriver::Words::FreeTds, u"FreeTDS"},
    {OleDbKind::Oracle, OdbcDriver::Words::Oracle, u"Oracle (?:in )?\\D*(\\d+).*"},
    {OleDbKind::Oracle, OdbcDriver::Words::Oracle, u"Oracle (?:in .+|ODBC Driver)"},
    {OleDbKind::Oracle, OdbcDriver::Words::MicrosoftOracle, u"Microsoft ODBC for Oracle"},
    {OleDbKind::Access, OdbcDriver::Words::Access, u"Microsoft Access Driver \\(\\*\\.mdb, \\*\\.accdb\\)"},
    {OleDbKind::Access, OdbcDriver::Words::Access, u"Microsoft Access Driver \\(\\*\\.mdb\\)"},
};

// The newest installed driver that matches the pattern.
std::optional<OdbcDriver> newest(const KnownDriver &known, const QStringList &installed)
{
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(known.pattern),
                                     QRegularExpression::CaseInsensitiveOption);
    std::optional<OdbcDriver> best;
    for (const QString &name : installed) {
        const QRegularExpressionMatch match = pattern.match(name);
        if (!match.hasMatch())
            continue;
        int version = match.captured(1).toInt();
        // Old Oracle homes were named OraHome81 and OraHome92.
        if (version > 50)
            version /= 10;
        if (!best || version > best->version)
            best = OdbcDriver{name, known.words, version};
    }
    return best;
}

} // namespace

std::optional<OleDbKind> oleDbKind(const QString &provider)
{
    static const QRegularExpression version(u"^(\\.\\d+)*$"_s);
    for (const KnownProvider &known : knownProviders) {
        if (provider.startsWith(known.name, Qt::CaseInsensitive) &&
            version.match(provider.sliced(known.name.size())).hasMatch())
            return known.kind;
    }
    return std::nullopt;
}

bool leadsToOdbc(const ConnectionString &connection)
{
    const QString provider = connection.value(u"Provider"_s);
    if (!provider.isEmpty()) {
        const auto kind = oleDbKind(provider);
        return kind && *kind != OleDbKind::Access;
    }
    return connection.contains(u"Driver"_s) || connection.contains(u"DSN"_s) ||
           connection.contains(u"FILEDSN"_s);
}

QStringList oleDbServerProviders()
{
    QStringList names;
    for (const KnownProvider &known : knownProviders) {
        if (known.kind == OleDbKind::SqlServer || known.kind == OleDbKind::Oracle)
            names += known.name;
    }
    return names;
}

std::optional<OdbcDriver> bestDriver(OleDbKind kind, const QStringList &installed)
{
    for (const KnownDriver &known : knownDrivers) {
        if (known.kind != kind)
            continue;
        if (auto driver = newest(known, installed))
            return driver;
    }
    return std::nullopt;
}

QString driverToInstall(OleDbKind kind)
{
    switch (kind) {
    case OleDbKind::SqlServer:
        return Texts::sqlServerDriver();
    case OleDbKind::Oracle:
        return Texts::oracleDriver();
    case OleDbKind::Access:
        return Texts::accessDriver();
    case OleDbKind::Odbc:
        break;
    }
    return {};
}

} // namespace ADODB
