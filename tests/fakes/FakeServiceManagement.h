// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OwnProgram.h"
#include "platform/ServiceManagement.h"
#include "platform/foundation/time/RunLoop.h"

#include <QFile>
#include <QStringList>

#include <vector>

// A machine whose services behave as told, and which remembers what was done to them. Helpers answer in the
// next turn of the run loop, which must outlive it.
class FakeServiceManagement : public ServiceManagement {
public:
    explicit FakeServiceManagement(RunLoop& runLoop)
        : m_runLoop(runLoop) {}

    std::unique_ptr<ServiceRight> requestRight() override {
        struct Counted : ServiceRight {
            explicit Counted(int& count)
                : living(count) {
                ++living;
            }

            ~Counted() override { --living; }

            int& living;
        };

        calls << QStringLiteral("ask for the right");
        return grantsRight ? std::make_unique<Counted>(authorizations) : nullptr;
    }

    void removeService(const QString& name, const ServiceRight&) override {
        calls << QStringLiteral("remove ") + name;
    }

    void installService(const QString& name, const ServiceRight&, std::function<void(bool)> done) override {
        calls << QStringLiteral("install ") + name;
        if (holdsInstallation)
            heldInstallation = std::move(done);
        else
            done(installs);
    }

    std::optional<Service> findService(const QString& name) override {
        calls << QStringLiteral("find ") + name;
        return installs ? std::optional(Service{name, QStringLiteral("/usr/libexec/helper")}) : std::nullopt;
    }

    void startService(const Service& service, const ServiceRight&) override {
        calls << QStringLiteral("start ") + service.name;
    }

    std::unique_ptr<TKAuthXPC> connectToHelper(const QString& name,
                                               std::function<void(const Failure&)> failed) override {
        struct Helper : TKAuthXPC {
            Helper(FakeServiceManagement& machine, std::function<void(const Failure&)> whenFailed)
                : m_machine(machine)
                , m_failed(std::move(whenFailed)) {}

            void authorize(const QString& executable, std::function<void()> reply) override {
                m_machine.calls << QStringLiteral("ask for ") + executable;
                const auto failure =
                    m_machine.failures.empty() ? std::nullopt : std::optional(m_machine.failures.front());
                if (failure)
                    m_machine.failures.erase(m_machine.failures.begin());
                m_machine.m_runLoop.performSoon(
                    [isThere = std::weak_ptr(m_isThere), failure, reply, failed = m_failed] {
                        if (isThere.expired())
                            return;
                        if (failure)
                            failed(*failure);
                        else
                            reply();
                    });
            }

            FakeServiceManagement& m_machine;
            std::function<void(const Failure&)> m_failed;
            std::shared_ptr<bool> m_isThere = std::make_shared<bool>(true);
        };

        calls << QStringLiteral("connect to ") + name;
        return connects ? std::make_unique<Helper>(*this, std::move(failed)) : nullptr;
    }

    bool grantsRight = true;
    bool installs = true;
    // A person is being asked: the answer comes when the test calls heldInstallation.
    bool holdsInstallation = false;
    std::function<void(bool)> heldInstallation;
    bool connects = true;
    // The outcome of the next requests; after them, requests succeed.
    std::vector<Failure> failures;

    QStringList calls;
    // Those that live.
    int authorizations = 0;

private:
    RunLoop& m_runLoop;
};

// Remembers what was on the disk at the restart.
class FakeOwnProgram : public OwnProgram {
public:
    explicit FakeOwnProgram(QString settingsFile)
        : m_settingsFile(std::move(settingsFile)) {}

    QString executable() const override { return QStringLiteral("/usr/bin/ticklog"); }

    Outcome relaunch() override {
        if (!relaunches)
            return Failure{Failure::Kind::NotFound,
                           QStringLiteral("/usr/bin/ticklog: No such file or directory")};
        ++relaunched;
        QFile file(m_settingsFile);
        settingsLeftBehind = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
        return Done{};
    }

    bool relaunches = true;
    int relaunched = 0;
    QByteArray settingsLeftBehind;

private:
    QString m_settingsFile;
};
