#include "query/SharedValues.h"

namespace KOVAVSFDataGridLib {

SharedValues &SharedValues::instance()
{
    static SharedValues values;
    return values;
}

} // namespace KOVAVSFDataGridLib
