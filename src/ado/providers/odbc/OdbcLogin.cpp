#include "ado/providers/odbc/OdbcLogin.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OdbcCatalogue.h"
#include "ado/providers/DatabaseFile.h"

#include <QtCore/QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

bool sameWord(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

template<typename Words>
bool isOneOf(QStringView word, const Words &words)
{
    return std::any_of(std::begin(words), std::end(words),
                       [&](QStringView candidate) { return sameWord(word, candidate); });
}

// Keywords that ADO handles itself and that a driver would not understand.
constexpr QStringView adoOnly[] = {
    u"Provider",
    u"Persist Security Info",
    u"Connect Timeout",
    u"Connection Timeout",
    u"Command Timeout",
    u"General Timeout",
    u"Mode",
    u"Extended Properties",
};

// Of MariaDB's driver: a number whose bits are options.
constexpr QStringView optionWords[] = {u"Option", u"Options"};

// ADO's keywords and their ODBC equivalents. `Data Source` is a server if a driver is named; see take().
constexpr std::pair<QStringView, QStringView> synonyms[] = {
    {u"User ID", u"UID"},       {u"User", u"UID"}, {u"Password", u"PWD"}, {u"Initial Catalog", u"Database"},
    {u"Servername", u"Server"},
};

// Without a limit, a server that accepts a connection but never answers would block the program.
constexpr int adoConnectTimeout = 15;

struct Default
{
    QStringView keyword;
    QStringView shortName; // an alternative name in the driver; empty if there is none
    QStringView value;
};

// The first two make the driver use an unnamed prepared statement, which it need not deallocate. The driver
// itself fetches only what is not fetched in portions, see OdbcEngine::portion. LFConversion must be off to
// keep the line ends of the database. The last one turns off the savepoints that the driver sets around each
// statement: they cost round trips, and make it fail between two portions of a result over foreign tables.
// Without them, a transaction can't continue after an error, but none does here. PostgreSQL's text types
// usually have no length, and VARCHAR may be as long as given here, so no text is treated as a long text and
// none is truncated.
constexpr Default postgreSqlDefaults[] = {
    {u"UseDeclareFetch", u"B6", u"1"},       {u"Fetch", u"A7", u"5000"},
    {u"UseServerSidePrepare", u"C8", u"1"},  {u"BoolsAsChar", u"B9", u"0"},
    {u"TextAsLongVarchar", u"B7", u"0"},     {u"MaxVarcharSize", u"B0", u"10485760"},
    {u"UnknownsAsLongVarchar", u"B8", u"1"}, {u"ByteaAsLongVarBinary", u"C9", u"1"},
    {u"LFConversion", u"C5", u"0"},          {u"Protocol", u"A1", u"7.4-0"},
};

// Without the first, the driver keeps the whole result in memory. Without the second, it creates a missing
// database.
constexpr Default sqliteDefaults[] = {{u"StepAPI", {}, u"1"}, {u"NoCreat", {}, u"1"}};

int seconds(const ConnectionString &connection, std::initializer_list<QLatin1StringView> keywords,
            int otherwise)
{
    for (const QLatin1StringView keyword : keywords) {
        if (!connection.contains(keyword))
            continue;
        bool ok = false;
        const double given = connection.value(keyword).toDouble(&ok);
        if (!ok || !(given >= 0 && given <= 24 * 60 * 60))
            throw Error(adErrInvalidArgument, Texts::badSeconds().arg(keyword));
        // Half a second must not become 0, which means no limit.
        return static_cast<int>(given + 0.999);
    }
    return otherwise;
}

// Drivers support no quotes but braces, and some not even those. So quotes are used only where needed.
QString quoted(const QString &keyword, const QString &value)
{
    static constexpr QStringView special = u"[]{}(),;?*=!@\"'";
    const bool needed = sameWord(keyword, u"Driver") || value.trimmed() != value ||
                        std::any_of(value.begin(), value.end(), [](QChar c) { return special.contains(c); });
    return needed ? u'{' + QString(value).replace(u'}', "}}"_L1) + u'}' : value;
}

} // namespace

OdbcLogin::OdbcLogin(const ConnectionString &connection)
    : m_connectTimeout(
          seconds(connection, {"Connect Timeout"_L1, "Connection Timeout"_L1}, adoConnectTimeout)),
      m_commandTimeout(seconds(connection, {"Command Timeout"_L1, "General Timeout"_L1}, 0))
{
    take(connection);
    // A connection string inside another one: how MSDASQL is given keywords for the driver.
    if (connection.contains(u"Extended Properties"_s))
        take(ConnectionString(connection.value(u"Extended Properties"_s)));
    const QString source = connection.value(u"Data Source"_s);
    if (!source.isEmpty())
        put(contains(u"Driver") ? u"Server"_s : u"DSN"_s, source);
    m_likelyEngine = engineOfDriver();
    if (m_likelyEngine == OdbcEngine::Kind::MariaDb)
        adaptToMariaDb();
}

void OdbcLogin::adaptToMariaDb()
{
    // MariaDB's driver ignores ODBC's login timeout and would wait forever.
    if (m_connectTimeout > 0)
        put(u"CONN_TIMEOUT"_s, QString::number(m_connectTimeout));
    // With any other character set, the driver replaces a missing character with a similar one: a fullwidth
    // apostrophe with an ASCII one. This would end a string early, and the rest of it would run as SQL.
    std::erase_if(m_parts, [](const auto &part) { return sameWord(part.first, u"Charset"); });
    put(u"Charset"_s, u"utf8mb4"_s);
    // Multiple statements are never used here, and the driver stays blocked if one of them fails.
    constexpr quint32 severalStatements = 1u << 26;
    for (auto &[keyword, value] : m_parts) {
        bool ok = false;
        const quint32 options = value.toUInt(&ok);
        if (ok && isOneOf(keyword, optionWords))
            value = QString::number(options & ~severalStatements);
    }
}

void OdbcLogin::take(const ConnectionString &connection)
{
    for (const auto &[keyword, value] : connection.parts()) {
        if (isOneOf(keyword, adoOnly) || sameWord(keyword, u"Data Source"))
            continue;
        const auto synonym =
            std::find_if(std::begin(synonyms), std::end(synonyms),
                         [&word = keyword](const auto &pair) { return sameWord(word, pair.first); });
        put(synonym == std::end(synonyms) ? keyword : synonym->second.toString(), value);
    }
}

// The first value of a keyword wins.
void OdbcLogin::put(const QString &keyword, const QString &value)
{
    if (!contains(keyword))
        m_parts.emplace_back(keyword, value);
}

bool OdbcLogin::contains(QStringView keyword) const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [&](const auto &part) { return sameWord(part.first, keyword); });
}

QString OdbcLogin::value(QStringView keyword) const
{
    const auto found = std::find_if(m_parts.begin(), m_parts.end(),
                                    [&](const auto &part) { return sameWord(part.first, keyword); });
    return found == m_parts.end() ? QString() : found->second;
}

QString OdbcLogin::text() const
{
    QString text;
    for (const auto &[keyword, value] : m_parts)
        text += keyword + u'=' + quoted(keyword, value) + u';';
    return text;
}

QStringList OdbcLogin::secrets() const
{
    QStringList secrets;
    for (const auto &[keyword, value] : m_parts) {
        if (!value.isEmpty() && ConnectionString::isPassword(keyword))
            secrets += {quoted(keyword, value), value};
    }
    return secrets;
}

void OdbcLogin::checkDriver() const
{
    const QString driver = value(u"Driver");
    if (!contains(u"Driver") || QFileInfo(driver).isFile())
        return;
    const QStringList installed = odbcDrivers();
    if (!installed.contains(driver, Qt::CaseInsensitive)) {
        throw Error(adErrProviderNotFound,
                    Texts::noDriver().arg(driver, QString::number(QT_POINTER_SIZE * 8),
                                          installed.isEmpty() ? Texts::noneInstalled()
                                                              : installed.join(Texts::betweenNames())));
    }
}

void OdbcLogin::checkFile() const
{
    const QString file = value(u"Database");
    // The other two are no paths: SQLite's own name for a database in memory, and an address.
    if (m_likelyEngine == OdbcEngine::Kind::Sqlite && !file.isEmpty() && file != ":memory:"_L1 &&
        !file.startsWith("file:"_L1))
        DatabaseFile(file, 0);
}

OdbcEngine::Kind OdbcLogin::engineOfDriver() const
{
    QString driver = value(u"Driver");
    if (driver.isEmpty() && !dataSource().isEmpty()) {
        for (const OdbcDataSource &source : odbcDataSources()) {
            if (driver.isEmpty() && sameWord(source.name, dataSource()))
                driver = source.driver;
        }
    }
    if (driver.contains("psql"_L1, Qt::CaseInsensitive))
        return OdbcEngine::Kind::PostgreSql;
    return OdbcEngine::kindNamed(driver);
}

int OdbcLogin::portion() const
{
    const auto number = [this](QStringView keyword, QStringView shortName) {
        return value(contains(keyword) ? keyword : shortName).toInt();
    };
    if (number(u"UseDeclareFetch", u"B6") == 0)
        return 0;
    constexpr int usual = 5000; // the default's, if the text is not a number
    const int rows = number(u"Fetch", u"A7");
    return rows > 0 ? rows : usual;
}

bool OdbcLogin::addDefaults(OdbcEngine::Kind engine)
{
    const auto before = m_parts;
    const auto add = [this](const auto &defaults) {
        for (const Default &standard : defaults) {
            if (standard.shortName.isEmpty() || !contains(standard.shortName))
                put(standard.keyword.toString(), standard.value.toString());
        }
    };
    if (engine == OdbcEngine::Kind::PostgreSql)
        add(postgreSqlDefaults);
    else if (engine == OdbcEngine::Kind::Sqlite)
        add(sqliteDefaults);
    else if (engine == OdbcEngine::Kind::MariaDb)
        adaptToMariaDb();
    return m_parts != before;
}

} // namespace ADODB
