#include "control/input/record/RecordDelegate.h"

#include "control/parts/GridTexts.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int nameColumn = 0;

} // namespace

RecordDelegate::RecordDelegate(const std::vector<ListedField> &fields, std::function<bool(int)> isNull,
                               QObject *parent)
    : CellDelegate(parent), m_fields(fields), m_isNull(std::move(isNull))
{
}

const ListedField *RecordDelegate::fieldOf(const QModelIndex &index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    return row < m_fields.size() ? &m_fields[row] : nullptr;
}

void RecordDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const ListedField *const field = fieldOf(index);
    if (field && index.column() != nameColumn && !field->picture.isNull())
        return paintPicture(*painter, option, index, field->picture);
    CellDelegate::paint(painter, option, index);
    if (!field || index.column() != nameColumn || !field->isRequired)
        return;
    // In the text's colour if the row is selected, otherwise in red.
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isDark = option.palette.color(QPalette::Base).lightness() < 128;
    const QColor red = isDark ? QColor(255, 130, 120) : QColor(176, 20, 20);
    constexpr int margin = 2;
    painter->save();
    painter->setFont(option.font);
    painter->setPen(isSelected ? option.palette.color(QPalette::HighlightedText) : red);
    painter->drawText(option.rect.adjusted(0, 0, -margin, 0), Qt::AlignRight | Qt::AlignVCenter,
                      QStringLiteral("*"));
    painter->restore();
}

void RecordDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    CellDelegate::initStyleOption(option, index);
    const ListedField *const field = fieldOf(index);
    if (!field || index.column() == nameColumn)
        return;
    if (!field->format.isNone())
        option->text = field->format.applied(option->text);
    if (option->text.isEmpty() && m_isNull(field->field))
        showNull(*option);
}

void RecordDelegate::paintPicture(QPainter &painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index, const QImage &picture) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
    constexpr int margin = 3;
    const QRect room = cell.rect.adjusted(margin, margin, -margin, -margin);
    const QSize size = picture.size().scaled(picture.size().boundedTo(room.size()), Qt::KeepAspectRatio);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(room.topLeft(), size), picture);
    painter.restore();
}

bool RecordDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    const ListedField *const field = fieldOf(index);
    if (event->type() != QEvent::ToolTip || !field || index.column() != nameColumn || !field->isRequired)
        return CellDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), GridTexts::RequiredField.arg(index.data().toString()),
                       view->viewport(), option.rect);
    return true;
}

} // namespace KOVAVSFDataGridLib
