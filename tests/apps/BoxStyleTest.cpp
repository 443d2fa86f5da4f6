// The style of kovagrid.
#include "start/BoxStyle.h"

#include <QtWidgets/QMenu>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

TEST(BoxStyle, ABoxInAMenuIsSeenWithoutATick)
{
    const auto luminance = [](const QColor &grey) { return std::pow(grey.greenF(), 2.2) + 0.05; };
    for (const QColor &window : {QColor(50, 50, 50), QColor(239, 239, 239)}) {
        BoxStyle style(u"Fusion"_s);
        QMenu menu;
        menu.setStyle(&style);
        menu.setPalette(QPalette(window));
        menu.addAction(u"x"_s)->setCheckable(true);
        const QImage picture = menu.grab().toImage();
        const QRect entry = menu.actionGeometry(menu.actions().front());
        const double paper = luminance(picture.pixelColor(entry.right() - 3, entry.center().y()));
        double contrast = 1;
        for (int x = entry.left(); x < entry.left() + entry.height(); ++x) {
            const double ink = luminance(picture.pixelColor(x, entry.center().y()));
            contrast = std::max({contrast, ink / paper, paper / ink});
        }
        EXPECT_GE(contrast, 3) << qPrintable(window.name());
    }
}
