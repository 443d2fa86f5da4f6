#include "tab/ConnectionEdit.h"

#include <KOVAVSFDataGridLib/ado/ConnectionString.h>

#include <algorithm>

namespace {

constexpr QChar dot(0x2022);

// The end of the value that begins at `from`: after the closing quote or brace, which can be doubled inside,
// or at the next semicolon. A value without its closing quote extends to the end.
qsizetype endOfValue(const QString &text, qsizetype from)
{
    qsizetype at = from;
    while (at < text.size() && text[at].isSpace())
        ++at;
    const QChar first = at < text.size() ? text[at] : QChar();
    if (first == u'\'' || first == u'"' || first == u'{') {
        const QChar last = first == u'{' ? u'}' : first;
        for (++at; at < text.size(); ++at) {
            if (text[at] != last)
                continue;
            if (at + 1 < text.size() && text[at + 1] == last)
                ++at;
            else
                break;
        }
    }
    const qsizetype end = text.indexOf(u';', at);
    return end < 0 ? text.size() : end;
}

// Whether the value is a connection string with a password; it is then hidden completely.
bool holdsPassword(const QString &value)
{
    const QStringList words = value.split(u'=');
    return std::any_of(words.begin(), words.end() - 1, [](const QString &word) {
        return ADODB::ConnectionString::isPassword(word.section(u';', -1).trimmed());
    });
}

} // namespace

ConnectionEdit::ConnectionEdit(const QString &connection, QWidget *parent)
    : QLineEdit(masked(connection), parent), m_connection(connection), m_seen(text())
{
    setCursorPosition(0);
    connect(this, &QLineEdit::textEdited, this, &ConnectionEdit::edit);
}

void ConnectionEdit::setConnection(const QString &connection)
{
    m_connection = connection;
    m_seen = masked(connection);
    setText(m_seen);
    setCursorPosition(0);
}

QString ConnectionEdit::masked(const QString &connection)
{
    QString seen = connection;
    for (qsizetype from = 0; from < connection.size();) {
        const qsizetype equals = connection.indexOf(u'=', from);
        if (equals < 0)
            break;
        const QString keyword = connection.mid(from, equals - from).trimmed();
        const qsizetype end = endOfValue(connection, equals + 1);
        const QString value = connection.mid(equals + 1, end - equals - 1);
        if (ADODB::ConnectionString::isPassword(keyword) || holdsPassword(value))
            std::fill(seen.begin() + equals + 1, seen.begin() + end, dot);
        from = end + 1;
    }
    return seen;
}

// The edited part is between the unchanged text before it and the text after the cursor.
void ConnectionEdit::edit(const QString &seen)
{
    const qsizetype cursor = cursorPosition();
    const qsizetype behind = std::min(seen.size() - cursor, m_seen.size());
    const qsizetype most = std::min(cursor, m_seen.size() - behind);
    qsizetype before = 0;
    while (before < most && seen[before] == m_seen[before])
        ++before;
    m_connection = m_connection.left(before) + seen.mid(before, cursor - before) + m_connection.right(behind);
    const QString hidden = masked(m_connection);
    // If dots are involved, the undo history is cleared, because undo can't restore passwords.
    if (hidden != seen || hidden.contains(dot) || m_seen.contains(dot)) {
        setText(hidden);
        setCursorPosition(static_cast<int>(cursor));
    }
    m_seen = hidden;
}
