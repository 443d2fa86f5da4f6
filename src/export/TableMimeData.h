#pragma once

#include <QtCore/QMimeData>

#include <vector>

namespace KOVAVSFDataGridLib {

// A table for the clipboard, as tab-separated text and as HTML. Only the text is stored; the HTML, several
// times as long, is generated when a program requests it.
class TableMimeData final : public QMimeData
{
    Q_OBJECT

public:
    // `text` is UTF-8 from TabTextWriter. A column that is not numeric is pasted as text, so that a
    // spreadsheet keeps leading zeros and evaluates no formulas.
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
