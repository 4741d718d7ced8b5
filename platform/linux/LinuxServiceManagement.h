// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ServiceManagement.h"
#include "platform/bus/Bus.h"

#include <QStringList>

// Services that the system bus starts when they are called. They come with the package. For a program that is
// installed elsewhere, an installer beside it is run as root, after asking the user. All arguments must
// outlive it.
class LinuxServiceManagement : public ServiceManagement {
public:
    struct Places {
        // Where the system bus looks for services, the most important first.
        QStringList serviceFolders;
        // The program that installs a helper, as a full path; it need not exist.
        QString installer;
        // The command that runs a program as root after asking the user; the program's path is appended.
        QStringList asRoot;

        // The places of this machine. REQUIRES: a QCoreApplication.
        static Places ofThisMachine();
    };

    LinuxServiceManagement(Bus& systemBus, SystemLog& log, Places places);

    // Null without a system bus. The services themselves check who may do what.
    std::unique_ptr<ServiceRight> requestRight() override;

    // Does nothing: a service that is not called ends by itself, and a newly installed one is started anew.
    void removeService(const QString&, const ServiceRight&) override {}

    void installService(const QString& name, const ServiceRight& right,
                        std::function<void(bool)> done) override;
    std::optional<Service> findService(const QString& name) override;
    void startService(const Service& service, const ServiceRight& right) override;
    // Never null: the lack of a bus is reported like any other failure.
    std::unique_ptr<TKAuthXPC> connectToHelper(const QString& name,
                                               std::function<void(const Failure&)> failed) override;

private:
    Bus& m_systemBus;
    SystemLog& m_log;
    Places m_places;
    // Receives the installers' answers.
    QObject m_receiver;
};
