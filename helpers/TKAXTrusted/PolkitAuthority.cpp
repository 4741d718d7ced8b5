// SPDX-License-Identifier: MIT
#include "helpers/TKAXTrusted/PolkitAuthority.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <climits>

namespace {

const QString kName = QStringLiteral("org.freedesktop.PolicyKit1");
const QString kPath = QStringLiteral("/org/freedesktop/PolicyKit1/Authority");
const QString kInterface = QStringLiteral("org.freedesktop.PolicyKit1.Authority");
constexpr quint32 kAllowUserInteraction = 1;
// A person may take any time. A caller that leaves is noticed by other means.
constexpr int kNoTimeoutMs = INT_MAX;

using Details = QMap<QString, QString>;

QString cancellation(int question) {
    return QStringLiteral("question-%1").arg(question);
}

QDBusMessage callOf(const char* member) {
    return QDBusMessage::createMethodCall(kName, kPath, kInterface, QLatin1String(member));
}

// (sa{sv})
QVariant subjectOf(const QString& sender) {
    QDBusArgument subject;
    subject.beginStructure();
    subject << QStringLiteral("system-bus-name") << QVariantMap{{QStringLiteral("name"), sender}};
    subject.endStructure();
    return QVariant::fromValue(subject);
}

// (bba{ss}); the first value is the answer.
bool isAuthorized(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("(bba{ss})"))
        return false;
    const auto result = qvariant_cast<QDBusArgument>(reply.arguments().value(0));
    bool isGranted = false;
    result.beginStructure();
    result >> isGranted;
    // Without these calls the argument is never freed.
    result.endStructure();
    return isGranted;
}

} // namespace

int PolkitAuthority::check(const Question& question, std::function<void(Verdict)> receiver) {
    qDBusRegisterMetaType<Details>();
    const int number = ++m_lastQuestion;
    auto message = callOf("CheckAuthorization");
    message << subjectOf(question.sender) << question.action
            << QVariant::fromValue(Details{{QStringLiteral("program"), question.program}})
            << (question.isInteractive ? kAllowUserInteraction : 0U) << cancellation(number);
    m_bus.call(
        message, this,
        [receiver = std::move(receiver)](const QDBusMessage& reply) {
            receiver(isAuthorized(reply) ? Verdict::Yes : Verdict::No);
        },
        kNoTimeoutMs);
    return number;
}

void PolkitAuthority::cancel(int question) {
    auto message = callOf("CancelCheckAuthorization");
    message << cancellation(question);
    m_bus.call(message, this, {});
}
