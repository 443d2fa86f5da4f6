#include "grid/painting/CellDelegate.h"

#include "grid/WholeText.h"
#include "grid/cells/FlexGridModel.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractItemView>
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

QString CellDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return shownText(value.toString());
}

void CellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto *cells = qobject_cast<const FlexGridModel *>(index.model());
    if (cells && cells->hasFormats())
        option->text = shownText(cells->shownText(index.row() + 1, index.column() + cells->fixedCols()));
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
