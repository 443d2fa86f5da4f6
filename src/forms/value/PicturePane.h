#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// Shows a picture, scaled down if it does not fit.
class PicturePane final : public QWidget
{
    Q_OBJECT

public:
    explicit PicturePane(const QImage &picture, QWidget *parent = nullptr);

    // Null if the bytes are not a picture, or one that is too large to be shown.
    static QImage pictureIn(const QByteArray &bytes);
    // "PNG"; empty if they are not a picture.
    static QString formatOf(const QByteArray &bytes);

    QSize sizeHint() const override { return m_picture.deviceIndependentSize().toSize(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QImage m_picture;
};

} // namespace KOVAVSFDataGridLib
