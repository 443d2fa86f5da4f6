#pragma once

#include <QtCore/QByteArray>
#include <QtWidgets/QAbstractScrollArea>

namespace KOVAVSFDataGridLib {

// Shows bytes in hexadecimal and as ASCII, 16 per line. Only the visible lines are generated.
class HexPane final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit HexPane(const QByteArray &bytes, QWidget *parent = nullptr);

    static QString line(const QByteArray &bytes, qsizetype number);
    QSize sizeHint() const override; // as wide as a line

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    int widthOfLine() const;

    const QByteArray m_bytes;
};

} // namespace KOVAVSFDataGridLib
