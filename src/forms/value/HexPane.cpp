#include "forms/value/HexPane.h"

#include "forms/FormTexts.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <limits>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype bytesOfLine = 16;
constexpr int charactersOfLine = 8 + 2 + 3 * 16 + 2 + 16;
constexpr int margin = 4; // pixels at 96 DPI

} // namespace

HexPane::HexPane(const QByteArray &bytes, QWidget *parent) : QAbstractScrollArea(parent), m_bytes(bytes)
{
    setObjectName(u"HexPane"_s);
    setAccessibleName(FormTexts::HexTab);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
}

QString HexPane::line(const QByteArray &bytes, qsizetype number)
{
    const QByteArray part = bytes.mid(number * bytesOfLine, bytesOfLine);
    QString ascii;
    for (const char byte : part)
        ascii += byte >= ' ' && byte <= '~' ? QLatin1Char(byte) : QLatin1Char('.');
    const QString digits = QString::fromLatin1(part.toHex(' ')).toUpper();
    return u"%1  %2  %3"_s.arg(number * bytesOfLine, 8, 16, QLatin1Char('0'))
        .arg(digits, -static_cast<int>(3 * bytesOfLine - 1))
        .arg(ascii);
}

int HexPane::widthOfLine() const
{
    return charactersOfLine * fontMetrics().horizontalAdvance(u'0') + 2 * margin;
}

QSize HexPane::sizeHint() const
{
    const int around = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return {widthOfLine() + around, QAbstractScrollArea::sizeHint().height()};
}

void HexPane::resizeEvent(QResizeEvent *)
{
    const int inView = std::max(1, viewport()->height() / fontMetrics().height());
    const qsizetype lines = (m_bytes.size() + bytesOfLine - 1) / bytesOfLine;
    constexpr qsizetype mostLines = std::numeric_limits<int>::max();
    verticalScrollBar()->setPageStep(inView);
    verticalScrollBar()->setRange(0, static_cast<int>(std::clamp<qsizetype>(lines - inView, 0, mostLines)));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().horizontalAdvance(u'0'));
    horizontalScrollBar()->setRange(0, std::max(0, widthOfLine() - viewport()->width()));
}

void HexPane::scrollContentsBy(int, int)
{
    viewport()->update();
}

void HexPane::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const int height = fontMetrics().height();
    qsizetype number = verticalScrollBar()->value();
    const int x = margin - horizontalScrollBar()->value();
    for (int y = fontMetrics().ascent();
         y < viewport()->height() + height && number * bytesOfLine < m_bytes.size(); y += height)
        painter.drawText(x, y, line(m_bytes, number++));
}

} // namespace KOVAVSFDataGridLib
