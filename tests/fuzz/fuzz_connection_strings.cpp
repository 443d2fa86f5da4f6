// Connection strings: what was understood is understood again from its own text, and no secret is shown.
#include "FuzzInput.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"

#include <algorithm>

using namespace ADODB;
using KovaTest::Require;

namespace {

bool same(const ConnectionString &a, const ConnectionString &b)
{
    return std::equal(a.parts().begin(), a.parts().end(), b.parts().begin(), b.parts().end(),
                      [](const auto &left, const auto &right) {
                          return left.keyword == right.keyword && left.value == right.value;
                      });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList texts = KovaTest::TextsOf(data, size);
    try {
        ConnectionString connection(texts.value(0));
        Require(same(ConnectionString(connection.text()), connection));
        const ConnectionString shown(connection.textWithoutPassword());
        for (const ConnectionString::Part &part : shown.parts())
            Require(!ConnectionString::isPassword(part.keyword) || part.value.isEmpty());
        const QString keyword = QStringLiteral("Data Source");
        connection.set(keyword, texts.value(1));
        Require(connection.value(keyword) == texts.value(1));
        Require(ConnectionString(connection.text()).value(keyword) == texts.value(1));
        connection.remove(keyword);
        Require(!connection.contains(keyword));
    } catch (const Error &error) {
        Require(!error.Description().isEmpty());
    }
    return 0;
}
