#pragma once

#include <QtCore/QMap>
#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>

// The access keys of menu entries and, with Alt, of parts of a window.
namespace KovaTest {

// The captions that share a letter, "A: All Fields / Ascending"; empty if each letter is unique.
inline QStringList sharedAccessKeys(const QStringList &captions)
{
    QMap<QString, QStringList> byKey;
    for (const QString &caption : captions) {
        if (const QKeySequence key = QKeySequence::mnemonic(caption); !key.isEmpty())
            byKey[key.toString()].append(caption);
    }
    QStringList shared;
    for (const auto &[key, sharing] : byKey.asKeyValueRange()) {
        if (sharing.size() > 1)
            shared.append(key + QStringLiteral(": ") + sharing.join(QStringLiteral(" / ")));
    }
    return shared;
}

// For the entries that are currently visible, including disabled ones.
inline QStringList sharedAccessKeys(const QMenu &menu)
{
    QStringList captions;
    for (const QAction *action : menu.actions()) {
        if (action->isVisible() && !action->isSeparator())
            captions.append(action->text());
    }
    return sharedAccessKeys(captions);
}

// The captions with access keys in a window, except those inside its menus.
inline QStringList accessCaptions(const QWidget &window)
{
    QStringList captions;
    for (const QWidget *part : window.findChildren<QWidget *>()) {
        if (!part->isVisible() || part->window() != window.window())
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(part); label && label->buddy())
            captions.append(label->text());
        else if (const auto *button = qobject_cast<const QAbstractButton *>(part))
            captions.append(button->text());
        else if (const auto *box = qobject_cast<const QGroupBox *>(part))
            captions.append(box->title());
        else if (const auto *tabs = qobject_cast<const QTabBar *>(part)) {
            for (int i = 0; i < tabs->count(); ++i)
                captions.append(tabs->tabText(i));
        }
    }
    return captions;
}

} // namespace KovaTest
