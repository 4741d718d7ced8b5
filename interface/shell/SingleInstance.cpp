// SPDX-License-Identifier: MIT
#include "interface/shell/SingleInstance.h"

#include "platform/foundation/CleanText.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kBacklog = 8;
// How long either side waits for the other's bytes. The first is busy now and then, never for long.
constexpr int kPatienceMs = 3000;
constexpr int kGuestPatienceMs = 500;
constexpr char kHeard = '+';

struct Address {
    sockaddr_un name{};
    socklen_t length = 0;
};

std::optional<Address> addressOf(const QByteArray& text) {
    Address address;
    address.name.sun_family = AF_UNIX;
    if (std::size_t(text.size()) >= sizeof address.name.sun_path)
        return std::nullopt;
    std::memcpy(address.name.sun_path, text.constData(), std::size_t(text.size()));
    address.length = socklen_t(offsetof(sockaddr_un, sun_path) + std::size_t(text.size()));
    return address;
}

bool waitFor(int descriptor, short events, int milliseconds) {
    pollfd waiting{descriptor, events, 0};
    int ready = 0;
    do
        ready = ::poll(&waiting, 1, milliseconds);
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

// Names of the kernel's own have no permissions: ask who it is.
bool isOurUser(int descriptor) {
    ucred peer{};
    socklen_t length = sizeof peer;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == ::getuid();
}

// All the other side sends before it is done; absent if it dawdles or sends more than any path has.
std::optional<QByteArray> readAll(int descriptor) {
    QByteArray bytes;
    char chunk[1024];
    while (bytes.size() <= kLongestText) {
        if (!waitFor(descriptor, POLLIN, kGuestPatienceMs))
            return std::nullopt;
        const ssize_t count = ::recv(descriptor, chunk, sizeof chunk, 0);
        if (count == 0)
            return bytes;
        if (count < 0)
            return std::nullopt;
        bytes.append(chunk, qsizetype(count));
    }
    return std::nullopt;
}

} // namespace

void SingleInstance::Descriptor::reset(int number) {
    if (m_number >= 0)
        ::close(m_number);
    m_number = number;
}

SingleInstance::SingleInstance(const InstanceAddress& address)
    : m_address(address.name())
    , m_lockPath(address.lockPath()) {}

SingleInstance::~SingleInstance() {
    // While the lock is still held, so that nobody else's is removed.
    if (m_server.isOpen() && !m_lockPath.isEmpty())
        ::unlink(m_address.constData());
}

bool SingleInstance::isFirst() {
    if (m_server.isOpen())
        return true;
    const auto address = addressOf(m_address);
    if (!address)
        return true;
    if (!m_lockPath.isEmpty()) {
        m_lock.reset(::open(m_lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (!m_lock.isOpen())
            return true;
        if (::flock(m_lock.number(), LOCK_EX | LOCK_NB) != 0)
            return errno != EWOULDBLOCK;
        ::unlink(m_address.constData());
    }
    m_server.reset(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const mode_t before = ::umask(S_IRWXG | S_IRWXO);
    const bool isBound =
        ::bind(m_server.number(), reinterpret_cast<const sockaddr*>(&address->name), address->length) == 0;
    const int error = errno;
    ::umask(before);
    if (isBound && ::listen(m_server.number(), kBacklog) == 0)
        return true;
    m_server.reset();
    return isBound || error != EADDRINUSE;
}

void SingleInstance::listen(Reopen reopen) {
    m_reopen = std::move(reopen);
    if (!m_server.isOpen())
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_server.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { accept(); });
}

void SingleInstance::accept() {
    const Descriptor guest(::accept4(m_server.number(), nullptr, nullptr, SOCK_CLOEXEC));
    if (!guest.isOpen() || !isOurUser(guest.number()))
        return;
    const auto path = readAll(guest.number());
    if (!path)
        return;
    (void)::send(guest.number(), &kHeard, 1, MSG_NOSIGNAL);
    m_reopen(path->isEmpty() ? std::nullopt : std::optional(QFile::decodeName(*path)));
}

bool SingleInstance::handOver(const std::optional<QString>& file) const {
    const auto address = addressOf(m_address);
    if (!address)
        return false;
    const Descriptor host(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (::connect(host.number(), reinterpret_cast<const sockaddr*>(&address->name), address->length) != 0)
        return false;
    const QByteArray path = file ? QFile::encodeName(*file) : QByteArray();
    if (!isOurUser(host.number()) ||
        ::send(host.number(), path.constData(), std::size_t(path.size()), MSG_NOSIGNAL) != path.size())
        return false;
    ::shutdown(host.number(), SHUT_WR);
    char answer = 0;
    return waitFor(host.number(), POLLIN, kPatienceMs) && ::recv(host.number(), &answer, 1, 0) == 1 &&
           answer == kHeard;
}
