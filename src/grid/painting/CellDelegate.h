#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace KOVAVSFDataGridLib {

// Draws no more of a cell's text than can be seen: the first line, and of that so much that no column is
// wide enough for more. A view shapes and elides the whole text on every paint, which takes seconds for
// pages of memo fields. A text that is cut is shown in full by a tool tip.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int longestText = 400; // characters

    // What is drawn of a text.
    static QString shownText(const QString &text);

    // What is drawn where there is no value, and the colour of a text turned into that in which it is drawn.
    static QString nullText();
    static QColor pale(QColor colour);
    // Makes an option draw it.
    static void showNull(QStyleOptionViewItem &option);

    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

} // namespace KOVAVSFDataGridLib
