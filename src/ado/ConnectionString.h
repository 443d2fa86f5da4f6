#pragma once

#include "KovaExport.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// A connection string taken apart: `Keyword=value;…`. Keywords match in any letter case; a value may stand in
// '…' or "…" (the quote doubled inside) or in {…} (} doubled inside), else the blanks around it do not count.
// When a keyword occurs twice the last value counts.
class KOVA_EXPORT ConnectionString
{
public:
    struct Part
    {
        QString keyword;
        QString value;
    };

    ConnectionString() = default;
    // Throws 3001 when the text is malformed, telling which part it is but never what it says.
    explicit ConnectionString(const QString &text);

    bool contains(const QString &keyword) const;
    QString value(const QString &keyword) const; // empty when there is none
    void set(const QString &keyword, const QString &value);
    void remove(const QString &keyword);

    // In the order of the text, each keyword once.
    const std::vector<Part> &parts() const { return m_parts; }

    // One text again, with quotes where a value needs them.
    QString text() const;
    QString textWithoutPassword() const;

private:
    std::vector<Part> m_parts;
};

} // namespace ADODB
