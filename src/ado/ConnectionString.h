#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// A connection string taken apart: `Keyword=value;…`. Keywords match in any letter case; a value may stand in
// '…' or "…" (the quote doubled inside) or in {…} (} doubled inside), else the blanks around it do not count.
// When a keyword occurs twice its last value holds, as in ADO (a driver manager takes the first).
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
    // Throws 3001 when the text is malformed, telling which part it is but never what it says.
    explicit ConnectionString(const QString &text);

    // Whether the keyword stands there.
    bool contains(const QString &keyword) const;
    // Its value without quotes; empty when there is none.
    QString value(const QString &keyword) const;
    // Replaces its value, or adds it at the end.
    void set(const QString &keyword, const QString &value);
    // Takes it out, wherever it stands.
    void remove(const QString &keyword);

    // In the order of the text, each keyword once, where it occurs last.
    const std::vector<Part> &parts() const { return m_parts; }

    // One text again, with quotes where a value needs them.
    QString text() const;
    // The same, to be shown or kept.
    QString textWithoutPassword() const;
    // Whether the value of the keyword is a secret, in the words of any driver.
    static bool isPassword(const QString &keyword);

private:
    std::vector<Part> m_parts;
};

} // namespace ADODB
