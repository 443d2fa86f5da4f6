#include "control/parts/GridToolbar.h"

#include "control/parts/GridTexts.h"
#include "control/parts/ToolbarIcons.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

GridToolbar::GridToolbar(QWidget *parent) : QToolBar(parent)
{
    setObjectName(u"Toolbar1"_s);
    setIconSize(QSize(16, 16));
    auto *views = new QActionGroup(this);
    for (const GridTexts::Button &text : GridTexts::Buttons) {
        if (text.beginsGroup)
            addSeparator();
        const QString key = text.key;
        QAction *action = addAction(text.caption);
        action->setObjectName(key);
        action->setIcon(toolbarIcon(key));
        action->setShortcut(QKeySequence(text.shortcut));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        action->setToolTip(
            u"%1 (%2)"_s.arg(text.toolTip, action->shortcut().toString(QKeySequence::NativeText)));
        connect(action, &QAction::triggered, this, [this, key] {
            showPressed();
            Q_EMIT buttonClicked(key);
        });
        if (key == u"All" || key == u"Part") {
            action->setCheckable(true);
            views->addAction(action);
        }
        if (key == u"FromResult")
            action->setCheckable(true);
        m_buttons.emplace(key, Button{.action = action});
    }
    setButtonPressed(u"All"_s, true);
    setButtonVisible(u"AllRecord"_s, false);
}

QStringList GridToolbar::keys() const
{
    QStringList keys;
    for (const GridTexts::Button &text : GridTexts::Buttons)
        keys.append(text.key);
    return keys;
}

bool GridToolbar::isButtonEnabled(const QString &key) const
{
    const Button *button = find(key);
    return button && button->isEnabled;
}

void GridToolbar::setButtonEnabled(const QString &key, bool on)
{
    if (Button *button = find(key)) {
        button->isEnabled = on;
        apply(*button);
    }
}

void GridToolbar::setAllButtonsEnabled(bool on)
{
    for (auto &[key, button] : m_buttons) {
        button.isEnabled = on;
        apply(button);
    }
}

bool GridToolbar::isButtonVisible(const QString &key) const
{
    const Button *button = find(key);
    return button && button->isVisible;
}

void GridToolbar::setButtonVisible(const QString &key, bool on)
{
    if (Button *button = find(key)) {
        button->isVisible = on;
        apply(*button);
    }
}

bool GridToolbar::isButtonPressed(const QString &key) const
{
    const Button *button = find(key);
    return button && button->action->isChecked();
}

void GridToolbar::setButtonPressed(const QString &key, bool on)
{
    Button *pressed = find(key);
    if (!pressed)
        return;
    pressed->action->setChecked(on);
    for (auto &[each, button] : m_buttons)
        button.isPressed = button.action->isChecked(); // another one of its group came up
}

void GridToolbar::showPressed()
{
    for (auto &[key, button] : m_buttons) {
        if (button.action->isChecked() != button.isPressed)
            button.action->setChecked(button.isPressed);
    }
}

const GridToolbar::Button *GridToolbar::find(const QString &key) const
{
    const auto found = m_buttons.find(key);
    return found == m_buttons.end() ? nullptr : &found->second;
}

GridToolbar::Button *GridToolbar::find(const QString &key)
{
    const auto found = m_buttons.find(key);
    return found == m_buttons.end() ? nullptr : &found->second;
}

// An action that is not visible counts as disabled in Qt, so both are set each time, in this order.
void GridToolbar::apply(const Button &button)
{
    button.action->setVisible(button.isVisible);
    button.action->setEnabled(button.isEnabled);
}

} // namespace KOVAVSFDataGridLib
