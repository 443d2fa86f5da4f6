#pragma once

#include "control/parts/GridWindow.h"
#include "control/parts/lines/WaitPlace.h"

#include <functional>

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;
class SingleRecordView;

// The control as the window of its session.
class ControlWindow final : public GridWindow
{
public:
    // Both must outlive this object.
    ControlWindow(QWidget &control, GridParts &parts);

    // Without a view, single records are never shown.
    void setSingleRecordView(SingleRecordView *view) { m_singleRecord = view; }
    // `show` is called by the command that shows the result in full screen.
    void setFullScreen(std::function<void()> show) { m_fullScreen = std::move(show); }

    void showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count) override;
    void showPageNumber(int page, qint64 pageCount) override;
    int currentCol() const override;
    MarkedCells markedCells() const override;
    MarkedFields markedFields() const override;
    std::vector<int> shownColumns() const override;
    bool isSingleRecordShown() const override;
    void showSingleRecord() override;
    void showAllRecords() override;
    void refreshSingleRecord() override;
    std::optional<QString> commitEdit() override;
    void focusEdit() override;
    void cancelEdit() override;
    void refreshStatus() override;
    void enableCommands() override;
    void showFullScreen() override;
    void showConditions(const QStringList &words) override;

private:
    QWidget &progressWindow() override { return m_control; }
    QRect progressPlace() const override;
    QStringList places() const;
    bool isUnsaved() const;
    void offerToSave();

    QWidget &m_control;
    GridParts &m_parts;
    SingleRecordView *m_singleRecord = nullptr;
    std::function<void()> m_fullScreen;
    const WaitPlace m_waits;
};

} // namespace KOVAVSFDataGridLib
