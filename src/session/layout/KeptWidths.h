#pragma once

#include <functional>
#include <vector>

#include <QtCore/QHash>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class ColumnView;

// The widths of the columns 1 to Cols() - 1.
std::vector<int> widthsOf(const ColumnView &view);

// The widths of columns before they were fitted, by heading.
class KeptWidths
{
public:
    // Runs `change`, and remembers the previous widths if it changed any.
    void fit(const ColumnView &view, const std::function<void()> &change);
    // Whether a visible column had another width.
    bool canRestore(const ColumnView &view) const;
    // Restores the widths of the visible columns. Hidden ones stay hidden.
    void restore(ColumnView &view) const;

private:
    QHash<QString, int> m_widths;
};

} // namespace KOVAVSFDataGridLib
