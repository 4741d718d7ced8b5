// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/SystemBus.h"
#include "tests/Places.h"

#include <unistd.h>

SystemBus::SystemBus(const TemporaryHome& home, int idleMs)
    : m_serviceFolder(home.path() + QStringLiteral("/system-services"))
    , m_recordFolder(home.path() + QStringLiteral("/etc-ticklog")) {
    const QString service = QStringLiteral("[D-BUS Service]\nName=org.ticklog.TKAXTrusted\n"
                                           "Exec=%1/TKAXTrusted --folder %2 --idle %3\n")
                                .arg(QStringLiteral(TICKLOG_BINARY_DIR), m_recordFolder)
                                .arg(idleMs);
    home.write(QStringLiteral("system-services/org.ticklog.TKAXTrusted.service"), service.toUtf8());
    home.write(QStringLiteral("system.conf"), configuration(home.runtimeFolder(), m_serviceFolder));
    m_daemon = std::make_unique<Program>(
        QStringLiteral("dbus-daemon"),
        QStringList{QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                    QStringLiteral("--config-file=%1/system.conf").arg(home.path())},
        home.environment(), Program::Output::Read);
    const auto address = m_daemon->readLine();
    if (!address)
        qFatal("no system bus could be started: is dbus-daemon installed?");
    m_address = QString::fromLatin1(*address);
}

QByteArray SystemBus::configuration(const QString& folder, const QString& serviceFolder) {
    // The user who runs the tests takes root's part.
    return QStringLiteral(R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>unix:dir=%1</listen>
  <servicedir>%2</servicedir>
  <policy context="default">
    <allow user="*"/>
    <deny own="*"/>
    <deny send_type="method_call"/>
    <allow send_type="signal"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
    <allow send_destination="org.freedesktop.DBus"/>
    <allow send_destination="org.freedesktop.PolicyKit1"/>
    <allow own="org.freedesktop.PolicyKit1"/>
  </policy>
  <policy user="%3">
    <allow own="org.ticklog.TKAXTrusted"/>
  </policy>
  <include>%4/resources/system/org.ticklog.TKAXTrusted.conf</include>
</busconfig>
)")
        .arg(folder, serviceFolder)
        .arg(::getuid())
        .arg(QStringLiteral(TICKLOG_SOURCE_DIR))
        .toUtf8();
}
