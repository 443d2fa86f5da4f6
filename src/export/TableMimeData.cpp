#include "export/TableMimeData.h"

#include "ado/values/DateText.h"
#include "ado/values/NumericTypes.h"
#include "ado/values/Utf8.h"
#include "export/Spreadsheet.h"
#include "export/writers/HtmlText.h"

#include <QtCore/QDateTime>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Each of the two families of office programs has its own words for what a cell holds: classes, and a
// number's format with the day's number in their calendar.
constexpr char clipboardHead[] =
    "<html><head><meta charset=\"utf-8\"><style>.t{mso-number-format:\"\\@\"}"
    ".d{mso-number-format:\"yyyy\\-mm\\-dd\"}.h{mso-number-format:\"hh\\:mm\\:ss\"}"
    ".m{mso-number-format:\"yyyy\\-mm\\-dd\\ hh\\:mm\\:ss\"}"
    "br{mso-data-placement:same-cell}pre{display:inline;font:inherit}</style></head>"
    "<body><table>";
constexpr char numberCell[] = "<td>";
constexpr char textCell[] = "<td class=\"t\" sdnum=\"1033;0;@\">"; // stays as it is

const QDate firstDay(1900, 3, 1); // from which on all spreadsheets count the same days
const QDate dayNought(1899, 12, 30);
constexpr double secondsOfDay = 86400;

bool isFloating(ADODB::DataTypeEnum type)
{
    return type == ADODB::adSingle || type == ADODB::adDouble;
}

// A number of which a spreadsheet loses nothing: not "007", and no more digits than it has. A column of
// numbers can hold any text in some databases.
bool isPlainNumber(QByteArrayView text, ADODB::DataTypeEnum type)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const QByteArrayView number = text.startsWith('-') ? text.sliced(1) : text;
    const bool isPadded = number.size() > 1 && number[0] == '0' && isDigit(number[1]);
    if (number.isEmpty() || !isDigit(number[0]) || isPadded)
        return false;
    const auto digits = std::count_if(number.begin(), number.end(), isDigit);
    if (isFloating(type))
        return std::all_of(number.begin(), number.end(), [&](char c) {
            return isDigit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-';
        });
    return digits <= exactDigits && number.size() - digits <= 1 &&
           std::all_of(number.begin(), number.end(), [&](char c) { return isDigit(c) || c == '.'; });
}

QByteArray dayCell(const char *cellClass, const char *format, double days)
{
    return QByteArray("<td class=\"") + cellClass + "\" sdval=\"" + QByteArray::number(days, 'g', 15) +
           "\" sdnum=\"1033;0;" + format + "\">";
}

// A date or time that a spreadsheet can hold, without fractions of a second; anything else is a text.
QByteArray dateCell(QByteArrayView text)
{
    const QTime time = ADODB::DateText::time(text);
    if (time.isValid() && time.msec() == 0)
        return dayCell("h", "HH:MM:SS", QTime(0, 0).secsTo(time) / secondsOfDay);
    const QDateTime moment = ADODB::DateText::moment(text);
    if (!moment.isValid() || moment.date() < firstDay || moment.time().msec() != 0)
        return textCell;
    const auto days = static_cast<double>(dayNought.daysTo(moment.date()));
    if (ADODB::DateText::date(text).isValid())
        return dayCell("d", "YYYY-MM-DD", days);
    return dayCell("m", "YYYY-MM-DD HH:MM:SS", days + QTime(0, 0).secsTo(moment.time()) / secondsOfDay);
}

QByteArray beginOfCell(QByteArrayView text, ADODB::DataTypeEnum type)
{
    switch (type) {
    case ADODB::adDate:
    case ADODB::adDBDate:
    case ADODB::adDBTime:
    case ADODB::adDBTimeStamp:
        return dateCell(text);
    default:
        return ADODB::isNumericType(type) && (text.isEmpty() || isPlainNumber(text, type)) ? numberCell
                                                                                           : textCell;
    }
}

// HTML makes one space of several and none of those at a line's ends.
bool isLostSpace(QByteArrayView text, qsizetype at)
{
    const auto isEnd = [](char c) { return c == ' ' || c == '\n' || c == '\r'; };
    return text[at] == ' ' &&
           (at == 0 || at + 1 == text.size() || isEnd(text[at - 1]) || isEnd(text[at + 1]));
}

// Spaces of another kind would stay too, but who pastes them would have another text. One family of programs
// keeps the spaces of such a block, the other those of such spans.
void appendWithSpaces(QByteArray &html, QByteArrayView text)
{
    bool isChanged = text.contains('\t');
    for (qsizetype at = 0; at < text.size() && !isChanged; ++at)
        isChanged = isLostSpace(text, at);
    if (!isChanged)
        return appendHtml(html, text);
    html += "<pre>";
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype begin = at;
        const bool areBlanks = isLostSpace(text, at);
        while (at < text.size() && isLostSpace(text, at) == areBlanks)
            ++at;
        if (areBlanks)
            html += "<span style=\"mso-spacerun:yes\">";
        appendHtml(html, text.sliced(begin, at - begin));
        if (areBlanks)
            html += "</span>";
    }
    html += "</pre>";
}

// The value at `at` in a tab-separated text, which may be quoted. Moves `at` to the separator after it.
QByteArray nextValue(QByteArrayView text, qsizetype &at)
{
    QByteArray value;
    const bool isQuoted = text[at] == '"';
    if (isQuoted)
        ++at;
    while (at < text.size()) {
        const char c = text[at];
        if (isQuoted && c == '"') {
            if (++at == text.size() || text[at] != '"')
                break;
        } else if (!isQuoted && (c == '\t' || c == '\r')) {
            break;
        }
        value += c;
        ++at;
    }
    return value;
}

} // namespace

TableMimeData::TableMimeData(QByteArray text, std::vector<ADODB::DataTypeEnum> types, bool hasHeadings)
    : m_text(std::move(text)), m_types(std::move(types)), m_hasHeadings(hasHeadings)
{
}

QStringList TableMimeData::formats() const
{
    return {u"text/plain"_s, u"text/html"_s};
}

QVariant TableMimeData::retrieveData(const QString &mimeType, QMetaType type) const
{
    const bool wantsBytes = type.id() == QMetaType::QByteArray;
    if (mimeType == "text/html"_L1)
        return wantsBytes ? QVariant(html()) : QVariant(QString::fromUtf8(html()));
    if (mimeType.startsWith("text/plain"_L1))
        return wantsBytes ? QVariant(m_text) : QVariant(ADODB::textFromUtf8(m_text));
    return QMimeData::retrieveData(mimeType, type);
}

QByteArray TableMimeData::html() const
{
    const bool isOneValue = !m_text.endsWith("\r\n");
    QByteArray html = clipboardHead;
    bool isHeading = m_hasHeadings;
    for (qsizetype at = 0; at < m_text.size();) {
        html += "<tr>";
        for (const ADODB::DataTypeEnum type : m_types) {
            QByteArray value;
            if (isOneValue) {
                value = m_text;
                at = m_text.size();
            } else if (at < m_text.size()) {
                value = nextValue(m_text, at);
                at += m_text.mid(at, 1) == "\t" ? 1 : 0;
            }
            html += isHeading ? QByteArray("<th>") : beginOfCell(value, type);
            appendWithSpaces(html, value);
            html += isHeading ? "</th>" : "</td>";
        }
        html += "</tr>";
        at += 2; // the line's end
        isHeading = false;
    }
    html += "</table></body></html>";
    return html;
}

} // namespace KOVAVSFDataGridLib
