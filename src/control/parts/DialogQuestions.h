#pragma once

#include "forms/DialogFieldChooser.h"
#include "session/Questions.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>

namespace KOVAVSFDataGridLib {

class mod_Filter;
struct FilterRequest;

// Asks and informs the user with dialogs and message boxes above a window.
class DialogQuestions : public Questions
{
public:
    // `parent` is not owned and may be destroyed before this object.
    explicit DialogQuestions(QWidget *parent);

    // Returns the host's key for the user's stored settings; empty if there is none.
    void setHostKey(std::function<QString()> hostKey) { m_hostKey = std::move(hostKey); }

    std::optional<QString> ChooseVisibleFields(const QString &title, const QList<OfferedField> &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                      const QStringList &sortTerms) override;
    void show(const QString &text) override;
    void showWithCause(const QString &text, const QString &cause) override;
    bool ask(const QString &text, const QString &title) override;
    bool offerNewValues(const QString &text, const QString &cause) override;
    Unsaved askUnsaved(const QString &reason, bool isChangedByOthers) override;
    QString askCondition(const ConditionRequest &request) override;
    void noteConditionUsed(const ConditionRequest &request) override;
    std::optional<ValuesAnswer> askValues(const ValuesRequest &request) override;
    std::optional<FindAnswer> askWords(const colDataFields &fields) override;
    std::optional<ExportAnswer> askExport(const ExportRequest &request) override;
    std::optional<PrintAnswer> askPrint(const PrintRequest &request) override;
    std::optional<QString> askFormat(const FormatRequest &request) override;

private:
    std::shared_ptr<mod_Filter> preparedFilter(const ConditionRequest &request);
    FilterRequest filterRequest(const ConditionRequest &request) const;

    QPointer<QWidget> m_parent;
    std::function<QString()> m_hostKey;
    DialogFieldChooser m_chooser;
};

} // namespace KOVAVSFDataGridLib
