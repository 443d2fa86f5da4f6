#pragma once

#include <QtWidgets/QPlainTextEdit>

namespace KOVAVSFDataGridLib {

// Edits a text of several lines and returns it unchanged wherever the user did not edit it. A text document
// has only one character for line ends, so by itself it would return each CR LF, CR and paragraph separator
// as the same one.
class LinesEdit final : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

    void setText(const QString &text);
    // New line ends are CR LF if the original text contains one, else LF.
    QString text() const;

private:
    QString m_text;  // the original text
    QString m_shown; // the document's text at that time
};

} // namespace KOVAVSFDataGridLib
