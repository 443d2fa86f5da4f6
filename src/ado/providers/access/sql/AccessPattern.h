#pragma once

#include <QtCore/QByteArrayView>

#include <utility>
#include <vector>

namespace ADODB {

// A pattern of LIKE. Case-insensitive in any script.
class AccessPattern
{
public:
    // ADO's syntax: % matches any text, _ any one character. After `escape`, they match themselves; 0 means
    // no escape character. UTF-8.
    static AccessPattern ofAdo(QByteArrayView pattern, char32_t escape);
    // Access's own syntax, also used by its saved queries: * matches any text, ? any one character, # a
    // digit, [a-c] one of these characters, [!a-c] one that is not.
    static AccessPattern ofAccess(QByteArrayView pattern);

    bool matches(QByteArrayView text) const;

private:
    using Range = std::pair<char32_t, char32_t>;

    struct Part
    {
        enum Kind { AnyText, AnyOne, Letter, OneOf, NoneOf } kind;
        char32_t letter = 0;
        std::vector<Range> set = {};

        bool isLike(char32_t other) const;
    };

    std::vector<Part> m_parts;
};

} // namespace ADODB
