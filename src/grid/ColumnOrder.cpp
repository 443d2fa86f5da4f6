#include "grid/ColumnOrder.h"

#include <QtCore/QHash>

#include <algorithm>

namespace KOVAVSFDataGridLib {

std::vector<int> arrangedColumns(const QStringList &headings, const QStringList &order)
{
    QHash<QString, QList<int>> places;
    for (int i = 0; i < headings.size(); ++i)
        places[headings.at(i)].append(i);
    std::vector<int> arranged;
    std::vector<bool> isPlaced(static_cast<std::size_t>(headings.size()));
    for (const QString &name : order) {
        const auto found = places.find(name);
        if (found == places.end() || found->isEmpty())
            continue;
        arranged.push_back(found->takeFirst());
        isPlaced[static_cast<std::size_t>(arranged.back())] = true;
    }
    for (int i = 0; i < headings.size(); ++i) {
        if (isPlaced[static_cast<std::size_t>(i)])
            continue;
        const auto before = std::ranges::find(arranged, i - 1);
        arranged.insert(before == arranged.end() ? before : before + 1, i);
    }
    return arranged;
}

QStringList mergedOrder(QStringList order, const QStringList &known)
{
    qsizetype next = 0;
    for (const QString &name : known) {
        const qsizetype found = order.indexOf(name);
        if (found < 0)
            order.insert(next, name);
        next = (found < 0 ? next : found) + 1;
    }
    return order;
}

} // namespace KOVAVSFDataGridLib
