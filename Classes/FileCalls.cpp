// SPDX-License-Identifier: MIT
#include "Classes/FileCalls.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

FileCalls& FileCalls::system() {
    static FileCalls calls;
    return calls;
}

int FileCalls::open(const char* path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
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
    return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size);
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
