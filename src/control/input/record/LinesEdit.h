#pragma once

#include <QtWidgets/QPlainTextEdit>

namespace KOVAVSFDataGridLib {

// Edits a text of several lines and gives it back as it was wherever the user did not change it. A text
// document has one sign for all ends of lines, so it would give back each CR LF, CR and paragraph separator
// as the same one.
class LinesEdit final : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

    void setText(const QString &text);
    // What is new in it has CR LF for its ends of lines when the text had one, else LF.
    QString text() const;

private:
    QString m_text;  // as it was set
    QString m_shown; // and as the document gave it back then
};

} // namespace KOVAVSFDataGridLib
