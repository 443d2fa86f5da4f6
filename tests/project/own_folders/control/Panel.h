#pragma once

#include <ado/Recordset.h>

namespace Host {

struct Panel
{
    Recordset recordset;
};

} // namespace Host
