#pragma once

#include "ado/Enums.h"

#include <QtCore/QMimeData>

#include <vector>

namespace KOVAVSFDataGridLib {

// A table for the clipboard, as tab-separated text and as HTML. Only the text is stored; the HTML, several
// times as long, is generated when a program requests it.
class TableMimeData final : public QMimeData
{
    Q_OBJECT

public:
    // `text` is UTF-8, as TabTextWriter makes it, with columns of these types. A number of which a
    // spreadsheet loses no digit is pasted as number, a date or time that it can hold as such, and everything
    // else as text, so that it keeps the zeros before a number and computes no formula.
    TableMimeData(QByteArray text, std::vector<ADODB::DataTypeEnum> types, bool hasHeadings);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    QByteArray html() const;

    const QByteArray m_text;
    const std::vector<ADODB::DataTypeEnum> m_types;
    const bool m_hasHeadings;
};

} // namespace KOVAVSFDataGridLib
