#pragma once

#include "control/parts/lines/LoadPreview.h"
#include "control/parts/lines/LoadProgress.h"

namespace KOVAVSFDataGridLib {

// Shows the opening of a statement in a window: a line with the number of records read, and the first of them
// over the grid.
class ShownOpening final : public OpeningProgress
{
public:
    // `window` and `place` as for LoadProgress. At the end, `scrolled` is set to the scroll bar positions if
    // the user has moved them.
    ShownOpening(QWidget &window, std::function<QRect()> place, VSFlexGrid &grid,
                 std::shared_ptr<std::optional<QPoint>> scrolled);
    ~ShownOpening() override;

    bool shouldContinue(qint64 rowsDone) override;
    void showOpening(const ADODB::Recordset &opening) override;
    void expect(qint64 records) override { m_line.expect(records); }

private:
    LoadProgress m_line;
    LoadPreview m_preview;
    const std::shared_ptr<std::optional<QPoint>> m_scrolled;
};

} // namespace KOVAVSFDataGridLib
