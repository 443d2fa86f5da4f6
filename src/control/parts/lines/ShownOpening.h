#pragma once

#include "control/parts/lines/LoadPreview.h"
#include "control/parts/lines/LoadProgress.h"

namespace KOVAVSFDataGridLib {

// A statement that is being opened, as a window shows it: the line that says how many records have come, and
// the first of them over the grid.
class ShownOpening final : public OpeningProgress
{
public:
    // `window` and `place` as LoadProgress takes them. In the end `scrolled` gets the positions of the scroll
    // bars that the user has moved, if any.
    ShownOpening(QWidget &window, std::function<QRect()> place, VSFlexGrid &grid,
                 std::shared_ptr<std::optional<QPoint>> scrolled);
    ~ShownOpening() override;

    bool shouldContinue(qint64 rowsDone) override;
    void showOpening(const ADODB::Recordset &opening) override;

private:
    LoadProgress m_line;
    LoadPreview m_preview;
    const std::shared_ptr<std::optional<QPoint>> m_scrolled;
};

} // namespace KOVAVSFDataGridLib
