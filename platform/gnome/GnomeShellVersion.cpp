// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeShellVersion.h"

#include "platform/foundation/text/CleanText.h"
#include "platform/gnome/GnomeShell.h"

#include <QDBusVariant>

namespace {

constexpr int kFirstWithModules = 45;

} // namespace

const QStringList& GnomeShellVersion::tested() {
    static const QStringList kTested{QStringLiteral("43"), QStringLiteral("46"), QStringLiteral("48"),
                                     QStringLiteral("49"), QStringLiteral("50"), QStringLiteral("51")};
    return kTested;
}

GnomeShellVersion::GnomeShellVersion(BusService& shell, std::function<void()> told)
    : m_shell(shell)
    , m_told(std::move(told)) {}

void GnomeShellVersion::ask() {
    m_shell.getProperty(kGnomeShellPath, kGnomeShell, QStringLiteral("ShellVersion"),
                        [this](const QDBusMessage& answer) {
                            const auto value = answer.arguments().value(0).value<QDBusVariant>();
                            const QString text = cleanText(value.variant().toString());
                            if (answer.type() == QDBusMessage::ReplyMessage && text != m_text) {
                                m_text = text;
                                m_told();
                            }
                        });
}

bool GnomeShellVersion::isUntested() const {
    return !m_text.isEmpty() && !isAmong(tested());
}

bool GnomeShellVersion::readsModules() const {
    return main().toInt() >= kFirstWithModules;
}

bool GnomeShellVersion::isAmong(const QStringList& versions) const {
    return versions.contains(main());
}
