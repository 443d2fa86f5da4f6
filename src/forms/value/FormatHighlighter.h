#pragma once

#include "forms/value/FormattedText.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QSyntaxHighlighter>
#include <QtGui/QTextCharFormat>

namespace KOVAVSFDataGridLib {

// Colours the tokens of a JSON or XML text, with colours that are readable in light and dark themes.
class FormatHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    FormatHighlighter(QTextDocument *document, FormattedText::Kind kind, bool isDark);

protected:
    void highlightBlock(const QString &line) override;

private:
    struct Rule
    {
        QRegularExpression words;
        QColor colour;
    };
    QList<Rule> m_rules; // later rules take precedence
};

} // namespace KOVAVSFDataGridLib
