#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What a session reports to the host of its control, and asks of it.
class HostEvents
{
public:
    // SQLFilter was written.
    virtual void filterWritten() = 0;
    // QurryFilter: the host may change `cancel` and write PassQurryFilter.
    virtual void askFilter(qint32 &cancel, const QString &base) = 0;
    // ShowFieldsChange.
    virtual void fieldsChanged(const QString &statement) = 0;
    // The control's Refresh.
    virtual void refresh() = 0;

protected:
    ~HostEvents() = default;
};

} // namespace KOVAVSFDataGridLib
