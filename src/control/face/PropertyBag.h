#pragma once

#include "../../KovaExport.h"

#include <QtCore/QVariant>

namespace KOVAVSFDataGridLib {

// What a container gives the control to keep its design-time values in. Implemented by the container.
class KOVA_EXPORT PropertyBag
{
public:
    PropertyBag() = default;
    virtual ~PropertyBag();
    Q_DISABLE_COPY_MOVE(PropertyBag)

    // The value kept under `name`, or `byDefault` when there is none.
    virtual QVariant ReadProperty(const QString &name, const QVariant &byDefault) const = 0;
    // Keeps `value`; a container may leave out one that equals `byDefault`.
    virtual void WriteProperty(const QString &name, const QVariant &value, const QVariant &byDefault) = 0;
};

} // namespace KOVAVSFDataGridLib
