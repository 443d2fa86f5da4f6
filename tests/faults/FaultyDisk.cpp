#include "FaultyDisk.h"

#include <sqlite3.h>

#include <new>

namespace KovaTest::FaultyDisk {

namespace {

sqlite3_vfs *usual = nullptr;
int left = 0; // calls until one fails; 0 while none is to
Fault kind = Fault::Error;
bool staysBroken = false;
bool failed = false;

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

// SQLite allocates space for `real` after it.
struct File
{
    sqlite3_file base;
    sqlite3_file *real;
};

sqlite3_file *realOf(sqlite3_file *file)
{
    return reinterpret_cast<File *>(file)->real;
}

template<typename... Arguments>
int call(int error, sqlite3_file *file, int (*sqlite3_io_methods::*method)(sqlite3_file *, Arguments...),
         Arguments... arguments)
{
    if (fails())
        return error;
    sqlite3_file *const real = realOf(file);
    return (real->pMethods->*method)(real, arguments...);
}

// Closing and unlocking do not fail in a way that anybody could do something about.
int closeFile(sqlite3_file *file)
{
    sqlite3_file *const real = realOf(file);
    return real->pMethods->xClose(real);
}

int unlock(sqlite3_file *file, int lock)
{
    sqlite3_file *const real = realOf(file);
    return real->pMethods->xUnlock(real, lock);
}

int readFile(sqlite3_file *file, void *to, int size, sqlite3_int64 from)
{
    return call(SQLITE_IOERR_READ, file, &sqlite3_io_methods::xRead, to, size, from);
}

int writeFile(sqlite3_file *file, const void *from, int size, sqlite3_int64 to)
{
    return call(kind == Fault::Full ? SQLITE_FULL : SQLITE_IOERR_WRITE, file, &sqlite3_io_methods::xWrite,
                from, size, to);
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    return call(SQLITE_IOERR_TRUNCATE, file, &sqlite3_io_methods::xTruncate, size);
}

int syncFile(sqlite3_file *file, int flags)
{
    return call(SQLITE_IOERR_FSYNC, file, &sqlite3_io_methods::xSync, flags);
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return call(SQLITE_IOERR_FSTAT, file, &sqlite3_io_methods::xFileSize, size);
}

int lock(sqlite3_file *file, int level)
{
    return call(SQLITE_IOERR_LOCK, file, &sqlite3_io_methods::xLock, level);
}

int checkReservedLock(sqlite3_file *file, int *result)
{
    return call(SQLITE_IOERR_CHECKRESERVEDLOCK, file, &sqlite3_io_methods::xCheckReservedLock, result);
}

int fileControl(sqlite3_file *file, int what, void *argument)
{
    sqlite3_file *const real = realOf(file);
    return real->pMethods->xFileControl(real, what, argument);
}

int sectorSize(sqlite3_file *file)
{
    sqlite3_file *const real = realOf(file);
    return real->pMethods->xSectorSize(real);
}

int deviceCharacteristics(sqlite3_file *file)
{
    sqlite3_file *const real = realOf(file);
    return real->pMethods->xDeviceCharacteristics(real);
}

constexpr sqlite3_io_methods methods{
    1,       closeFile,         readFile,    writeFile,  truncateFile,          syncFile, fileSize, lock,
    unlock,  checkReservedLock, fileControl, sectorSize, deviceCharacteristics, nullptr,  nullptr,  nullptr,
    nullptr, nullptr,           nullptr};

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    auto *const faulty =
        new (file) File{{nullptr}, reinterpret_cast<sqlite3_file *>(reinterpret_cast<File *>(file) + 1)};
    if (fails())
        return SQLITE_CANTOPEN;
    const int code = usual->xOpen(usual, name, faulty->real, flags, outFlags);
    if (code == SQLITE_OK)
        faulty->base.pMethods = &methods;
    return code;
}

int deleteFile(sqlite3_vfs *, const char *name, int sync)
{
    return fails() ? SQLITE_IOERR_DELETE : usual->xDelete(usual, name, sync);
}

int access(sqlite3_vfs *, const char *name, int flags, int *result)
{
    return fails() ? SQLITE_IOERR_ACCESS : usual->xAccess(usual, name, flags, result);
}

} // namespace

void install()
{
    usual = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs faulty = *usual;
    faulty.zName = "faulty";
    faulty.szOsFile = static_cast<int>(sizeof(File)) + usual->szOsFile;
    faulty.xOpen = openFile;
    faulty.xDelete = deleteFile;
    faulty.xAccess = access;
    sqlite3_vfs_register(&faulty, 1);
}

void failAt(int call, Fault fault, bool stays)
{
    failed = false;
    kind = fault;
    staysBroken = stays;
    left = call;
}

void stopFailing()
{
    left = 0;
}

bool hasFailed()
{
    return failed;
}

} // namespace KovaTest::FaultyDisk
