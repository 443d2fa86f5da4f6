#include "ado/ConnectionString.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

bool sameKeyword(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// Reads the text from left to right and counts the parts, because an error may name a part by number but must
// not quote it: an invalid part can be the rest of a password that contains a semicolon.
class Reader
{
public:
    explicit Reader(const QString &text) : m_text(text) {}

    bool next(QString &keyword, QString &value)
    {
        skip([](QChar c) { return c.isSpace() || c == u';'; });
        if (m_at == m_text.size())
            return false;
        ++m_part;
        const qsizetype equals = m_text.indexOf(u'=', m_at);
        const qsizetype end = m_text.indexOf(u';', m_at);
        keyword = equals < 0 ? QString() : m_text.mid(m_at, equals - m_at).trimmed();
        if (keyword.isEmpty() || (end >= 0 && end < equals))
            fail(Texts::connectionNoEquals());
        m_at = equals + 1;
        skip([](QChar c) { return c.isSpace(); });
        value = readValue();
        return true;
    }

private:
    QString readValue()
    {
        const QChar first = m_at < m_text.size() ? m_text.at(m_at) : QChar();
        if (first == u'\'' || first == u'"')
            return readQuoted(first);
        if (first == u'{')
            return readQuoted(u'}');
        const qsizetype end = m_text.indexOf(u';', m_at);
        QString value = m_text.mid(m_at, end < 0 ? -1 : end - m_at).trimmed();
        m_at = end < 0 ? m_text.size() : end;
        return value;
    }

    QString readQuoted(QChar close)
    {
        QString value;
        while (++m_at < m_text.size()) {
            if (m_text.at(m_at) != close) {
                value += m_text.at(m_at);
            } else if (m_at + 1 < m_text.size() && m_text.at(m_at + 1) == close) {
                value += close;
                ++m_at;
            } else {
                ++m_at;
                skip([](QChar c) { return c.isSpace(); });
                if (m_at < m_text.size() && m_text.at(m_at) != u';')
                    fail(Texts::connectionAfterQuote());
                return value;
            }
        }
        fail(Texts::connectionOpenQuote());
    }

    template<typename Predicate>
    void skip(Predicate predicate)
    {
        while (m_at < m_text.size() && predicate(m_text.at(m_at)))
            ++m_at;
    }

    [[noreturn]] void fail(const QString &text) const { throw Error(adErrInvalidArgument, text.arg(m_part)); }

    const QString &m_text;
    qsizetype m_at = 0;
    int m_part = 0;
};

QString quoted(const QString &value)
{
    const bool plain = value.trimmed() == value && !value.contains(u';') &&
                       !(value.startsWith(u'"') || value.startsWith(u'\'') || value.startsWith(u'{'));
    if (plain)
        return value;
    return u'"' + QString(value).replace(u'"', "\"\""_L1) + u'"';
}

// A connection string inside a value. If it can't be
// parsed, it is unknown where it contains a password.
QString nestedWithoutPassword(const QString &text)
{
    try {
        return ConnectionString(text).textWithoutPassword();
    } catch (const Error &) {
        return {};
    }
}

} // namespace

ConnectionString::ConnectionString(const QString &text)
{
    Reader reader(text);
    Part part;
    while (reader.next(part.keyword, part.value)) {
        remove(part.keyword);
        m_parts.push_back(part);
    }
}

bool ConnectionString::contains(const QString &keyword) const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [&](const Part &part) { return sameKeyword(part.keyword, keyword); });
}

QString ConnectionString::value(const QString &keyword) const
{
    for (const Part &part : m_parts) {
        if (sameKeyword(part.keyword, keyword))
            return part.value;
    }
    return {};
}

void ConnectionString::set(const QString &keyword, const QString &value)
{
    for (Part &part : m_parts) {
        if (sameKeyword(part.keyword, keyword)) {
            part.value = value;
            return;
        }
    }
    m_parts.push_back({keyword, value});
}

void ConnectionString::remove(const QString &keyword)
{
    std::erase_if(m_parts, [&](const Part &part) { return sameKeyword(part.keyword, keyword); });
}

QString ConnectionString::text() const
{
    QStringList parts;
    for (const Part &part : m_parts)
        parts += part.keyword + u'=' + quoted(part.value);
    return parts.join(u';');
}

QString ConnectionString::textWithoutPassword() const
{
    ConnectionString open = *this;
    std::erase_if(open.m_parts, [](const Part &part) { return isPassword(part.keyword); });
    for (Part &part : open.m_parts) {
        if (sameKeyword(part.keyword, u"Extended Properties"_s))
            part.value = nestedWithoutPassword(part.value);
    }
    return open.text();
}

bool ConnectionString::isPassword(const QString &keyword)
{
    return keyword.endsWith("PWD"_L1, Qt::CaseInsensitive) ||
           keyword.contains("Password"_L1, Qt::CaseInsensitive) ||
           keyword.contains("Passphrase"_L1, Qt::CaseInsensitive);
}

} // namespace ADODB
