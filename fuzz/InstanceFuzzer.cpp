// SPDX-License-Identifier: MIT
// What a second start, or whoever knows the way to our socket, may say there. The one file of the interface, without its
// widgets.
#include "interface/shell/SingleInstance.cpp"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

// A first start that is there for all guests.
struct Host {
    Host() {
        if (!instance.isFirst())
            std::abort();
        instance.listen(admission,
                        [this](const std::optional<QString>& file, const Admission::Ticket& ticket) {
                            // What is longer than any path is never handed on.
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

// The first byte tells in how many pieces the rest is said, whether the guest hangs up in the middle, and whether it says
// everything many times over.
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
    // Whoever says little enough is heard, unless the machine was too busy for that, and all places are free again.
    // Timers of this length may come a twentieth early.
    const bool isInTime = watch.elapsed() < kGuestPatienceMs * 9 / 10;
    if ((isShort && isInTime && host.heard == before) || !host.admission.admit())
        std::abort();
    QCoreApplication::processEvents();
    // No loop runs that would do it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (isDone)
        ::close(guest);
    return 0;
}
