#pragma once

#include <QtCore/QByteArrayView>

#include <utility>
#include <vector>

namespace ADODB {

// A pattern behind LIKE. Letter case does not count, in any script.
class AccessPattern
{
public:
    // As statements write it through ADO: % is any text, _ any one letter. An `escape` before one of the two
    // takes its meaning away, 0 is none. UTF-8.
    static AccessPattern ofAdo(QByteArrayView pattern, char32_t escape);
    // As Access itself writes it, and so its saved queries: * is any text, ? any one letter, # a digit,
    // [a-c] and [!a-c] one letter of those and one of the others.
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
