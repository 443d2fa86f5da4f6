#include "control/PropertyBag.h"

namespace KOVAVSFDataGridLib {

PropertyBag::~PropertyBag() = default;

} // namespace KOVAVSFDataGridLib
