#pragma once

#include <QtWidgets/QWidget>

#include <vector>

class QCheckBox;
class QLabel;

namespace KOVAVSFDataGridLib {

class ValueEdit;

// The values of a condition and the tick for records without one: side by side as far as there is room for
// what is typed into them, else one below the other. The height follows.
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

    // The parts become children; those that are hidden take no room.
    FilterValues(const Parts &parts, int lineHeight, QWidget *parent);

    // To be called when a part was shown or hidden, or offers something else.
    void arrange();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Place
    {
        QWidget *before = nullptr; // a word
        QWidget *part = nullptr;
        int wanted = 0; // width of both
        bool grows = true;
    };

    int gap() const;
    std::vector<Place> places() const;
    void placeLine(const std::vector<Place> &line, int top) const;

    Parts m_parts;
    int m_lineHeight;
};

} // namespace KOVAVSFDataGridLib
