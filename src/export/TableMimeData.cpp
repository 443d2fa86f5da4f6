#include "export/TableMimeData.h"

#include "ado/values/Utf8.h"
#include "export/writers/HtmlText.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Marks cells as text, which office programs then don't convert. Two programs need different attributes.
constexpr char head[] =
    "<html><head><meta charset=\"utf-8\"><style>.t{mso-number-format:\"\\@\"}</style></head>"
    "<body><table>";
constexpr char textCell[] = "<td class=\"t\" sdnum=\"1033;0;@\">";

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

TableMimeData::TableMimeData(QByteArray text, std::vector<bool> isNumeric, bool hasHeadings)
    : m_text(std::move(text)), m_isNumeric(std::move(isNumeric)), m_hasHeadings(hasHeadings)
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
    QByteArray html = head;
    bool isHeading = m_hasHeadings;
    for (qsizetype at = 0; at < m_text.size();) {
        html += "<tr>";
        for (const bool isNumeric : m_isNumeric) {
            html += isHeading ? "<th>" : isNumeric ? "<td>" : textCell;
            if (isOneValue) {
                appendHtml(html, m_text);
                at = m_text.size();
            } else if (at < m_text.size()) {
                appendHtml(html, nextValue(m_text, at));
                at += m_text.mid(at, 1) == "\t" ? 1 : 0;
            }
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
