#pragma once

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// A background that runs from a tint of the highlight colour on the left into the window's colour. It takes
// its colours from the palette, so it follows the user's theme, and can carry a layout.
class GradualControl final : public QWidget
{
    Q_OBJECT

public:
    explicit GradualControl(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
