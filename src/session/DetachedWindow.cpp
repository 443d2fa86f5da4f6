#include "session/DetachedWindow.h"

namespace KOVAVSFDataGridLib {

namespace {

class NoProgress final : public OpeningProgress
{
    bool goOn(qint64) override { return false; }
};

} // namespace

DetachedWindow &DetachedWindow::instance()
{
    static DetachedWindow window;
    return window;
}

std::unique_ptr<OpeningProgress> DetachedWindow::beginOpening()
{
    return std::make_unique<NoProgress>();
}

} // namespace KOVAVSFDataGridLib
