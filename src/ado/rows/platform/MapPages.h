#pragma once

namespace ADODB {

// Has the system provide the pages of new memory with one call, before they are written to. Otherwise each
// page costs an interrupt when it is first touched. The contents don't change. Where the system doesn't
// support it, nothing happens.
void mapPages(const char *from, const char *to);

} // namespace ADODB
