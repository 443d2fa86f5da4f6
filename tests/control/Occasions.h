#pragma once

#include "control/face/KOVAVSFDataGrid.h"

#include <ostream>
#include <vector>

namespace KovaTest {

// Causes the event, as the user or the host does. It is an event of the control or of its data control.
// `prepare` runs before the handler is connected.
struct Occasion
{
    const char *event;
    const char *name;
    void (*cause)(KOVAVSFDataGrid &grid);
    void (*prepare)(KOVAVSFDataGrid &grid) = [](KOVAVSFDataGrid &) {};
};

// One for each event and each way in which a user or a host brings it about, on a result of several records.
const std::vector<Occasion> &occasions();
std::ostream &operator<<(std::ostream &stream, const Occasion &occasion);

void clickCell(KOVAVSFDataGrid &grid);

} // namespace KovaTest
