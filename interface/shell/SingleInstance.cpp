// SPDX-License-Identifier: MIT
#include "interface/shell/SingleInstance.h"

#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/values/Assertions.h"

#include <QFile>
#include <QTimer>

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
// How long each side waits for the other's whole message. The first program may be busy, but never for long.
constexpr int kPatienceMs = 3000;
constexpr int kGuestPatienceMs = 500;
constexpr char kHeard = '+';
constexpr char kBusy = '-';

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

// Abstract sockets have no file permissions, so the peer's user is asked for.
bool isOurUser(int descriptor) {
    ucred peer{};
    socklen_t length = sizeof peer;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == ::getuid();
}

// By the system, so that connecting and sending cannot wait for a hanging peer either.
void limitPatience(int descriptor, int milliseconds) {
    const timeval limit{.tv_sec = milliseconds / 1000, .tv_usec = milliseconds % 1000 * 1000};
    ::setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
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
    // While the lock is still held, so that no other program's socket is removed.
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
        m_lock.reset(
            ::open(m_lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
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

// A connection that has not said everything yet.
struct SingleInstance::Guest {
    explicit Guest(int number)
        : socket(number)
        , news(new QSocketNotifier(number, QSocketNotifier::Read)) {}

    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

    ~Guest() {
        // Before the descriptor is closed and its number used for another file.
        news->setEnabled(false);
        news->disconnect();
    }

    Descriptor socket;
    // Deleted later, because its own signal may be what ends the guest.
    std::unique_ptr<QSocketNotifier, QScopedPointerDeleteLater> news;
    QTimer patience;
    QByteArray said;
};

void SingleInstance::listen(const Admission& admission, Reopen reopen) {
    if (m_reopen)
        throw InternalInconsistency(QStringLiteral("interface/SingleInstance"), __LINE__,
                                    QStringLiteral("somebody listens already"));
    m_admission = &admission;
    m_reopen = std::move(reopen);
    if (!m_server.isOpen())
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_server.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { accept(); });
}

void SingleInstance::accept() {
    const int number = ::accept4(m_server.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (number < 0)
        return;
    auto coming = std::make_unique<Guest>(number);
    if (!isOurUser(number))
        return;
    Guest& guest = *coming;
    QObject::connect(guest.news.get(), &QSocketNotifier::activated, guest.news.get(),
                     [this, &guest] { hear(guest); });
    guest.patience.setSingleShot(true);
    guest.patience.callOnTimeout(guest.news.get(), [this, &guest] { dismiss(guest); });
    guest.patience.start(kGuestPatienceMs);
    m_guests.push_back(std::move(coming));
    m_notifier->setEnabled(m_guests.size() < kMostGuests);
}

void SingleInstance::hear(Guest& guest) {
    char chunk[1024];
    ssize_t count = 0;
    while ((count = ::recv(guest.socket.number(), chunk, sizeof chunk, 0)) > 0) {
        guest.said.append(chunk, qsizetype(count));
        if (guest.said.size() > kLongestText)
            return dismiss(guest);
    }
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count < 0)
        return dismiss(guest);
    const Admission::Ticket ticket = m_admission->admit();
    (void)::send(guest.socket.number(), ticket ? &kHeard : &kBusy, 1, MSG_NOSIGNAL);
    const QByteArray path = guest.said;
    dismiss(guest);
    if (ticket)
        m_reopen(path.isEmpty() ? std::nullopt : std::optional(QFile::decodeName(path)), ticket);
}

void SingleInstance::dismiss(Guest& guest) {
    std::erase_if(m_guests, [&](const auto& each) { return each.get() == &guest; });
    m_notifier->setEnabled(true);
}

SingleInstance::Answer SingleInstance::handOver(const std::optional<QString>& file) const {
    const auto address = addressOf(m_address);
    if (!address)
        return Answer::None;
    const Descriptor host(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    limitPatience(host.number(), kPatienceMs);
    if (::connect(host.number(), reinterpret_cast<const sockaddr*>(&address->name), address->length) != 0)
        return Answer::None;
    const QByteArray path = file ? QFile::encodeName(*file) : QByteArray();
    if (!isOurUser(host.number()) ||
        ::send(host.number(), path.constData(), std::size_t(path.size()), MSG_NOSIGNAL) != path.size())
        return Answer::None;
    ::shutdown(host.number(), SHUT_WR);
    char answer = 0;
    if (!waitFor(host.number(), POLLIN, kPatienceMs) || ::recv(host.number(), &answer, 1, 0) != 1)
        return Answer::None;
    return answer == kHeard ? Answer::Heard : answer == kBusy ? Answer::Busy : Answer::None;
}
