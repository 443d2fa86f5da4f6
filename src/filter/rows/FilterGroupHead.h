#pragma once

#include "filter/tree/FilterTree.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QToolButton;

namespace KOVAVSFDataGridLib {

class FilterGrip;

// The heading of a group of conditions: how many of them must be met, and commands for the group.
class FilterGroupHead final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterGroupHead(QWidget *parent = nullptr);

    // Numbered from 1. The first one, on level 0, is the outermost, which can't be moved or dissolved.
    void setPlace(int number, int level, FilterNode::Kind kind);
    FilterNode::Kind kind() const;
    FilterGrip &grip() const { return *m_grip; }
    // Puts its parts into the tab order after `previous`, and returns the last one.
    QWidget *followInTabOrder(QWidget *previous);
    QWidget *lastPart() const;

Q_SIGNALS:
    void kindChanged();
    void addWanted();
    void dissolveWanted();

private:
    FilterGrip *m_grip;
    QComboBox *m_kind;
    QToolButton *m_add;
    QToolButton *m_dissolve;
};

// The indentation of lines on a level.
int indentOf(const QWidget &widget, int level);

} // namespace KOVAVSFDataGridLib
