#pragma once

#include <QtWidgets/QToolBar>

#include <map>

class QActionGroup;
class QToolButton;

namespace KOVAVSFDataGridLib {

struct Command;

// The toolbar of the control and of its full-screen viewer: one button per command, known by its key.
//
// A button's enabled state is the one it was given by itself; it is not touched by a disabled toolbar
// or a hidden button. A key that no button has is a mistake: it gives a warning and reads as off.
class GridToolbar final : public QToolBar
{
    Q_OBJECT

public:
    explicit GridToolbar(QWidget *parent = nullptr);

    QStringList keys() const;
    // Leaves out what the full-screen viewer doesn't have.
    void hideButtonsNotInViewer();
    bool isButtonEnabled(const QString &key) const;
    void setButtonEnabled(const QString &key, bool on);
    void setAllButtonsEnabled(bool on);
    // A button with a reason is disabled, whatever it was given, and shows the reason in its tip.
    void setButtonReason(const QString &key, const QString &reason);
    bool isButtonVisible(const QString &key) const;
    void setButtonVisible(const QString &key, bool on);
    // A menu that drops down beside the button; not owned.
    void setButtonMenu(const QString &key, QMenu &menu);
    // Null while the button has no room on the toolbar.
    QWidget *shownButton(const QString &key) const;
    bool isButtonPressed(const QString &key) const;
    // Shows a checkable button as pressed or not without running its command. A click does not change it:
    // the command that runs knows what is pressed then.
    void setButtonPressed(const QString &key, bool on);

    QSize sizeHint() const override;

Q_SIGNALS:
    // The user pressed the button (by mouse, keyboard or shortcut) while it was enabled.
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
