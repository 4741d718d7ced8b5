// SPDX-License-Identifier: MIT
#include "helpers/TKAXTrusted/ProgramCheck.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number)
        : m_number(number) {}

    Descriptor(const Descriptor&) = delete;

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }

    ~Descriptor() {
        if (m_number >= 0)
            ::close(m_number);
    }

    int number() const { return m_number; }

private:
    int m_number;
};

Failure refused(const QString& path, const char* why) {
    return {Failure::Kind::Refused, QStringLiteral("%1: %2").arg(path, QLatin1String(why))};
}

// Characters that a dialogue shows as nothing, as a new line, or in another order: a person would agree to
// another path than the one shown.
bool isUnseen(char32_t character) {
    // Fillers and variation selectors, which Unicode counts among letters and marks.
    constexpr std::pair<char32_t, char32_t> kIgnored[] = {
        {0x034F, 0x034F}, {0x115F, 0x1160}, {0x17B4, 0x17B5}, {0x180B, 0x180F},  {0x2800, 0x2800},
        {0x3164, 0x3164}, {0xFE00, 0xFE0F}, {0xFFA0, 0xFFA0}, {0xE0100, 0xE01EF}};
    if (std::ranges::any_of(kIgnored, [&](const auto& range) {
            return character >= range.first && character <= range.second;
        }))
        return true;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Other_PrivateUse:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

// A dialogue may take the path for markup, and then show another one.
bool isMarkup(char32_t character) {
    return character == U'<' || character == U'>' || character == U'&';
}

bool belongsTo(const struct stat& what, uid_t caller) {
    return what.st_uid == 0 || what.st_uid == caller;
}

Outcome checkFolder(const QString& path, const struct stat& folder, uid_t caller) {
    if (!S_ISDIR(folder.st_mode))
        return refused(path, "not a folder");
    if (!belongsTo(folder, caller))
        return refused(path, "the folder belongs to somebody else");
    // In a sticky folder nobody can replace the files of others.
    if ((folder.st_mode & S_IWOTH) && !(folder.st_mode & S_ISVTX))
        return refused(path, "everybody may write to the folder");
    return Done{};
}

Outcome checkFile(const QString& path, const struct stat& file, uid_t caller) {
    if (!S_ISREG(file.st_mode))
        return refused(path, "not an ordinary file");
    if (!belongsTo(file, caller))
        return refused(path, "belongs to somebody else");
    if (!(file.st_mode & S_IXUSR))
        return refused(path, "not executable");
    if (file.st_mode & S_IWOTH)
        return refused(path, "everybody may write to it");
    if ((file.st_mode & S_IWGRP) && file.st_gid != 0)
        return refused(path, "its group may write to it");
    return Done{};
}

// Opens without following links: a link itself is opened. Needs no right to read.
Outcome look(int parent, const QString& part, const QString& path, Descriptor& opened, struct stat& what) {
    opened =
        Descriptor(::openat(parent, QFile::encodeName(part).constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (opened.number() < 0 || ::fstat(opened.number(), &what) != 0)
        return refused(path, std::strerror(errno));
    if (S_ISLNK(what.st_mode))
        return refused(path, "a link");
    return Done{};
}

} // namespace

Outcome checkForm(const QString& path) {
    // Checked first, because the other failures repeat the path.
    if (path.size() >= PATH_MAX || path.toUtf8().size() >= PATH_MAX)
        return Failure{Failure::Kind::Refused, QStringLiteral("the path is too long")};
    if (!path.startsWith(u'/'))
        return refused(path, "not a full path");
    if (std::ranges::any_of(path.toUcs4(), isUnseen))
        return Failure{Failure::Kind::Refused,
                       QStringLiteral("the path holds characters that cannot be seen")};
    if (std::ranges::any_of(path.toUcs4(), isMarkup))
        return Failure{Failure::Kind::Refused,
                       QStringLiteral("the path holds characters that a dialogue may take for markup")};
    for (const QString& part : path.mid(1).split(u'/'))
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String(".."))
            return refused(path, "not the shortest path");
    return Done{};
}

Outcome checkProgram(const QString& path, uid_t caller) {
    if (const Outcome formed = checkForm(path); !formed)
        return formed;
    struct stat what {};
    Descriptor here(-1);
    QString walked = QStringLiteral("/");
    if (const Outcome root = look(AT_FDCWD, walked, walked, here, what); !root)
        return root;
    const QStringList parts = path.mid(1).split(u'/');
    for (const QString& part : parts) {
        if (const Outcome folder = checkFolder(walked, what, caller); !folder)
            return folder;
        walked += (walked.endsWith(u'/') ? QString() : QStringLiteral("/")) + part;
        Descriptor next(-1);
        if (const Outcome looked = look(here.number(), part, walked, next, what); !looked)
            return looked;
        here = std::move(next);
    }
    return checkFile(path, what, caller);
}
