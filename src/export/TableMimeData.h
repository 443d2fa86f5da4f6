#pragma once

#include <QtCore/QMimeData>

#include <vector>

namespace KOVAVSFDataGridLib {

// A table on the clipboard, as text separated by tabs and as HTML. Only the text is kept; the HTML, which is
// several times as long, is made of it when a program asks for it.
class TableMimeData final : public QMimeData
{
    Q_OBJECT

public:
    // `text` is UTF-8, as TabTextWriter makes it. A column that holds no numbers is pasted as text, so that
    // a spreadsheet keeps the zeros before a number and computes no formula.
    TableMimeData(QByteArray text, std::vector<bool> isNumeric, bool hasHeadings);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    QByteArray html() const;

    const QByteArray m_text;
    const std::vector<bool> m_isNumeric;
    const bool m_hasHeadings;
};

} // namespace KOVAVSFDataGridLib
