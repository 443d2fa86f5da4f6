#include "filter/rows/FilterValues.h"

#include "filter/ValueEdit.h"
#include "forms/widgets/TextWidth.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

#include <algorithm>

namespace KOVAVSFDataGridLib {

FilterValues::FilterValues(const Parts &parts, int lineHeight, QWidget *parent)
    : QWidget(parent), m_parts(parts), m_lineHeight(lineHeight)
{
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_parts.first, m_parts.to, m_parts.last, m_parts.withNull}) {
        part->setParent(this);
        part->show();
    }
    // Room for a timestamp, the buttons beside it and the word before it. The same in every row, so that they
    // are aligned.
    constexpr int digits = 25;
    setMinimumWidth(widthOfDigits(*this, digits) + m_parts.to->sizeHint().width());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

int FilterValues::gap() const
{
    return std::max(fontMetrics().height() / 3, 4);
}

std::vector<FilterValues::Place> FilterValues::places() const
{
    std::vector<Place> places;
    if (!m_parts.first->isHidden())
        places.push_back({.part = m_parts.first, .wanted = m_parts.first->comfortableWidth()});
    if (!m_parts.last->isHidden())
        places.push_back(
            {.before = m_parts.to,
             .part = m_parts.last,
             .wanted = m_parts.to->sizeHint().width() + gap() + m_parts.last->comfortableWidth()});
    if (!m_parts.withNull->isHidden())
        places.push_back(
            {.part = m_parts.withNull, .wanted = m_parts.withNull->sizeHint().width(), .grows = false});
    return places;
}

void FilterValues::arrange()
{
    std::vector<Place> line;
    int used = 0;
    int top = 0;
    const auto endLine = [&] {
        placeLine(line, top);
        line.clear();
        used = 0;
    };
    for (const Place &place : places()) {
        if (!line.empty() && used + gap() + place.wanted > width()) {
            endLine();
            top += m_lineHeight + gap() / 2;
        }
        used += (line.empty() ? 0 : gap()) + place.wanted;
        line.push_back(place);
    }
    endLine();
    setFixedHeight(top + m_lineHeight);
}

// The parts that can grow share the remaining width.
void FilterValues::placeLine(const std::vector<Place> &line, int top) const
{
    int left = width();
    for (const Place &place : line)
        left -= place.wanted;
    left -= gap() * std::max(static_cast<int>(line.size()) - 1, 0);
    auto growing = static_cast<int>(std::ranges::count_if(line, &Place::grows));
    int x = 0;
    const auto put = [&](QWidget &part, int partWidth) {
        const int height = std::min(part.sizeHint().height(), m_lineHeight);
        part.setGeometry(x, top + (m_lineHeight - height) / 2, partWidth, height);
        x += partWidth + gap();
    };
    for (const Place &place : line) {
        int partWidth = std::min(place.wanted, width());
        if (place.grows) {
            const int share = left / growing--;
            partWidth += std::max(share, 0);
            left -= share;
        }
        if (place.before) {
            const int word = place.before->sizeHint().width();
            put(*place.before, word);
            partWidth -= word + gap();
        }
        put(*place.part, partWidth);
    }
}

void FilterValues::resizeEvent(QResizeEvent *)
{
    arrange();
}

} // namespace KOVAVSFDataGridLib
