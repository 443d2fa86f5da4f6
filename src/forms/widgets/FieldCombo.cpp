#include "forms/widgets/FieldCombo.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace KOVAVSFDataGridLib {

FieldCombo::FieldCombo(QWidget *parent) : QComboBox(parent)
{
    constexpr int rowsAtOnce = 20;
    setMaxVisibleItems(rowsAtOnce);
    setAttribute(Qt::WA_InputMethodEnabled);
}

QString FieldCombo::shownText() const
{
    constexpr int margin = 2;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, room.width() - margin);
}

void FieldCombo::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = shownText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool FieldCombo::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || shownText() == currentText())
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), currentText(), this);
    return true;
}

// A list as narrow as the box would truncate the names too.
void FieldCombo::showPopup()
{
    const int names = view()->sizeHintForColumn(modelColumn());
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(std::min(names + scrollBar, screen()->availableGeometry().width() / 2));
    QComboBox::showPopup();
}

void FieldCombo::inputMethodEvent(QInputMethodEvent *event)
{
    if (event->commitString().isEmpty())
        return;
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn()));
    view()->keyboardSearch(event->commitString());
    setCurrentIndex(view()->currentIndex().row());
}

} // namespace KOVAVSFDataGridLib
