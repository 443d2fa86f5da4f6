#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace KOVAVSFDataGridLib {

// Paints only the visible part of a cell's text: the first line, up to the width of the widest column. A view
// lays out and elides the whole text on every paint, which takes seconds for pages of memo fields. A
// truncated text is shown in full by a tool tip.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int longestText = 400; // characters

    // The part of a text that is painted.
    static QString shownText(const QString &text);

    // The text painted for Null, and the colour in which it is painted instead of the text colour.
    static QString nullText();
    static QColor pale(QColor colour);
    // Sets up an option for painting Null.
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
