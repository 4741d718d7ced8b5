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

// One running program for each user and display. The first start listens at a socket that only the user can
// reach; a second start hands over its file and ends. A lock that ends with the process decides which is
// first, so what a crashed program leaves behind does not matter.
class SingleInstance {
public:
    // Called at a second start, with the full path of a file if it was given one. Keep the ticket for as long
    // as the request is being handled.
    using Reopen = std::function<void(const std::optional<QString>& file, const Admission::Ticket& ticket)>;

    // What the first start answers to a second one.
    enum class Answer { Heard, Busy, None };

    // Connections that may be open at the same time; others wait.
    static constexpr std::size_t kMostGuests = 8;

    explicit SingleInstance(const InstanceAddress& address);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    // Whether this is the first start. Also true if that cannot be found out: two programs are better than
    // none.
    bool isFirst();
    // Waits for nobody: a guest that has not said everything soon is sent away. `admission` outlives this
    // object. REQUIRES: isFirst() is true, and this has not been called before.
    void listen(const Admission& admission, Reopen reopen);
    // Sends the first start the full path of a file, or none. Waits a few seconds at most for its answer.
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
    // Ends the connection of a guest.
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
