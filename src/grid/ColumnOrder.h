#pragma once

#include <QtCore/QStringList>

#include <vector>

namespace KOVAVSFDataGridLib {

// The positions of `headings` from the left: those in `order` in that order, and every other one after the
// one before it. Equal names are matched in their order.
std::vector<int> arrangedColumns(const QStringList &headings, const QStringList &order);

// `order` with the names that only `known` has, each after the one before it there.
QStringList mergedOrder(QStringList order, const QStringList &known);

} // namespace KOVAVSFDataGridLib
