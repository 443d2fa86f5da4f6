#pragma once

#include "control/parts/GridWindow.h"
#include "control/parts/lines/WaitPlace.h"

namespace KOVAVSFDataGridLib {

class Session;
class ViewerParts;

// The full-screen viewer as the window of its session.
class ViewerWindow final : public GridWindow
{
public:
    // Both must outlive this object.
    ViewerWindow(QWidget &window, const ViewerParts &parts);

    void showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count) override;
    void showPageNumber(int page, qint64 pageCount) override;
    void showTypedPage(const QString &text) override;
    void refreshStatus() override;
    void showConditions(const QStringList &words) override;

    // Makes sure that the keyboard has a cell to start from: in the current record's row or else the first,
    // and in a visible column.
    void makeShownCellCurrent();

private:
    QWidget &progressWindow() override { return m_window; }
    QRect progressPlace() const override;
    QWidget &m_window;
    const ViewerParts &m_parts;
    const WaitPlace m_waits;
};

} // namespace KOVAVSFDataGridLib
