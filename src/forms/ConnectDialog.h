#pragma once

#include <QtWidgets/QDialog>

#include <functional>
#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace KOVAVSFDataGridLib {

// Takes a connection string from the host's developer, built or typed, and on request the statement to show
// after it.
class ConnectDialog final : public QDialog
{
    Q_OBJECT

public:
    // Lets the developer build a connection in a window above `parent`, beginning with `present`; nothing
    // when that was cancelled. It closes what it opens.
    using Builder = std::function<std::optional<QString>(QWidget *parent, const QString &present)>;

    // Without a builder the string can only be typed.
    explicit ConnectDialog(Builder builder, QWidget *parent = nullptr);

    void SetConnectionString(const QString &text);

    // What OK took; nothing when the dialog was cancelled, and no statement when none was asked for.
    const std::optional<QString> &connectionString() const { return m_connectionString; }
    const std::optional<QString> &sqlShow() const { return m_sqlShow; }

    void reject() override;

private:
    void layOut();
    void build();
    void acceptText();
    void askSqlShow();
    void enableParts();

    Builder m_builder;
    QRadioButton *m_link;
    QRadioButton *m_type;
    QLineEdit *m_text;
    QCheckBox *m_askSqlShow;
    QPushButton *m_build;
    QLabel *m_prompt;
    QLabel *m_hint;
    bool m_takesStatement = false;
    std::optional<QString> m_connectionString;
    std::optional<QString> m_sqlShow;
};

} // namespace KOVAVSFDataGridLib
