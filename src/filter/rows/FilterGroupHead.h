#pragma once

#include "filter/tree/FilterTree.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QToolButton;

namespace KOVAVSFDataGridLib {

class FilterGrip;

// The heading of a group of conditions: how many of them have to be met, and what can be done with the group.
class FilterGroupHead final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterGroupHead(QWidget *parent = nullptr);

    // Counted from 1; the first one, on level 0, is the outermost, which can be neither moved nor dissolved.
    void setPlace(int number, int level, FilterNode::Kind kind);
    FilterNode::Kind kind() const;
    FilterGrip &grip() const { return *m_grip; }
    // The tab key walks through this heading after `previous`; the answer is its last part.
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

// How far the lines of a level are indented.
int indentOf(const QWidget &widget, int level);

} // namespace KOVAVSFDataGridLib
