#include "ado/rows/RowComparison.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <bit>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::RowComparison {

namespace {

Error concurrency(const QString &description, const QString &source)
{
    return Error(dbErrConcurrency, description, source, u"01001"_s);
}

} // namespace

bool isSame(const RawValue &a, const RawValue &b)
{
    // Bitwise, because NaN does not equal itself.
    return a.kind == b.kind && a.integer == b.integer && a.bytes == b.bytes &&
           std::bit_cast<quint64>(a.real) == std::bit_cast<quint64>(b.real);
}

void needRowAsShown(const RowStore &found, const std::vector<RawValue> &shown,
                    const std::vector<int> &columns, const QString &source)
{
    needOneRow(found.rows(), source);
    const std::vector<RawValue> now = found.row(0);
    for (const int column : columns) {
        const auto place = static_cast<std::size_t>(column);
        if (!isSame(now[place], shown[place]))
            throw concurrency(Texts::rowChanged(), source);
    }
}

void needOneRow(qint64 rows, const QString &source)
{
    if (rows == 0)
        throw concurrency(Texts::rowGone(), source);
    if (rows != 1)
        throw concurrency(Texts::rowNotUnique().arg(rows), source);
}

void needOneChange(qint64 changed, const QString &source)
{
    if (changed == 0)
        throw concurrency(Texts::changePrevented(), source);
    if (changed != 1)
        throw concurrency(Texts::rowNotUnique().arg(changed), source);
}

} // namespace ADODB::RowComparison
