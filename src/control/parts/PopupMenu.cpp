#include "control/parts/PopupMenu.h"

#include "control/parts/GridTexts.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/parts/toolbar/ToolbarIcons.h"
#include "language/Language.h"
#include "session/Session.h"

#include <QtGui/QAction>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

const PopupMenu::Kind PopupMenu::ofControl{u"PopMnuData"_s, u"PopMnuDataAction%1"_s, &Command::menu};
const PopupMenu::Kind PopupMenu::ofViewer{u"PopMnu"_s, u"PopMnuAction%1"_s, &Command::viewerMenu};

PopupMenu::PopupMenu(QWidget &window, const Kind &kind, const GridToolbar &toolbar, Session &session)
    : Menu(&window), m_kind(kind), m_toolbar(toolbar), m_session(session)
{
    setObjectName(kind.name);
    setToolTipsVisible(true); // for the reason why an item is disabled
    const int last = Command::lastMenuIndex(kind.texts);
    for (int index = 1; index <= last; ++index) {
        const Command *const command = Command::findMenuItem(kind.texts, index);
        QAction *const action = command ? addItem(*command, window) : addSeparator();
        action->setObjectName(kind.itemName.arg(index));
        action->setData(index);
        m_items.push_back(action);
    }
    Language::keepTranslated(*this, [this] { writeTexts(); });
}

void PopupMenu::writeTexts()
{
    setAccessibleName(GridTexts::MenuName);
    for (QAction *const action : m_items) {
        const Command *const command = Command::findMenuItem(m_kind.texts, action->data().toInt());
        if (!command)
            continue;
        const Text caption = (command->*m_kind.texts).caption;
        // If a command has a button, its shortcut belongs to the button and is only shown here.
        const QString shortcut = QKeySequence(command->shortcut).toString(QKeySequence::NativeText);
        action->setText(command->button ? caption() + u'\t' + shortcut : caption());
    }
    if (m_copyAs) {
        m_copyAs->setTitle(GridTexts::CopyAsMenu);
        m_copyAs->setAccessibleName(GridTexts::CopyAsName);
    }
}

QAction *PopupMenu::addItem(const Command &command, QWidget &window)
{
    const MenuItemTexts &texts = command.*m_kind.texts;
    const QKeySequence shortcut(command.shortcut);
    QAction *const action = menuOfGroup(texts.group).addAction(QString());
    if (command.button) {
        action->setIcon(toolbarIcon(command.key));
    } else if (!shortcut.isEmpty()) {
        action->setShortcuts({shortcut, QKeySequence(command.otherShortcut)});
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        window.addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, &command] { Q_EMIT chosen(command.key); });
    return action;
}

// The menu for a group's items: a submenu, created on first use, or this menu.
QMenu &PopupMenu::menuOfGroup(MenuGroup group)
{
    if (group == MenuGroup::None)
        return *this;
    if (!m_copyAs) {
        m_copyAs = addMenu(QString());
        m_copyAs->setObjectName(m_kind.name + u"CopyAs"_s);
    }
    return *m_copyAs;
}

void PopupMenu::refresh(bool hasText)
{
    for (QAction *const action : m_items) {
        const Command *const command = Command::findMenuItem(m_kind.texts, action->data().toInt());
        if (!command)
            continue;
        const MenuItemTexts &texts = command->*m_kind.texts;
        const QString button = command->button ? command->key : texts.enabledAs;
        if (command->button)
            action->setVisible(m_toolbar.isButtonVisible(button));
        const bool isGiven = button.isEmpty() || m_toolbar.isButtonEnabled(button);
        action->setCheckable(command->isOn != nullptr);
        action->setChecked(command->isOn && command->isOn(m_session));
        const QString why = m_session.whyNot(*command);
        action->setEnabled(isGiven && (hasText || !texts.needsText) && why.isEmpty());
        action->setToolTip(why);
    }
}

} // namespace KOVAVSFDataGridLib
