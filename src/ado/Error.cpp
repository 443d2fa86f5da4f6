#include "ado/Error.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

Error::Error(ErrorValueEnum number, const QString &description)
    : Error(number, description, u"ADODB"_s, {}, 0)
{
}

Error::Error(ErrorValueEnum number, const QString &description, const QString &source,
             const QString &sqlState, qint32 nativeError)
    : m_number(hresult(number)),
      m_nativeError(nativeError),
      m_description(description),
      m_source(source),
      m_sqlState(sqlState),
      m_what(description.toUtf8())
{
}

Error::Error(ProviderErrorEnum number, const QString &description, const QString &source,
             const QString &sqlState, qint32 nativeError)
    : m_number(number),
      m_nativeError(nativeError),
      m_description(description),
      m_source(source),
      m_sqlState(sqlState),
      m_what(description.toUtf8())
{
}

Error::~Error() = default;

} // namespace ADODB
