// SPDX-License-Identifier: MIT
// What a second start, or anybody who reaches our socket, may send there. Includes the one source file,
// without its widgets.
#include "interface/shell/SingleInstance.cpp"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

// One first start, used for all guests.
struct Host {
    Host() {
        if (!instance.isFirst())
            std::abort();
        instance.listen(admission,
                        [this](const std::optional<QString>& file, const Admission::Ticket& ticket) {
                            // A text longer than any path must never be passed on.
                            if (!ticket || (file && QFile::encodeName(*file).size() > 3 * kLongestText))
                                std::abort();
                            ++heard;
                        });
    }

    static Host& shared() {
        static int count = 1;
        static char name[] = "fuzzer";
        static char* arguments[] = {name, nullptr};
        static QCoreApplication application(count, arguments);
        static Host host;
        return host;
    }

    QTemporaryDir folder;
    InstanceAddress address{folder.path(), QStringLiteral(":0")};
    Admission admission;
    SingleInstance instance{address};
    int heard = 0;
};

int connectTo(const QByteArray& path) {
    const auto address = addressOf(path);
    const int guest = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(guest, reinterpret_cast<const sockaddr*>(&address->name), address->length) != 0)
        std::abort();
    return guest;
}

} // namespace

// The first byte decides in how many pieces the rest is sent, whether the guest hangs up in the middle, and
// whether it sends everything many times.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Host& host = Host::shared();
    const unsigned manner = size == 0 ? 0U : data[0];
    const QByteArray once(reinterpret_cast<const char*>(data) + (size > 0), qsizetype(size - (size > 0)));
    const QByteArray said = manner & 8U ? once.repeated(64) : once;
    const bool isDone = manner < 192;
    QElapsedTimer watch;
    watch.start();
    const int guest = connectTo(host.address.name());
    const qsizetype step = said.size() / (1 + manner % 8) + 1;
    for (qsizetype at = 0; at < said.size(); at += step) {
        const QByteArray piece = said.mid(at, step);
        (void)::send(guest, piece.constData(), std::size_t(piece.size()), MSG_NOSIGNAL);
        QCoreApplication::processEvents();
    }
    const int before = host.heard;
    if (isDone)
        ::shutdown(guest, SHUT_WR);
    else
        ::close(guest);
    const bool isShort = said.size() <= kLongestText;
    for (int turn = 0; turn < 100 && host.heard == before && isShort; ++turn)
        QCoreApplication::processEvents();
    // A guest that sends little is heard, unless the machine was too busy, and all places become free again.
    // Timers this long may fire a twentieth early.
    const bool isInTime = watch.elapsed() < kGuestPatienceMs * 9 / 10;
    if ((isShort && isInTime && host.heard == before) || !host.admission.admit())
        std::abort();
    QCoreApplication::processEvents();
    // Nothing else does this, because no event loop runs.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (isDone)
        ::close(guest);
    return 0;
}
