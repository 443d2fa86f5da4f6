#include "control/face/PropertyBag.h"

namespace KOVAVSFDataGridLib {

PropertyBag::~PropertyBag() = default;

} // namespace KOVAVSFDataGridLib
