#pragma once

#include <QtWidgets/QDialog>

#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace KOVAVSFDataGridLib {

// Shows one text, usually a statement, and lets the user change it once editing is allowed.
class Dialog_SQLST final : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog_SQLST(QWidget *parent = nullptr);

    // What the text is; stands above it.
    void SetLabel(const QString &label);
    void SetText(const QString &text);
    // Whether the user can allow editing, and whether it is allowed to begin with.
    void SetEditing(bool canAllow, bool isAllowed);

    // The text that the user accepted with editing allowed; nothing when the dialog was left otherwise.
    std::optional<QString> result() const { return m_result; }

private:
    void acceptText();

    QLabel *m_label;
    QLineEdit *m_text;
    QCheckBox *m_allowEdit;
    std::optional<QString> m_result;
};

} // namespace KOVAVSFDataGridLib
