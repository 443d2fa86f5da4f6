#pragma once

#include "../../KovaExport.h"

#include <QtCore/QVariant>

namespace KOVAVSFDataGridLib {

// The place where a container stores the design-time values of a control. Containers implement it.
class KOVA_EXPORT PropertyBag
{
public:
    PropertyBag() = default;
    virtual ~PropertyBag();
    Q_DISABLE_COPY_MOVE(PropertyBag)

    // The value stored under `name`, or `byDefault` when there is none.
    virtual QVariant ReadProperty(const QString &name, const QVariant &byDefault) const = 0;
    // Stores `value`. A container need not store a value that equals `byDefault`.
    virtual void WriteProperty(const QString &name, const QVariant &value, const QVariant &byDefault) = 0;
};

} // namespace KOVAVSFDataGridLib
