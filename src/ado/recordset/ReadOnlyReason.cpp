#include "ado/recordset/ReadOnlyReason.h"

#include "ado/Texts.h"

namespace ADODB {

QString readOnlyReason(KOVAVSFDataGridLib::SimpleSelect::Fault fault)
{
    using Fault = KOVAVSFDataGridLib::SimpleSelect::Fault;
    switch (fault) {
    case Fault::Distinct:
        return Texts::readOnlyDistinct();
    case Fault::Compound:
        return Texts::readOnlyCompound();
    case Fault::Grouped:
        return Texts::readOnlyGrouped();
    case Fault::NoTable:
        return Texts::readOnlyNoTable();
    case Fault::Join:
        return Texts::readOnlyJoin();
    case Fault::None:
        break;
    }
    return {};
}

} // namespace ADODB
