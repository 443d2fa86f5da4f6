#pragma once

#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/SessionWindow.h"

namespace KOVAVSFDataGridLib {

// Takes the place of a session's window, user and host when they are gone: shows nothing, and every question
// is cancelled.
class DetachedWindow final : public SessionWindow, public Questions, public HostEvents
{
public:
    static DetachedWindow &instance();

    int Cols() const override { return 1; }
    QStringList Headings() const override { return {}; }
    int ColWidth(int) const override { return 0; }
    void PutColWidth(int, int) override {}
    void ResetColWidths() override {}
    int widthOfColumns() const override { return 0; }
    int width() const override { return 0; }

    void showRecords(std::shared_ptr<ADODB::Recordset>, qint64, int) override {}
    void refreshRecords() override {}
    void showPageNumber(int, qint64) override {}
    void showTypedPage(const QString &) override {}
    int Row() const override { return 0; }
    int Rows() const override { return 1; }
    void PutRow(int) override {}
    void PutCol(int) override {}
    int currentCol() const override { return 0; }
    void keepInView(const std::function<void()> &change) override { change(); }
    bool isSingleRecordShown() const override { return false; }
    void showSingleRecord() override {}
    void showAllRecords() override {}
    void refreshSingleRecord() override {}
    bool commitEdit() override { return false; }
    void cancelEdit() override {}
    void setPressed(const QString &, bool) override {}
    void refreshStatus() override {}
    void enableCommands() override {}
    void showFullScreen() override {}
    std::unique_ptr<OpeningProgress> beginOpening() override;

    std::optional<QString> ChooseVisibleFields(const QString &, const QStringList &,
                                               const QStringList &) override
    {
        return {};
    }
    std::optional<QString> ChooseSort(const QString &, const QStringList &, const QStringList &) override
    {
        return {};
    }
    void setDatabase(qint32) override {}
    void tell(const QString &) override {}
    void tellWithCause(const QString &, const QString &) override {}
    bool ask(const QString &, const QString &) override { return false; }
    QString askCondition(const ConditionRequest &) override { return {}; }
    std::optional<FindAnswer> askWords(const colDataFields &) override { return {}; }

    void filterWritten() override {}
    void askFilter(qint32 &, const QString &) override {}
    void fieldsChanged(const QString &) override {}
    void refresh() override {}
};

} // namespace KOVAVSFDataGridLib
