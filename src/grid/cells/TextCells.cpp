#include "grid/cells/TextCells.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

quint64 keyOf(int row, int col)
{
    return (static_cast<quint64>(row) << 32) | static_cast<quint32>(col);
}

} // namespace

TextCells::TextCells(int rows, int cols) : m_rows(std::max(rows, 1)), m_cols(std::max(cols, 1)) {}

QString TextCells::text(int row, int col) const
{
    return m_texts.value(keyOf(row, col));
}

bool TextCells::setText(int row, int col, const QString &text)
{
    if (text.isEmpty())
        m_texts.remove(keyOf(row, col));
    else
        m_texts.insert(keyOf(row, col), text);
    return true;
}

} // namespace KOVAVSFDataGridLib
