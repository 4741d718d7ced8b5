// SPDX-License-Identifier: MIT
#include "Classes/record/FileCalls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

FileCalls& FileCalls::system() {
    static FileCalls calls;
    return calls;
}

int FileCalls::open(const char* path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
}

int FileCalls::status(const char* path, struct stat& status) {
    return ::lstat(path, &status);
}

ssize_t FileCalls::write(int file, const void* bytes, std::size_t count) {
    return ::write(file, bytes, count);
}

ssize_t FileCalls::pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
    return ::pwrite(file, bytes, count, offset);
}

ssize_t FileCalls::copyRange(int from, int to, off_t offset, std::size_t count) {
    off64_t read = offset;
    off64_t written = offset;
    return ::copy_file_range(from, &read, to, &written, count, 0);
}

int FileCalls::allocate(int file, off_t size) {
    struct stat before {};

    if (::fstat(file, &before) != 0)
        return -1;
    const int result = ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size);
    const int error = errno;
    // Kernels change the file's time even if they refuse, so it is set back.
    const timespec times[2] = {{0, UTIME_OMIT}, before.st_mtim};
    ::futimens(file, times);
    errno = error;
    return result;
}

int FileCalls::truncate(int file, off_t size) {
    return ::ftruncate(file, size);
}

int FileCalls::sync(int file) {
    return ::fsync(file);
}

int FileCalls::rename(const char* from, const char* to) {
    return ::rename(from, to);
}

int FileCalls::remove(const char* path) {
    return ::unlink(path);
}
