#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QMouseEvent;

namespace KOVAVSFDataGridLib {

class GridParts;

// The part of the control that was right-clicked. Qt uses it until it has sent the context menu event (on
// Windows only after the release), even if a host deletes the control before.
class PressedPart final : public QObject
{
    Q_OBJECT

public:
    // Create it after all other event filters of the parts, so that it receives their events first.
    explicit PressedPart(const GridParts &parts);
    // Lets the part outlive the control until the event loop runs again.
    ~PressedPart() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_part;
};

} // namespace KOVAVSFDataGridLib
