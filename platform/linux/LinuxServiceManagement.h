// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ServiceManagement.h"
#include "platform/bus/Bus.h"

#include <QStringList>

// Services that the system bus starts when they are called. They come with the package; for a copy of the program that
// was installed elsewhere, an installer beside it is run as root, which the user is asked about. The rest must outlive it.
class LinuxServiceManagement : public ServiceManagement {
public:
    struct Places {
        // Where the system bus looks for services, the most important first.
        QStringList serviceFolders;
        // What makes a helper known to the machine, by its full path; it need not be there.
        QString installer;
        // Runs a program as root after asking the user: this with the program's path behind it.
        QStringList asRoot;

        // Those of the machine. REQUIRES: a QCoreApplication.
        static Places ofThisMachine();
    };

    LinuxServiceManagement(Bus& systemBus, SystemLog& log, Places places);

    // Null without a system bus. Who may do what is asked by the services themselves.
    std::unique_ptr<ServiceRight> requestRight() override;

    // Nothing: a service that is not called ends by itself, and one that is installed anew is started anew.
    void removeService(const QString&, const ServiceRight&) override {}

    void installService(const QString& name, const ServiceRight& right,
                        std::function<void(bool)> done) override;
    std::optional<Service> findService(const QString& name) override;
    void startService(const Service& service, const ServiceRight& right) override;
    // Never null: that there is no bus is told like any other failure.
    std::unique_ptr<TKAuthXPC> connectToHelper(const QString& name,
                                               std::function<void(const Failure&)> failed) override;

private:
    Bus& m_systemBus;
    SystemLog& m_log;
    Places m_places;
    // What answers of installers are received by.
    QObject m_receiver;
};
