// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxServiceManagement.h"

#include "platform/bus/BusService.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace {

// As long as a person may need to find a password.
constexpr int kPatienceMs = 10 * 60 * 1000;
const QString kLibraryFolder = QStringLiteral("/../libexec/ticklog/");

// The helper's object and interface are named after its name on the bus.
QString pathOf(const QString& name) {
    return u'/' + QString(name).replace(u'.', u'/');
}

Failure failureOf(const QDBusMessage& error, const QString& helper) {
    // An error of the helper's own means that it was reached: asking again would not help.
    const bool isRefused = error.errorName().startsWith(helper + u'.');
    return {isRefused ? Failure::Kind::Refused : Failure::Kind::NotFound, error.errorMessage()};
}

class BusHelper : public TKAuthXPC {
public:
    BusHelper(Bus& bus, QString name, std::function<void(const Failure&)> failed)
        : m_bus(bus)
        , m_name(std::move(name))
        , m_failed(std::move(failed)) {}

    void authorize(const QString& executable, std::function<void()> reply) override {
        auto message =
            QDBusMessage::createMethodCall(m_name, pathOf(m_name), m_name, QStringLiteral("Authorize"));
        message << executable;
        message.setInteractiveAuthorizationAllowed(true);
        // Everything is captured by value, because the callbacks may destroy this object.
        m_bus.call(
            message, &m_receiver,
            [name = m_name, failed = m_failed, reply = std::move(reply)](const QDBusMessage& answer) {
                if (answer.type() == QDBusMessage::ReplyMessage)
                    reply();
                else
                    failed(failureOf(answer, name));
            },
            kPatienceMs);
    }

private:
    Bus& m_bus;
    QString m_name;
    std::function<void(const Failure&)> m_failed;
    QObject m_receiver;
};

} // namespace

LinuxServiceManagement::Places LinuxServiceManagement::Places::ofThisMachine() {
    const QString services = QStringLiteral("/dbus-1/system-services");
    return {.serviceFolders = {QStringLiteral("/usr/local/share") + services,
                               QStringLiteral("/usr/share") + services, QStringLiteral("/lib") + services},
            .installer = QFileInfo(QCoreApplication::applicationDirPath() + kLibraryFolder +
                                   QStringLiteral("install-helper"))
                             .absoluteFilePath(),
            .asRoot = {QStringLiteral("pkexec")}};
}

LinuxServiceManagement::LinuxServiceManagement(Bus& systemBus, SystemLog& log, Places places)
    : m_systemBus(systemBus)
    , m_log(log)
    , m_places(std::move(places)) {}

std::unique_ptr<ServiceRight> LinuxServiceManagement::requestRight() {
    return m_systemBus.isConnected() ? std::make_unique<ServiceRight>() : nullptr;
}

void LinuxServiceManagement::installService(const QString& name, const ServiceRight&,
                                            std::function<void(bool)> done) {
    if (findService(name)) {
        done(true);
        return;
    }
    if (!QFileInfo(m_places.installer).isExecutable()) {
        m_log.log(QStringLiteral("%1 is not installed, and there is no %2").arg(name, m_places.installer));
        done(false);
        return;
    }
    auto* installer = new QProcess(&m_receiver);
    installer->setStandardOutputFile(QProcess::nullDevice());
    const auto finish = [this, installer, done = std::move(done)](bool isInstalled) {
        if (!isInstalled)
            m_log.log(QStringLiteral("The helper was not installed: %1")
                          .arg(QString::fromLocal8Bit(installer->readAllStandardError().trimmed())));
        installer->deleteLater();
        done(isInstalled);
    };
    QObject::connect(installer, &QProcess::finished, &m_receiver,
                     [finish](int status, QProcess::ExitStatus how) {
                         finish(how == QProcess::NormalExit && status == 0);
                     });
    QObject::connect(installer, &QProcess::errorOccurred, &m_receiver,
                     [finish](QProcess::ProcessError error) {
                         // After any other error, the end of the process is reported as well.
                         if (error == QProcess::FailedToStart)
                             finish(false);
                     });
    QStringList command = m_places.asRoot + QStringList{m_places.installer};
    const QString program = command.takeFirst();
    installer->start(program, command);
}

std::optional<Service> LinuxServiceManagement::findService(const QString& name) {
    for (const QString& folder : m_places.serviceFolders) {
        QFile file(folder + u'/' + name + QStringLiteral(".service"));
        if (!file.open(QFile::ReadOnly))
            continue;
        Service service{name, {}};
        const QString key = QStringLiteral("Exec=");
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
            if (line.startsWith(key))
                service.program = line.mid(key.size()).trimmed();
        return service;
    }
    return std::nullopt;
}

void LinuxServiceManagement::startService(const Service& service, const ServiceRight&) {
    auto message = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                  QStringLiteral("StartServiceByName"));
    message << service.name << 0U;
    // Whether it runs is noticed when it is called.
    m_systemBus.call(message, &m_receiver, {});
}

std::unique_ptr<TKAuthXPC>
LinuxServiceManagement::connectToHelper(const QString& name, std::function<void(const Failure&)> failed) {
    return std::make_unique<BusHelper>(m_systemBus, name, std::move(failed));
}
