#pragma once

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// A plain background in the window's colour, as in all other dialogs. It can have a layout.
class GradualControl final : public QWidget
{
    Q_OBJECT

public:
    explicit GradualControl(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
