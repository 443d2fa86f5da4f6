#pragma once

#include <functional>
#include <vector>

#include <QtCore/QHash>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class ColumnView;

// The widths of the columns 1 to Cols() - 1.
std::vector<int> widthsOf(const ColumnView &view);

// The widths that columns had before they were fitted, by their headings.
class KeptWidths
{
public:
    // Runs `change`. When a width is another one then, those before are kept.
    void fit(const ColumnView &view, const std::function<void()> &change);
    // Whether a column that is shown had another width.
    bool canRestore(const ColumnView &view) const;
    // Gives the columns that are shown their widths back. Hidden ones stay hidden.
    void restore(ColumnView &view) const;

private:
    QHash<QString, int> m_widths;
};

} // namespace KOVAVSFDataGridLib
