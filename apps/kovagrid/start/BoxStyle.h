#pragma once

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

// Qt's own style draws the boxes for ticks in the window's menus with a line that is hardly darker than the
// window. Here that line is seen, in light and in dark colours. The control sees to its own boxes.
class BoxStyle final : public QProxyStyle
{
public:
    // Only where that style is in use; the others are those of the desktop.
    static void use()
    {
        if (QApplication::style()->name().compare(QLatin1StringView("fusion"), Qt::CaseInsensitive) == 0)
            QApplication::setStyle(new BoxStyle(QStringLiteral("Fusion")));
    }

    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_IndicatorCheckBox)
            return;
        constexpr float visibility = 0.6F;
        QColor line = option->palette.color(QPalette::WindowText);
        line.setAlphaF(visibility);
        painter->save();
        painter->setPen(line);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};
