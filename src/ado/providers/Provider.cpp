#include "ado/providers/Provider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OleDbDrivers.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

RowWriter::~RowWriter() = default;

void RowWriter::insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &,
                            RowStore &stored)
{
    insert(changes, stored);
}

bool RowWriter::keepsNulCharacters() const
{
    return true;
}

bool RowWriter::keepsZones(int) const
{
    return false;
}
Statement::~Statement() = default;
Session::~Session() = default;
Provider::~Provider() = default;

// Defined in ProviderList.cpp, which CMake generates.
std::vector<const Provider *> builtInProviders();

namespace {

std::vector<const Provider *> &knownProviders()
{
    static std::vector<const Provider *> known = builtInProviders();
    return known;
}

} // namespace

const std::vector<const Provider *> &providers()
{
    return knownProviders();
}

const Provider *providerOf(const ConnectionString &connection)
{
    const auto found = std::ranges::find_if(
        providers(), [&](const Provider *provider) { return provider->claims(connection); });
    return found == providers().end() ? nullptr : *found;
}

std::shared_ptr<Session> openSession(const ConnectionString &connection)
{
    if (const Provider *provider = providerOf(connection))
        return provider->open(connection);
    QStringList names;
    for (const Provider *provider : providers())
        names += provider->name();
    names += oleDbServerProviders();
    const QString wanted = connection.value(u"Provider"_s);
    const QString known = names.join(Texts::betweenNames());
    throw Error(adErrProviderNotFound, wanted.isEmpty() ? Texts::noProvider().arg(known)
                                                        : Texts::unknownProvider().arg(wanted, known));
}

ProviderRegistration::ProviderRegistration(const Provider &provider) : m_provider(&provider)
{
    std::vector<const Provider *> &known = knownProviders();
    known.push_back(m_provider);
    std::rotate(known.begin(), std::prev(known.end()), known.end());
}

ProviderRegistration::~ProviderRegistration()
{
    std::erase(knownProviders(), m_provider);
}

} // namespace ADODB
