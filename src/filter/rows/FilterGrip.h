#pragma once

#include <QtWidgets/QAbstractButton>

namespace KOVAVSFDataGridLib {

// The handle for moving a line of a tree: by dragging it, or with the arrow keys.
class FilterGrip final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FilterGrip(QWidget *parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    // By keys: one line up (-1) or down (1).
    void stepped(int by);
    // By mouse; in screen coordinates.
    void dragged(const QPoint &place);
    void dropped(const QPoint &place);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isDragging = false;
};

} // namespace KOVAVSFDataGridLib
