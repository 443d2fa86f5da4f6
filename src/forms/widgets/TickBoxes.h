#pragma once

#include "forms/Contrast.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStyledItemDelegate>

// All that has a box for a tick, with a box that can be seen in any palette.
namespace KOVAVSFDataGridLib {

template<typename Button>
class TickButton : public Button
{
public:
    using Button::Button;

protected:
    void initStyleOption(QStyleOptionButton *option) const override
    {
        Button::initStyleOption(option);
        makeBoxVisible(option->palette);
    }
};

using CheckBox = TickButton<QCheckBox>;
using RadioButton = TickButton<QRadioButton>;

class Menu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void initStyleOption(QStyleOptionMenuItem *option, const QAction *action) const override
    {
        QMenu::initStyleOption(option, action);
        if (option->checkType != QStyleOptionMenuItem::NotCheckable)
            makeBoxVisible(option->palette);
    }
};

// For the entries of a list.
class TickDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->features.testFlag(QStyleOptionViewItem::HasCheckIndicator))
            makeBoxVisible(option->palette);
    }
};

} // namespace KOVAVSFDataGridLib
