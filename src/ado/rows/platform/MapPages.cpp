#include "ado/rows/platform/MapPages.h"

#include <QtCore/QtGlobal>

#ifdef Q_OS_LINUX
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace ADODB {

void mapPages(const char *from, const char *to)
{
#if defined(Q_OS_LINUX) && defined(MADV_POPULATE_WRITE)
    static const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t before = reinterpret_cast<std::uintptr_t>(from) % page;
    const std::uintptr_t behind = reinterpret_cast<std::uintptr_t>(to) % page;
    // Without the memory, or before Linux 5.14, the pages come one by one.
    if (to - behind > from - before)
        static_cast<void>(madvise(const_cast<char *>(from - before),
                                  static_cast<std::size_t>((to - behind) - (from - before)),
                                  MADV_POPULATE_WRITE));
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
#endif
}

} // namespace ADODB
