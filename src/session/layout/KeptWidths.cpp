#include "session/layout/KeptWidths.h"

#include "session/layout/ColumnView.h"

namespace KOVAVSFDataGridLib {

std::vector<int> widthsOf(const ColumnView &view)
{
    std::vector<int> widths;
    for (int col = 1; col < view.Cols(); ++col)
        widths.push_back(view.ColWidth(col));
    return widths;
}

void KeptWidths::fit(const ColumnView &view, const std::function<void()> &change)
{
    const std::vector<int> before = widthsOf(view);
    const QStringList headings = view.Headings();
    change();
    if (widthsOf(view) == before)
        return;
    m_widths.clear();
    for (qsizetype i = 0; i < headings.size(); ++i)
        m_widths.insert(headings.at(i), before[static_cast<std::size_t>(i)]);
}

bool KeptWidths::canRestore(const ColumnView &view) const
{
    const QStringList headings = view.Headings();
    for (int col = 1; col < view.Cols(); ++col) {
        const int width = view.ColWidth(col);
        const int kept = m_widths.value(headings.at(col - 1));
        if (width != 0 && kept != 0 && width != kept)
            return true;
    }
    return false;
}

void KeptWidths::restore(ColumnView &view) const
{
    const QStringList headings = view.Headings();
    for (int col = 1; col < view.Cols(); ++col) {
        const int kept = m_widths.value(headings.at(col - 1));
        if (view.ColWidth(col) != 0 && kept != 0)
            view.PutColWidth(col, kept);
    }
}

} // namespace KOVAVSFDataGridLib
