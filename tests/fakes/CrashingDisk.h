// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <map>
#include <random>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The system calls on the files of one folder. One of them can be made to fail, to do only a part, or to be
// the last one. With the last one the power may fail too: then part of what was not synced is lost.
class CrashingDisk : public FileCalls {
public:
    struct Crash {};
    enum class Fault { None, Fails, FallsShort, Crashes };

    explicit CrashingDisk(QString folder)
        : m_folder(std::move(folder)) {}

    // From now on the `number`-th call (from 1) goes wrong, once. Restarts the count.
    void arm(Fault fault, int number, int error = EIO) {
        m_fault = fault;
        m_faultAt = number;
        m_error = error;
        calls = 0;
        happened = false;
    }

    // These calls answer with this error until it is set to 0.
    // How many calls in a row fail.
    int failing = 1;
    int allocateError = 0;
    int copyRangeError = 0;
    // Since the last arm().
    int calls = 0;
    bool happened = false;
    bool hasCrashed() const { return happened && m_fault == Fault::Crashes; }

    // The disk after a power cut: what was synced and, by chance, more of it, block by block.
    void losePower(std::mt19937& chance) {
        const std::map<QString, File> current = currentNames();
        std::map<ino_t, File> files;
        for (const auto& [name, file] : current)
            files[file.inode] = file;
        std::map<QString, File> after;
        for (const auto& [name, file] : chance() % 2 ? m_durableNames : current) {
            // A file whose removal was not synced has its old content.
            const auto found = files.find(file.inode);
            after[name] = mixed(m_durable[file.inode], found == files.end() ? file : found->second, chance);
        }
        for (const QString& name : QDir(m_folder).entryList(QDir::Files))
            QFile::remove(path(name));
        for (const auto& [name, file] : after)
            put(name, file);
    }

    // Makes everything on the disk permanent.
    void settle() {
        m_durableNames = currentNames();
        m_durable.clear();
        for (const auto& [name, file] : m_durableNames)
            m_durable[file.inode] = file;
    }

    // For who writes by other calls. Whether `path` lies in the folder, and what has become of a file there.
    bool has(const QString& path) const { return path.startsWith(m_folder + u'/'); }
    void noteCreated(const QString& path) { m_durable.erase(contentOf(path).inode); }
    void noteSynced(const QString& path) {
        const File file = contentOf(path);
        m_durable[file.inode] = file;
    }
    void noteFolderSynced() { m_durableNames = currentNames(); }
    // Counts a call, and answers whether it may be done. Throws Crash, with a part of it done.
    template<class Part>
    bool step(Part&& part) {
        return !begins(false, std::forward<Part>(part));
    }

    int open(const char* path, int flags, mode_t mode) override {
        return begins() ? -1 : FileCalls::open(path, flags, mode);
    }

    ssize_t write(int file, const void* bytes, std::size_t count) override {
        const bool isShort = fallsShort();
        if (begins(isShort, [&] { FileCalls::write(file, bytes, count / 2); }))
            return -1;
        return FileCalls::write(file, bytes, isShort ? (count + 1) / 2 : count);
    }

    ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t offset) override {
        const bool isShort = fallsShort();
        if (begins(isShort, [&] { FileCalls::pwrite(file, bytes, count / 2, offset); }))
            return -1;
        return FileCalls::pwrite(file, bytes, isShort ? (count + 1) / 2 : count, offset);
    }

    ssize_t copyRange(int from, int to, off_t offset, std::size_t count) override {
        const bool isShort = fallsShort();
        if (begins(isShort, [&] { FileCalls::copyRange(from, to, offset, count / 2); }) ||
            refused(copyRangeError))
            return -1;
        return FileCalls::copyRange(from, to, offset, isShort ? (count + 1) / 2 : count);
    }

    int allocate(int file, off_t size) override {
        return begins() || refused(allocateError) ? -1 : FileCalls::allocate(file, size);
    }

    int truncate(int file, off_t size) override { return begins() ? -1 : FileCalls::truncate(file, size); }

    int sync(int file) override {
        if (begins())
            return -1;

        struct stat status {};

        ::fstat(file, &status);
        if (S_ISDIR(status.st_mode))
            m_durableNames = currentNames();
        else
            m_durable[status.st_ino] = contentOf(QStringLiteral("/proc/self/fd/%1").arg(file));
        // The real disk is not synced: that would only cost time.
        return 0;
    }

    int rename(const char* from, const char* to) override {
        return begins() ? -1 : FileCalls::rename(from, to);
    }

    int remove(const char* path) override { return begins() ? -1 : FileCalls::remove(path); }

private:
    struct File {
        ino_t inode = 0;
        QByteArray content;
        timespec written{};
    };

    static constexpr qsizetype kBlock = 512;

    bool fallsShort() const { return m_fault == Fault::FallsShort && calls + 1 == m_faultAt; }

    static bool refused(int error) {
        errno = error;
        return error != 0;
    }

    // Counts the call and answers whether it fails. In a crash, part of it may still be done.
    template<class Part = void (*)()>
    bool begins(
        bool isShort = false, Part&& part = [] {}) {
        ++calls;
        if (m_fault == Fault::Crashes && calls >= m_faultAt) {
            if (!std::exchange(happened, true))
                part();
            throw Crash();
        }
        if (calls < m_faultAt || calls >= m_faultAt + failing)
            return false;
        happened = isShort || m_fault == Fault::Fails;
        errno = m_error;
        return m_fault == Fault::Fails;
    }

    QString path(const QString& name) const { return m_folder + u'/' + name; }

    static File contentOf(const QString& path) {
        struct stat status {};

        ::stat(QFile::encodeName(path).constData(), &status);
        QFile file(path);
        return {status.st_ino, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(),
                status.st_mtim};
    }

    std::map<QString, File> currentNames() const {
        std::map<QString, File> names;
        for (const QString& name : QDir(m_folder).entryList(QDir::Files))
            names[name] = contentOf(path(name));
        return names;
    }

    static File mixed(const File& durable, const File& current, std::mt19937& chance) {
        File file = current;
        if (chance() % 2)
            file.content.resize(durable.content.size(), '\0');
        for (qsizetype at = 0; at < file.content.size(); at += kBlock) {
            if (chance() % 2)
                continue;
            const qsizetype count = std::min({kBlock, file.content.size() - at, durable.content.size() - at});
            if (count > 0)
                file.content.replace(at, count, durable.content.mid(at, count));
        }
        if (file.content == durable.content)
            file.written = durable.written;
        return file;
    }

    void put(const QString& name, const File& content) {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content.content) != content.content.size())
            throw std::runtime_error("the disk after the crash cannot be made");
        file.close();
        const timespec times[2] = {content.written, content.written};
        ::utimensat(AT_FDCWD, QFile::encodeName(path(name)).constData(), times, 0);
    }

    QString m_folder;
    Fault m_fault = Fault::None;
    int m_faultAt = 0;
    int m_error = EIO;
    std::map<QString, File> m_durableNames;
    std::map<ino_t, File> m_durable;
};
