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

// Asks the host's developer for a connection string, which can be built or typed, and optionally for the
// statement to show.
class ConnectDialog final : public QDialog
{
    Q_OBJECT

public:
    // Lets the developer build a connection in a window above `parent`, starting with `present`. Returns
    // nothing if the developer cancels. Closes all connections that it opens.
    using Builder = std::function<std::optional<QString>(QWidget *parent, const QString &present)>;

    // Without a builder, the string can only be typed.
    explicit ConnectDialog(Builder builder, QWidget *parent = nullptr);

    void SetConnectionString(const QString &text);

    // The result of OK. Nothing if the dialog was cancelled; no statement if none was requested.
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
