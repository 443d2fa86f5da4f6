#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What a session reports to the host of its control and asks it. The default implementation ignores
// everything.
class HostEvents
{
public:
    HostEvents() = default;
    virtual ~HostEvents() = default;
    Q_DISABLE_COPY_MOVE(HostEvents)

    // SQLFilter was set.
    virtual void filterWritten() {}
    // QurryFilter: the host may change `cancel` and set PassQurryFilter.
    virtual void askFilter(qint32 & /*cancel*/, const QString & /*base*/) {}
    // ShowFieldsChange.
    virtual void fieldsChanged(const QString & /*statement*/) {}
    // The control's Refresh.
    virtual void refresh() {}
};

} // namespace KOVAVSFDataGridLib
