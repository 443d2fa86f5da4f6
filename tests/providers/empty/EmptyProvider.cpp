#include "providers/empty/EmptyProvider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "providers/empty/EmptySession.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

QString EmptyProvider::name() const
{
    return u"Empty"_s;
}

bool EmptyProvider::claims(const ConnectionString &connection) const
{
    return connection.value(u"Provider"_s).compare(name(), Qt::CaseInsensitive) == 0;
}

std::shared_ptr<Session> EmptyProvider::open(const ConnectionString &connection) const
{
    bool ok = true;
    const QString text = connection.value(u"Rows"_s);
    const qint64 rows = connection.contains(u"Rows"_s) ? text.toLongLong(&ok) : 0;
    if (!ok || rows < 0)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(text));
    return std::make_shared<EmptySession>(rows);
}

} // namespace ADODB
