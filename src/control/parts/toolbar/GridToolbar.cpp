#include "control/parts/toolbar/GridToolbar.h"

#include "control/parts/toolbar/ToolbarIcons.h"
#include "language/Language.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int placesOfGroup = 100;
constexpr int gapBesideCaption = 8; // pixels, more than any style takes

} // namespace

GridToolbar::GridToolbar(QWidget *parent) : QToolBar(parent)
{
    setObjectName(u"Toolbar1"_s);
    setIconSize(QSize(16, 16));
    auto *views = new QActionGroup(this);
    int group = 0;
    for (const Command *command : Command::all()) {
        if (command->button)
            addButton(*command, *views, std::exchange(group, command->button->place / placesOfGroup));
    }
    Language::keepTranslated(*this, [this] { writeTexts(); });
    setButtonPressed(CommandKeys::All, true);
    setButtonVisible(CommandKeys::AllRecord, false);
}

void GridToolbar::addButton(const Command &command, QActionGroup &views, int lastGroup)
{
    if (lastGroup > 0 && command.button->place / placesOfGroup != lastGroup)
        addSeparator();
    const QString key = command.key;
    QAction *action = addAction(QString());
    action->setObjectName(key);
    action->setIcon(toolbarIcon(key));
    action->setShortcut(QKeySequence(command.shortcut));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setCheckable(command.button->isToggle);
    if (key == CommandKeys::All || key == CommandKeys::Part)
        views.addAction(action);
    connect(action, &QAction::triggered, this, [this, key] {
        showPressed();
        Q_EMIT buttonClicked(key);
    });
    m_buttons.emplace(key, Button{.action = action, .command = &command});
}

void GridToolbar::writeTexts()
{
    for (const auto &[key, button] : m_buttons) {
        button.action->setText(button.command->button->caption);
        apply(button);
    }
    showCaptions(); // while none is shown, a new one changes no size, and no layout is requested
    narrowMenuButton();
}

void GridToolbar::resizeEvent(QResizeEvent *event)
{
    QToolBar::resizeEvent(event);
    showCaptions();
    narrowMenuButton();
}

bool GridToolbar::event(QEvent *event)
{
    const bool isDone = QToolBar::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LayoutRequest) {
        showCaptions();
        narrowMenuButton();
    }
    return isDone;
}

// The height is the same with and without captions, so that nothing below the bar moves.
QSize GridToolbar::sizeHint() const
{
    QSize size = QToolBar::sizeHint();
    if (m_isCaptioned)
        return size;
    size.setHeight(size.height() + std::max(0, heightOfCaption() - iconSize().height()));
    return size;
}

int GridToolbar::heightOfCaption() const
{
    // Including the leading, as buttons measure their texts.
    int height = 0;
    for (const auto &[key, button] : m_buttons) {
        if (button.command->button->isCaptioned)
            height =
                std::max(height, fontMetrics().size(Qt::TextShowMnemonic, button.action->text()).height());
    }
    return height;
}

void GridToolbar::showCaptions()
{
    int needed = 0;
    for (const auto &[key, button] : m_buttons) {
        if (button.command->button->isCaptioned && button.isVisible)
            needed += fontMetrics().horizontalAdvance(button.action->text()) + 2 * gapBesideCaption;
    }
    const int without = QToolBar::sizeHint().width() - (m_isCaptioned ? needed : 0);
    const bool hasRoom = without + needed <= width();
    if (hasRoom == m_isCaptioned)
        return;
    m_isCaptioned = hasRoom;
    for (const auto &[key, button] : m_buttons) {
        auto *const shown = qobject_cast<QToolButton *>(widgetForAction(button.action));
        if (shown && button.command->button->isCaptioned)
            shown->setToolButtonStyle(hasRoom ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    }
}

// The arrow stands at the caption that it belongs to: a tool button keeps two spaces and a margin free after
// its text, which would move the arrow to the next button.
void GridToolbar::narrowMenuButton()
{
    constexpr int margin = 4;
    if (!m_menuButton)
        return;
    const int surplus = m_isCaptioned ? 2 * m_menuButton->fontMetrics().horizontalAdvance(u' ') + margin : 0;
    m_menuButton->setMaximumWidth(m_menuButton->sizeHint().width() - surplus);
}

// Hides buttons for commands that the window doesn't have, and separators with no buttons between them.
void GridToolbar::hideButtonsNotInViewer()
{
    for (const auto &[key, button] : m_buttons) {
        if (!button.command->isInViewer)
            setButtonVisible(key, false);
    }
    bool isGroupEmpty = true;
    for (QAction *action : actions()) {
        if (action->isSeparator())
            action->setVisible(!isGroupEmpty);
        if (action->isVisible())
            isGroupEmpty = action->isSeparator();
    }
}

QStringList GridToolbar::keys() const
{
    QStringList keys;
    for (const auto &[key, button] : m_buttons)
        keys.append(key);
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

void GridToolbar::setButtonReason(const QString &key, const QString &reason)
{
    if (Button *button = find(key); button && button->reason != reason) {
        button->reason = reason;
        apply(*button);
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

void GridToolbar::setButtonMenu(const QString &key, QMenu &menu)
{
    const Button *const button = find(key);
    auto *const shown = button ? qobject_cast<QToolButton *>(widgetForAction(button->action)) : nullptr;
    if (!shown)
        return;
    // Set on the button, because the action itself runs the command.
    shown->setMenu(&menu);
    shown->setPopupMode(QToolButton::MenuButtonPopup);
    m_menuButton = shown;
    narrowMenuButton();
}

QWidget *GridToolbar::shownButton(const QString &key) const
{
    const Button *const button = find(key);
    QWidget *const shown = button ? widgetForAction(button->action) : nullptr;
    return shown && shown->isVisible() ? shown : nullptr;
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
        button.isPressed = button.action->isChecked(); // another one of its group was released
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
    if (found == m_buttons.end()) {
        qWarning("No button has the key %s", qPrintable(key));
        return nullptr;
    }
    return &found->second;
}

GridToolbar::Button *GridToolbar::find(const QString &key)
{
    return const_cast<Button *>(std::as_const(*this).find(key));
}

// Qt treats an invisible action as disabled, so both are set each time, in this order.
void GridToolbar::apply(const Button &button)
{
    button.action->setVisible(button.isVisible);
    button.action->setEnabled(button.isEnabled && button.reason.isEmpty());
    const QString toolTip = u"%1 (%2)"_s.arg(button.command->button->toolTip(),
                                             button.action->shortcut().toString(QKeySequence::NativeText));
    button.action->setToolTip(button.reason.isEmpty() ? toolTip : toolTip + u'\n' + button.reason);
}

} // namespace KOVAVSFDataGridLib
