#pragma once

#include "sql/SqlScanner.h"

#include <QtCore/QStringList>

#include <iosfwd>
#include <vector>

namespace KovaTest {

// An engine, and an addition to its connection string that changes how it reads statements.
struct InjectionMode
{
    const char *name;
    const char *engine; // a JourneyEngine's name
    const char *settings;
    KOVAVSFDataGridLib::SqlQuoting quoting = {};
};

extern const std::vector<InjectionMode> injectionModes;

std::ostream &operator<<(std::ostream &out, const InjectionMode &mode);

// Every sixth text of the corpus, different ones for each of injectionModes, because all of them take many
// minutes. KOVA_INJECTION=all in the environment selects all.
QStringList chosenTexts(const InjectionMode &mode);

// The structure of a statement, independent of the texts and names in it. Concatenated texts and Unicode
// texts count as one text.
QString shapeOf(const KOVAVSFDataGridLib::SqlScanner &sql);

} // namespace KovaTest
