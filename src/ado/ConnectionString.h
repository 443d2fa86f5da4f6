#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// A parsed connection string: `Keyword=value;…`. Keywords are case-insensitive. A value may be quoted with
// '…' or "…" (double the quote inside) or {…} (double the } inside); otherwise spaces around it are ignored.
// If a keyword occurs twice, the last value is used, as in ADO. (An ODBC driver manager uses the first.)
class KOVA_EXPORT ConnectionString
{
public:
    // One `Keyword=value`.
    struct Part
    {
        QString keyword; // as written
        QString value;   // without its quotes
    };

    // Without any keyword.
    ConnectionString() = default;
    // Throws 3001 if the text is malformed. The error gives the number of the wrong part, but never its
    // content.
    explicit ConnectionString(const QString &text);

    // Whether the string contains the keyword.
    bool contains(const QString &keyword) const;
    // The value without quotes; empty if there is none.
    QString value(const QString &keyword) const;
    // Replaces the value, or adds the keyword at the end.
    void set(const QString &keyword, const QString &value);
    // Removes the keyword everywhere.
    void remove(const QString &keyword);

    // The parts in the order of the text. Each keyword occurs once, in its last position.
    const std::vector<Part> &parts() const { return m_parts; }

    // The whole text, with quotes where a value needs them.
    QString text() const;
    // The same without passwords, for showing or storing.
    QString textWithoutPassword() const;
    // Whether the keyword of any driver contains a password.
    static bool isPassword(const QString &keyword);

private:
    std::vector<Part> m_parts;
};

} // namespace ADODB
