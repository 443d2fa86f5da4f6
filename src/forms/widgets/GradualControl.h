#pragma once

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// A plain background in the colour of the window, like that of all other dialogs. It can carry a layout.
class GradualControl final : public QWidget
{
    Q_OBJECT

public:
    explicit GradualControl(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
