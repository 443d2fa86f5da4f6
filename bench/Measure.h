#pragma once

#include <QtCore/QElapsedTimer>

#include <algorithm>

constexpr int timesMeasured = 3;

// The best of several runs, in milliseconds.
template<typename Work>
double measure(Work work, int runs = timesMeasured)
{
    double best = 1e12;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}
