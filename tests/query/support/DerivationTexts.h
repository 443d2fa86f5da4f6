#pragma once

#include "query/QueryTexts.h"
#include "query/derivation/Derivation.h"

#include <gtest/gtest.h>

namespace KovaTest {

// Of a result with text fields of these names.
inline KOVAVSFDataGridLib::Derivation
derivationOf(const KOVAVSFDataGridLib::EngineMode &engine, const QString &statement, const QStringList &names,
             KOVAVSFDataGridLib::AllDBType database = KOVAVSFDataGridLib::dbSQLServer)
{
    std::vector<KOVAVSFDataGridLib::SourceField> fields;
    for (const QString &name : names)
        fields.push_back({name, 202});
    return KOVAVSFDataGridLib::Derivation(statement, fields, dialectOf(database, engine));
}

// One blank for each run of blanks and line breaks.
inline void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text.simplified()), expected);
}

} // namespace KovaTest
