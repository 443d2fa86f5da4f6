#pragma once

#include <QtWidgets/QToolBar>

#include <map>

class QActionGroup;
class QToolButton;

namespace KOVAVSFDataGridLib {

struct Command;

// The toolbar of the control and of its full-screen viewer: one button per command, identified by its key.
//
// The enabled state of a button is stored separately: disabling the toolbar or hiding the button does not
// change it. For an unknown key, a warning is logged and the state is off.
class GridToolbar final : public QToolBar
{
    Q_OBJECT

public:
    explicit GridToolbar(QWidget *parent = nullptr);

    QStringList keys() const;
    // Hides the buttons that the full-screen viewer doesn't have.
    void hideButtonsNotInViewer();
    bool isButtonEnabled(const QString &key) const;
    void setButtonEnabled(const QString &key, bool on);
    void setAllButtonsEnabled(bool on);
    // A button with a reason is disabled, whatever its own state, and shows the reason in its tool tip.
    void setButtonReason(const QString &key, const QString &reason);
    bool isButtonVisible(const QString &key) const;
    void setButtonVisible(const QString &key, bool on);
    // A menu that drops down beside the button; not owned.
    void setButtonMenu(const QString &key, QMenu &menu);
    // Null while the button is not visible on the toolbar.
    QWidget *shownButton(const QString &key) const;
    bool isButtonPressed(const QString &key) const;
    // Shows a checkable button as pressed or not, without running its command. A click does not change it:
    // the command decides what is pressed afterwards.
    void setButtonPressed(const QString &key, bool on);

    QSize sizeHint() const override;

Q_SIGNALS:
    // The user pressed an enabled button (by mouse, keyboard or shortcut).
    void buttonClicked(const QString &key);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Button
    {
        QAction *action = nullptr;
        const Command *command = nullptr;
        bool isEnabled = true;
        bool isVisible = true;
        bool isPressed = false;
        QString reason = {};
    };

    void addButton(const Command &command, QActionGroup &views, int lastGroup);
    void writeTexts();
    const Button *find(const QString &key) const;
    Button *find(const QString &key);
    void apply(const Button &button);
    void showPressed();
    int heightOfCaption() const;
    void showCaptions();
    void narrowMenuButton();

    std::map<QString, Button> m_buttons;
    bool m_isCaptioned = false;
    QToolButton *m_menuButton = nullptr; // the one that a menu drops down from
};

} // namespace KOVAVSFDataGridLib
