#pragma once

#include <QtWidgets/QDialog>

#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace KOVAVSFDataGridLib {

// Shows one text, usually a statement, which the user can change if editing is allowed.
class Dialog_SQLST final : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog_SQLST(QWidget *parent = nullptr);

    // A description, shown above the text.
    void SetLabel(const QString &label);
    void SetText(const QString &text);
    // Whether the user can allow editing, and whether it is allowed initially.
    void SetEditing(bool canAllow, bool isAllowed);

    // The text if the user accepted it with editing allowed; otherwise nothing.
    std::optional<QString> result() const { return m_result; }

private:
    void acceptText();

    QLabel *m_label;
    QLineEdit *m_text;
    QCheckBox *m_allowEdit;
    std::optional<QString> m_result;
};

} // namespace KOVAVSFDataGridLib
