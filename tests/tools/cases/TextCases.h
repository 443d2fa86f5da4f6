#pragma once

#include "cases/Arguments.h"

#include <functional>

namespace KovaTest {

using TextCase = std::function<QJsonValue(const Arguments &)>;

// The routines without state, by name.
const QHash<QString, TextCase> &TextCases();

} // namespace KovaTest
