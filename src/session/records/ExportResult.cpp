#include "session/records/ExportResult.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "export/ExportFile.h"
#include "export/ExportTexts.h"
#include "query/derivation/SqlText.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/records/LongWork.h"
#include "session/statement/ShownStatement.h"

#include <QtCore/QRegularExpression>

#include <array>
#include <numeric>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

std::vector<int> allColumns(Session &session)
{
    std::vector<int> columns(static_cast<std::size_t>(session.result().recordset()->Fields().Count()));
    std::iota(columns.begin(), columns.end(), 1);
    return columns;
}

ADODB::Error unknown(const QString &keyword, const QString &value)
{
    return {ADODB::adErrInvalidArgument, ExportTexts::UnknownOption.arg(keyword, value)};
}

// The index of the word that equals the value, case-insensitive.
template<std::size_t Count>
std::size_t choice(const ADODB::ConnectionString::Part &part,
                   const std::array<QLatin1StringView, Count> &words)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (part.value.compare(words[i], Qt::CaseInsensitive) == 0)
            return i;
    }
    throw unknown(part.keyword, part.value);
}

void readOption(ExportAnswer &answer, const ADODB::ConnectionString::Part &part)
{
    const auto is = [&](QLatin1StringView word) {
        return part.keyword.compare(word, Qt::CaseInsensitive) == 0;
    };
    if (is("Records"_L1)) {
        answer.isMarkedOnly = choice<2>(part, {"All"_L1, "Marked"_L1}) == 1;
    } else if (is("Columns"_L1)) {
        answer.hasAllColumns = choice<2>(part, {"Shown"_L1, "All"_L1}) == 1;
    } else if (is("Headings"_L1)) {
        answer.options.hasHeadings = choice<2>(part, {"No"_L1, "Yes"_L1}) == 1;
    } else if (is("Formulas"_L1)) {
        answer.options.guardsFormulas = choice<2>(part, {"Keep"_L1, "Guard"_L1}) == 1;
    } else if (is("Encoding"_L1)) {
        constexpr std::array encodings{TextEncoding::Utf8WithMark, TextEncoding::Utf8, TextEncoding::Gb18030};
        answer.options.encoding =
            encodings[choice<3>(part, {"UTF-8"_L1, "UTF-8 without mark"_L1, "GB18030"_L1})];
    } else {
        throw unknown(part.keyword, part.value);
    }
}

} // namespace

QString fileNameOf(Session &session)
{
    static const QRegularExpression notInNames(u"[\\\\/:*?\"<>|\\[\\]`\\x00-\\x1f]+"_s);
    constexpr qsizetype longest = 60;
    return GetSQLTableName(session.shown().text()).remove(notInNames).simplified().left(longest);
}

ExportAnswer exportAnswerFrom(const QString &file, const QString &options)
{
    ExportAnswer answer;
    answer.file = file;
    const std::optional<ExportFormat> format = formatOfFile(file);
    if (!format)
        throw ADODB::Error(ADODB::adErrInvalidArgument, unknownFormatText(file));
    answer.options.format = *format;
    const ADODB::ConnectionString written(options); // the syntax is the same
    for (const ADODB::ConnectionString::Part &part : written.parts())
        readOption(answer, part);
    return answer;
}

bool exportResult(Session &session, const ExportAnswer &what)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const RecordRange range =
        what.isMarkedOnly ? markedRecords(session) : RecordRange{1, recordset->RecordCount()};
    const ExportColumns columns =
        exportColumnsOf(session, what.hasAllColumns ? allColumns(session) : session.window().shownColumns());
    QString message;
    bool isWritten = false;
    try {
        writeUnderProgress(session, SessionMessages::RecordsExported, range, [&](const auto &shouldContinue) {
            const ExportOutcome outcome =
                exportToFile(what.file, what.options, *recordset, range, columns, shouldContinue);
            isWritten = outcome.isWritten;
            message = outcome.losses;
            return isWritten;
        });
    } catch (const ADODB::Error &error) {
        message = error.Description();
    }
    if (!message.isEmpty())
        session.questions().show(message);
    return isWritten;
}

} // namespace KOVAVSFDataGridLib
