// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

// The system calls that write a store. Tests replace them, to make each one fail, fall short, or be the last
// before a crash. All answer as the system does: -1, with the reason in errno.
class FileCalls {
public:
    virtual ~FileCalls() = default;

    // The real ones.
    static FileCalls& system();

    virtual int open(const char* path, int flags, mode_t mode);
    // Of a link: the status of the link itself, not of its target.
    virtual int status(const char* path, struct stat& status);
    virtual ssize_t write(int file, const void* bytes, std::size_t count);
    virtual ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t offset);
    // Copies from one file to the same offset of another.
    virtual ssize_t copyRange(int from, int to, off_t offset, std::size_t count);
    // Makes sure that the first `size` bytes have room on the disk, without changing the file's size or the
    // time when it was last written.
    virtual int allocate(int file, off_t size);
    virtual int truncate(int file, off_t size);
    virtual int sync(int file);
    virtual int rename(const char* from, const char* to);
    virtual int remove(const char* path);
};
