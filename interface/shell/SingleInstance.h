// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/programs/Admission.h"
#include "platform/foundation/programs/InstanceAddress.h"

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

// One program for a user and display. The first start listens at a socket that only the user can reach; a
// second one hands over the file it was given and goes. What a crashed program leaves behind is taken over: a
// lock that goes with the process decides who is first, not a file that stays.
class SingleInstance {
public:
    // A second start happened; with the full path of a file if it was given one. Whoever goes on with it later keeps the
    // ticket until then.
    using Reopen = std::function<void(const std::optional<QString>& file, const Admission::Ticket& ticket)>;

    // What the first says to a second.
    enum class Answer { Heard, Busy, None };

    // Connections that are open at a time; others wait until one of them ends.
    static constexpr std::size_t kMostGuests = 8;

    explicit SingleInstance(const InstanceAddress& address);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    // Whether this is the first. Also true when that cannot be found out: two programs are better than none.
    bool isFirst();
    // Nobody is waited for: who has not said everything soon after coming is sent away. `admission` outlives this.
    // REQUIRES: this is the first.
    void listen(const Admission& admission, Reopen reopen);
    // Tells the first, with the full path of a file or none. Waits for its answer, for some seconds at the most.
    Answer handOver(const std::optional<QString>& file) const;

private:
    class Descriptor {
    public:
        explicit Descriptor(int number = -1)
            : m_number(number) {}

        Descriptor(const Descriptor&) = delete;
        Descriptor& operator=(const Descriptor&) = delete;

        ~Descriptor() { reset(); }

        void reset(int number = -1);

        int number() const { return m_number; }

        bool isOpen() const { return m_number >= 0; }

    private:
        int m_number;
    };

    struct Guest;

    void accept();
    void hear(Guest& guest);
    // The guest is no more.
    void dismiss(Guest& guest);

    QByteArray m_address;
    QByteArray m_lockPath;
    Descriptor m_lock;
    Descriptor m_server;
    std::unique_ptr<QSocketNotifier> m_notifier;
    const Admission* m_admission = nullptr;
    Reopen m_reopen;
    std::vector<std::unique_ptr<Guest>> m_guests;
};
