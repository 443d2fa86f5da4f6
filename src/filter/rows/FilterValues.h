#pragma once

#include <QtWidgets/QWidget>

#include <vector>

class QCheckBox;
class QLabel;

namespace KOVAVSFDataGridLib {

class ValueEdit;

// The values of a condition and the check box for records without one: side by side if there is enough room
// for typing, else one below another. The height is adjusted.
class FilterValues final : public QWidget
{
    Q_OBJECT

public:
    struct Parts
    {
        ValueEdit *first;
        QLabel *to;
        ValueEdit *last;
        QCheckBox *withNull;
    };

    // The parts become children; hidden ones take no room.
    FilterValues(const Parts &parts, int lineHeight, QWidget *parent);

    // Call it when a part was shown or hidden, or its size hint has changed.
    void arrange();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Place
    {
        QWidget *before = nullptr; // a word
        QWidget *part = nullptr;
        int wanted = 0; // preferred width of both
        bool grows = true;
    };

    int gap() const;
    std::vector<Place> places() const;
    void placeLine(const std::vector<Place> &line, int top) const;

    Parts m_parts;
    int m_lineHeight;
};

} // namespace KOVAVSFDataGridLib
