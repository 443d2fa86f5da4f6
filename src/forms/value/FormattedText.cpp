#include "forms/value/FormattedText.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int indent = 2;

// Works on the tokens of the text, because QJsonDocument would sort the names and round the numbers.
class JsonIndenter
{
public:
    QString indented(const QString &json)
    {
        for (qsizetype i = 0; i < json.size(); ++i) {
            const QChar c = json.at(i);
            if (m_isInString) {
                m_out += c;
                if (c == u'\\' && i + 1 < json.size())
                    m_out += json.at(++i);
                else if (c == u'"')
                    m_isInString = false;
            } else if (!c.isSpace()) {
                take(c);
            }
        }
        return m_out;
    }

private:
    void take(QChar c)
    {
        const bool isClosing = c == u'}' || c == u']';
        if (isClosing)
            --m_depth;
        if (m_isAfterOpening != isClosing)
            breakLine(); // an empty pair stays on one line
        m_isAfterOpening = c == u'{' || c == u'[';
        m_depth += m_isAfterOpening ? 1 : 0;
        m_out += c;
        m_isInString = c == u'"';
        if (c == u',')
            breakLine();
        else if (c == u':')
            m_out += u' ';
    }
    void breakLine()
    {
        m_out += u'\n';
        m_out += QString(qsizetype{indent} * m_depth, u' ');
    }

    QString m_out;
    int m_depth = 0;
    bool m_isInString = false;
    bool m_isAfterOpening = false;
};

// The declaration is copied: QXmlStreamWriter would drop the encoding.
std::optional<QString> indentedXml(const QString &text)
{
    const qsizetype declaration = text.startsWith("<?xml"_L1) ? text.indexOf("?>"_L1) + 2 : 0;
    QString out;
    QXmlStreamReader reader(text);
    QXmlStreamWriter writer(&out);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(indent);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.hasError() && !reader.isStartDocument() && !reader.isWhitespace())
            writer.writeCurrentToken(reader);
    }
    if (reader.hasError())
        return std::nullopt;
    return text.first(declaration) + (declaration > 0 ? u"\n"_s : QString()) + out.trimmed();
}

} // namespace

std::optional<FormattedText> FormattedText::of(const QString &text)
{
    if (text.size() > longest)
        return std::nullopt;
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(u'{') || trimmed.startsWith(u'[')) {
        if (QJsonDocument::fromJson(trimmed.toUtf8()).isNull())
            return std::nullopt;
        return FormattedText{Kind::Json, JsonIndenter().indented(trimmed)};
    }
    if (!trimmed.startsWith(u'<'))
        return std::nullopt;
    const std::optional<QString> xml = indentedXml(trimmed);
    return xml ? std::optional(FormattedText{Kind::Xml, *xml}) : std::nullopt;
}

} // namespace KOVAVSFDataGridLib
