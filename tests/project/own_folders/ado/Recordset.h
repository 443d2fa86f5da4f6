#pragma once

namespace Host {

struct Recordset
{
    int records = 2;
};

} // namespace Host
