#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>

class KOVAVSFDataGrid;

// The first picture in the current record, as large as possible.
class PicturePane : public QLabel
{
    Q_OBJECT

public:
    explicit PicturePane(QWidget *parent = nullptr);

    void showRecordOf(const KOVAVSFDataGrid &grid);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QPixmap m_picture;
};
