#pragma once

#include <QtCore/QStringList>

#include <vector>

namespace KOVAVSFDataGridLib {

// The places of `headings`, from the left: those that `order` names as it says, then each other one after the
// one before it. The first of equal names in one list is the first of them in the other.
std::vector<int> arrangedColumns(const QStringList &headings, const QStringList &order);

// `order` with the names that only `known` has, each after the one before it there.
QStringList mergedOrder(QStringList order, const QStringList &known);

} // namespace KOVAVSFDataGridLib
