#include "forms/value/FormatHighlighter.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FormatHighlighter::FormatHighlighter(QTextDocument *document, FormattedText::Kind kind, bool isDark)
    : QSyntaxHighlighter(document)
{
    const QColor name = isDark ? QColor(125, 185, 255) : QColor(0, 70, 160);
    const QColor text = isDark ? QColor(150, 215, 150) : QColor(20, 105, 30);
    const QColor number = isDark ? QColor(220, 175, 255) : QColor(120, 30, 140);
    const QColor comment = isDark ? QColor(170, 170, 170) : QColor(95, 95, 95);
    if (kind == FormattedText::Kind::Json) {
        m_rules = {
            {QRegularExpression(u"-?\\b\\d[\\d.eE+-]*|\\b(true|false|null)\\b"_s), number},
            {QRegularExpression(u"\"(?:[^\"\\\\]|\\\\.)*\""_s), text},
            {QRegularExpression(u"\"(?:[^\"\\\\]|\\\\.)*\"(?=:)"_s), name},
        };
    } else {
        m_rules = {
            {QRegularExpression(u"</?[\\w:.-]+|/?>|<\\?[^>]*\\?>"_s), name},
            {QRegularExpression(u"(?<=\\s)[\\w:.-]+(?==\")"_s), number},
            {QRegularExpression(u"(?<==)\"[^\"]*\""_s), text},
            {QRegularExpression(u"<!--.*-->"_s), comment},
        };
    }
}

void FormatHighlighter::highlightBlock(const QString &line)
{
    for (const Rule &rule : std::as_const(m_rules)) {
        for (auto found = rule.words.globalMatch(line); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            setFormat(static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()),
                      rule.colour);
        }
    }
}

} // namespace KOVAVSFDataGridLib
