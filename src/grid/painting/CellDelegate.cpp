#include "grid/painting/CellDelegate.h"

#include "grid/WholeText.h"
#include "grid/cells/FlexGridModel.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace KOVAVSFDataGridLib {

QString CellDelegate::shownText(const QString &text)
{
    const auto isLineBreak = [](QChar c) {
        return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    };
    const auto lineEnd =
        std::find_if(text.begin(), text.begin() + std::min<qsizetype>(text.size(), longestText), isLineBreak);
    const qsizetype length = lineEnd - text.begin();
    return length == text.size() ? text : text.first(length) + u'…';
}

QString CellDelegate::nullText()
{
    return QStringLiteral("NULL");
}

// Paler than text, but with enough contrast to be readable.
QColor CellDelegate::pale(QColor colour)
{
    constexpr float share = 0.62f;
    colour.setAlphaF(colour.alphaF() * share);
    return colour;
}

void CellDelegate::showNull(QStyleOptionViewItem &option)
{
    option.text = nullText();
    for (const auto role : {QPalette::Text, QPalette::HighlightedText})
        option.palette.setColor(role, pale(option.palette.color(role)));
}

QString CellDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return shownText(value.toString());
}

void CellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto *cells = qobject_cast<const FlexGridModel *>(index.model());
    if (!cells)
        return;
    const int row = index.row() + 1;
    const int col = index.column() + cells->fixedCols();
    if (cells->hasFormats())
        option->text = shownText(cells->shownText(row, col));
    if (option->text.isEmpty() && cells->isShownNull(row, col))
        showNull(*option);
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto *cells = qobject_cast<const FlexGridModel *>(index.model());
    if (!cells || !cells->textMarker())
        return;
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
    QRectF line = QRectF(cell.rect).adjusted(margin, 0, -margin, 0);
    const qreal width = QFontMetricsF(cell.font).horizontalAdvance(cell.text);
    if (width < line.width() && cell.displayAlignment & Qt::AlignRight)
        line.setLeft(line.right() - width);
    paintTextMarks(*painter, cell.palette,
                   {cell.text, line, cell.font, cell.state.testFlag(QStyle::State_Selected)},
                   index.column() + cells->fixedCols(), cells->textMarker());
}

bool CellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data().toString();
    const bool isCut =
        displayText(text, option.locale) != text || sizeHint(option, index).width() > option.rect.width();
    if (isCut)
        showWholeText(text, event->globalPos(), *view->viewport(), option.rect);
    else
        QToolTip::hideText();
    return true;
}

} // namespace KOVAVSFDataGridLib
