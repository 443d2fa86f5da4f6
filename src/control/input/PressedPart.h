#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QMouseEvent;

namespace KOVAVSFDataGridLib {

class GridParts;

// The part of the control on which the right button went down. Qt has it in hand until it has offered it the
// context menu (which on Windows is as late as the release), even when a host deletes the control before.
class PressedPart final : public QObject
{
    Q_OBJECT

public:
    // Make it after all others that watch the parts, so that it sees their events first.
    explicit PressedPart(const GridParts &parts);
    // Lets the part outlive the control until the event loop runs again.
    ~PressedPart() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_part;
};

} // namespace KOVAVSFDataGridLib
