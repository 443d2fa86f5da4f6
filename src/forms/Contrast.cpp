#include "forms/Contrast.h"

#include <QtCore/QEvent>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

// The relative luminance defined by WCAG 2.
double luminance(const QColor &colour)
{
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// The palest mixture of text and background that is readable on both windows and text boxes.
QColor hintColour(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    for (int percent = 50; percent < 100; percent += 2) {
        const QColor candidate = blended(text, base, percent / 100.0);
        if (contrast(candidate, window) >= leastTextContrast &&
            contrast(candidate, base) >= leastTextContrast)
            return candidate;
    }
    return text;
}

void applyHintColour(QWidget &widget)
{
    const QColor wanted = hintColour(widget.palette());
    if (widget.palette().color(QPalette::Active, QPalette::PlaceholderText) == wanted)
        return;
    QPalette palette = widget.palette();
    palette.setColor(QPalette::PlaceholderText, wanted);
    widget.setPalette(palette);
}

class HintColour final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange)
            applyHintColour(*static_cast<QWidget *>(watched));
        return false;
    }
};

// The contrast of the lines that Qt's own style draws around square and round boxes, where a palette has that
// Window, to what is beside them.
double visibilityOfBoxes(const QColor &window, const QColor &beside)
{
    return std::min(contrast(window.darker(140).lighter(110), beside), contrast(window.darker(150), beside));
}

} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor blended(const QColor &top, const QColor &bottom, double share)
{
    const auto channel = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {channel(top.red(), bottom.red()), channel(top.green(), bottom.green()),
            channel(top.blue(), bottom.blue())};
}

void makeHintsReadable(QWidget &widget)
{
    applyHintColour(widget);
    widget.installEventFilter(new HintColour(&widget));
}

void makeBoxVisible(QPalette &palette)
{
    // Boxes are on windows and in lists, and are filled like lists. Round lines are smoothed, which costs a
    // part of their contrast.
    constexpr double wanted = leastPictureContrast * 1.5;
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::WindowText);
    // Every box of every repaint asks, nearly always for the same colours.
    static std::array<QColor, 4> last; // these three, and what was found for them
    if (last[0] == window && last[1] == base && last[2] == text)
        return palette.setColor(QPalette::Window, last[3]);
    const auto visibility = [&](const QColor &candidate) {
        return std::min(visibilityOfBoxes(candidate, window), visibilityOfBoxes(candidate, base));
    };
    QColor best = window;
    // The palest that will do. Where even the text's colour doesn't, its opposite does.
    for (const QColor end : {text, QColor(Qt::black), QColor(Qt::white)}) {
        for (int percent = 0; percent <= 100 && visibility(best) < wanted; percent += 4) {
            if (const QColor mixed = blended(end, window, percent / 100.0);
                visibility(mixed) > visibility(best))
                best = mixed;
        }
    }
    last = {window, base, text, best};
    palette.setColor(QPalette::Window, best);
}

} // namespace KOVAVSFDataGridLib
