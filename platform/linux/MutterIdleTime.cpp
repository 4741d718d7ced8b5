// SPDX-License-Identifier: MIT
#include "platform/linux/MutterIdleTime.h"

namespace {

const QString kService = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const QString kPath = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");
// A shell that is logging somebody in is busy, and there is no second try.
constexpr int kLongestSilenceMs = 2000;

} // namespace

Result<std::unique_ptr<MutterIdleTime>> MutterIdleTime::open(Bus& sessionBus, const Clock& clock,
                                                             std::chrono::milliseconds threshold) {
    if (!sessionBus.isConnected())
        return Failure{Failure::Kind::NotFound, QStringLiteral("there is no session bus")};
    const QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("GetIdletime"));
    const QDBusMessage answer = sessionBus.connection().call(question, QDBus::Block, kLongestSilenceMs);
    if (answer.type() != QDBusMessage::ReplyMessage)
        return Failure{Failure::Kind::NotFound, answer.errorMessage()};
    std::unique_ptr<MutterIdleTime> idleTime(new MutterIdleTime(sessionBus, clock, threshold));
    const std::chrono::milliseconds idle(answer.arguments().value(0).toULongLong());
    if (idle >= threshold) {
        idleTime->m_meter.noteIdle(idle);
        idleTime->watchForInput();
    }
    return idleTime;
}

MutterIdleTime::MutterIdleTime(Bus& sessionBus, const Clock& clock, std::chrono::milliseconds threshold)
    : m_service(sessionBus, kService)
    , m_threshold(threshold)
    , m_meter(clock, threshold)
    , m_signal(m_service.listen(
          {kPath, kService, QStringLiteral("WatchFired"), QString()},
          [this](const QDBusMessage& signal) { takeIn(signal.arguments().value(0).toUInt()); }))
    , m_owner(m_service.observe([this] { follow(); })) {
    watchForIdle();
}

IdleReading MutterIdleTime::read() {
    if (!m_isTelling)
        return IdleReading::Lack::NoAnswer;
    return m_meter.idle();
}

QString MutterIdleTime::describe() const {
    return m_isTelling ? QStringLiteral("GNOME: the compositor tells when there is no input")
                       : QStringLiteral("GNOME: the compositor is gone");
}

void MutterIdleTime::follow() {
    const bool wasTelling = std::exchange(m_isTelling, m_service.isServed());
    if (wasTelling || !m_isTelling)
        return;
    m_meter.noteInput();
    m_input.tell();
    watchForIdle();
}

void MutterIdleTime::watchForIdle() {
    m_service.call(kPath, kService, QStringLiteral("AddIdleWatch"), {qulonglong(m_threshold.count())},
                   [this](const QDBusMessage& reply) { m_idleWatch = reply.arguments().value(0).toUInt(); });
}

void MutterIdleTime::watchForInput() {
    m_service.call(kPath, kService, QStringLiteral("AddUserActiveWatch"), {},
                   [this](const QDBusMessage& reply) { m_inputWatch = reply.arguments().value(0).toUInt(); });
}

void MutterIdleTime::takeIn(quint32 watch) {
    if (watch == 0)
        return;
    if (watch == m_idleWatch) {
        m_meter.noteIdle();
        watchForInput();
    } else if (watch == m_inputWatch) {
        m_meter.noteInput();
        m_input.tell();
    }
}
