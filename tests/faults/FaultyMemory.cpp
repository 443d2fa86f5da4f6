#include "FaultyMemory.h"

#include <sqlite3.h>

#include <cstdlib>
#include <new>

namespace KovaTest::FaultyMemory {

namespace {

sqlite3_mem_methods usual;
thread_local qint64 left = 0; // requests until one fails; 0 while none is to
thread_local bool staysBroken = false;
thread_local bool failed = false;

bool fails()
{
    if (left == 0)
        return false;
    if (left > 1) {
        --left;
        return false;
    }
    failed = true;
    if (!staysBroken)
        left = 0;
    return true;
}

void *allocate(int size)
{
    return fails() ? nullptr : usual.xMalloc(size);
}

void *reallocate(void *memory, int size)
{
    return fails() ? nullptr : usual.xRealloc(memory, size);
}

} // namespace

void install()
{
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &usual);
    sqlite3_mem_methods faulty = usual;
    faulty.xMalloc = allocate;
    faulty.xRealloc = reallocate;
    sqlite3_config(SQLITE_CONFIG_MALLOC, &faulty);
    // Small requests must ask for memory too.
    sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0);
    sqlite3_initialize();
}

void failAt(qint64 request, bool stays)
{
    failed = false;
    staysBroken = stays;
    left = request;
}

void stopFailing()
{
    left = 0;
}

bool hasFailed()
{
    return failed;
}

} // namespace KovaTest::FaultyMemory

void *operator new(std::size_t size)
{
    if (KovaTest::FaultyMemory::fails())
        throw std::bad_alloc();
    if (void *const memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
