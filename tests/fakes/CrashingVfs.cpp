// SPDX-License-Identifier: MIT
#include "tests/fakes/CrashingVfs.h"

#include <sqlite3.h>

#include <cstring>
#include <memory>

namespace {

CrashingDisk* currentDisk = nullptr;
sqlite3_vfs* theSystem = nullptr;

// Laid out as SQLite asks for: what is behind it belongs to the system's file.
struct File {
    sqlite3_file base;
    QString* path;
    // Its name is not in its folder for good yet.
    bool isNew;

    static File& of(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }
    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    const sqlite3_io_methods& calls() { return *real()->pMethods; }
};

// False from the crash on. `part` is what may still be done of it.
template<class Part = void (*)()>
bool counts(
    const QString& path, Part&& part = [] {}) {
    try {
        return !currentDisk->has(path) || currentDisk->step(part);
    } catch (const CrashingDisk::Crash&) {
        return false;
    }
}

int close(sqlite3_file* file) {
    File& self = File::of(file);
    delete std::exchange(self.path, nullptr);
    return self.calls().xClose(self.real());
}

int write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
    File& self = File::of(file);
    const auto some = [&] { self.calls().xWrite(self.real(), bytes, count / 2, offset); };
    if (!counts(*self.path, some))
        return errno == ENOSPC ? SQLITE_FULL : SQLITE_IOERR_WRITE;
    return self.calls().xWrite(self.real(), bytes, count, offset);
}

int truncate(sqlite3_file* file, sqlite3_int64 size) {
    File& self = File::of(file);
    return counts(*self.path) ? self.calls().xTruncate(self.real(), size) : SQLITE_IOERR_TRUNCATE;
}

int sync(sqlite3_file* file, int) {
    File& self = File::of(file);
    if (!counts(*self.path))
        return SQLITE_IOERR_FSYNC;
    if (!currentDisk->has(*self.path))
        return SQLITE_OK;
    // The real disk need not be waited for.
    currentDisk->noteSynced(*self.path);
    if (std::exchange(self.isNew, false))
        currentDisk->noteFolderSynced();
    return SQLITE_OK;
}

int remove(sqlite3_vfs*, const char* path, int isFolderSynced) {
    const QString name = QFile::decodeName(path);
    if (!counts(name))
        return SQLITE_IOERR_DELETE;
    const int code = theSystem->xDelete(theSystem, path, 0);
    if (isFolderSynced && currentDisk->has(name))
        currentDisk->noteFolderSynced();
    return code;
}

const sqlite3_io_methods kMethods{
    2, close,
    [](sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
        return File::of(file).calls().xRead(File::of(file).real(), bytes, count, offset);
    },
    write, truncate, sync,
    [](sqlite3_file* file, sqlite3_int64* size) {
        return File::of(file).calls().xFileSize(File::of(file).real(), size);
    },
    [](sqlite3_file* file, int kind) { return File::of(file).calls().xLock(File::of(file).real(), kind); },
    [](sqlite3_file* file, int kind) { return File::of(file).calls().xUnlock(File::of(file).real(), kind); },
    [](sqlite3_file* file, int* isReserved) {
        return File::of(file).calls().xCheckReservedLock(File::of(file).real(), isReserved);
    },
    [](sqlite3_file* file, int what, void* value) {
        return File::of(file).calls().xFileControl(File::of(file).real(), what, value);
    },
    [](sqlite3_file* file) { return File::of(file).calls().xSectorSize(File::of(file).real()); },
    [](sqlite3_file* file) { return File::of(file).calls().xDeviceCharacteristics(File::of(file).real()); },
    // Shared memory is on no disk.
    [](sqlite3_file* file, int page, int size, int isToGrow, void volatile** memory) {
        return File::of(file).calls().xShmMap(File::of(file).real(), page, size, isToGrow, memory);
    },
    [](sqlite3_file* file, int offset, int count, int flags) {
        return File::of(file).calls().xShmLock(File::of(file).real(), offset, count, flags);
    },
    [](sqlite3_file* file) { File::of(file).calls().xShmBarrier(File::of(file).real()); },
    [](sqlite3_file* file, int isToGo) {
        return File::of(file).calls().xShmUnmap(File::of(file).real(), isToGo);
    },
    nullptr, nullptr};

int open(sqlite3_vfs*, const char* path, sqlite3_file* file, int flags, int* given) {
    File& self = File::of(file);
    const QString name = path ? QFile::decodeName(path) : QString();
    const bool isNew = !name.isEmpty() && !QFile::exists(name);
    self.base.pMethods = nullptr;
    if (isNew && (flags & SQLITE_OPEN_CREATE) && !counts(name))
        return SQLITE_CANTOPEN;
    const int code = theSystem->xOpen(theSystem, path, self.real(), flags, given);
    if (code != SQLITE_OK)
        return code;
    self.path = new QString(name);
    self.isNew = isNew;
    if (isNew && currentDisk->has(name))
        currentDisk->noteCreated(name);
    self.base.pMethods = &kMethods;
    return SQLITE_OK;
}

sqlite3_vfs ours;

} // namespace

CrashingVfs::CrashingVfs(CrashingDisk& disk) {
    currentDisk = &disk;
    theSystem = sqlite3_vfs_find(nullptr);
    ours = *theSystem;
    ours.pNext = nullptr;
    ours.zName = "crashing";
    ours.szOsFile = int(sizeof(File)) + theSystem->szOsFile;
    ours.xOpen = open;
    ours.xDelete = remove;
    sqlite3_vfs_register(&ours, 1);
}

CrashingVfs::~CrashingVfs() {
    sqlite3_vfs_unregister(&ours);
    sqlite3_vfs_register(theSystem, 1);
    currentDisk = nullptr;
}
