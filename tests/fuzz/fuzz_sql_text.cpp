#include "FuzzInput.h"

#include "query/clsStringComFuncs.h"
#include "query/derivation/SqlText.h"
#include "query/fields/FieldNames.h"
#include "query/modQNVSFHFDataMain.h"
#include "sql/Names.h"
#include "sql/StatementLines.h"

#include <stdexcept>

using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

namespace {

void SplitAndJoin(const QString &statement, const QString &other)
{
    const auto sentence = SplitSQLSentence(statement);
    Require(sentence.has_value() == !statement.isEmpty());
    if (sentence)
        Require(sentence->fields + sentence->where + sentence->order == statement);
    const auto cut = SplitByKeyword(statement, other);
    if (cut)
        Require(cut->before + cut->after == statement);

    const QString sorted = AppendOrderWord(statement, other);
    Require(AppendOrderWord(sorted, other) == sorted);
    Require(ReplaceSQLFieldPart(statement, other).isEmpty() == (statement.isEmpty() || other.isEmpty()));
    Require(statement.contains(getFromPart(statement)));
    Require(statement.contains(GetSQLTableName(statement)));
    GetNoRowSQL(statement);
    replaceOrderWord(statement, other);
    const QString joined = joinStatementLines(statement);
    Require(joined.size() <= statement.size());
    for (int mode = 0; mode <= 4; ++mode)
        Require(CutStringEnds(statement, other, static_cast<CutEnds>(mode)).size() <= statement.size());
}

void ParseLists(const QString &statement)
{
    ParsedStatements parsed;
    for (const AllDBType database : {dbAccess, dbOracle, dbSQLServer})
        parsed.ParseSQLFieldList(statement, database);
    try {
        parsed.ParseSelFieldList(statement);
    } catch (const std::invalid_argument &) {
        // The documented error for a list that can't be parsed.
    }
    for (const QString &field : writtenFields(statement)) {
        shortFieldName(field);
        lastNamePart(field);
    }
    bracketsToQuotes(statement);
}

void SplitStrings(const QString &text, const QString &prefix, const QString &suffix)
{
    QStringList pieces;
    for (const bool flag : {false, true}) {
        clsStringComFuncs().QNComSplitString1(text, pieces, prefix, suffix, flag);
        clsStringComFuncs().QNComSplitString2(text, pieces, prefix, flag);
    }
    QString name;
    QString content;
    clsStringComFuncs().QNComSplitString3(text, name, content, prefix);
    Require(text.startsWith(name) && text.endsWith(content));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList texts = KovaTest::TextsOf(data, size);
    SplitAndJoin(texts.value(0), texts.value(1));
    ParseLists(texts.value(0));
    SplitStrings(texts.value(0), texts.value(1), texts.value(2));
    return 0;
}
