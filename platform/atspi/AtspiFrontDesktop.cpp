// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiFrontDesktop.h"

#include "platform/foundation/programs/ProcessExecutable.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// Programs of GNOME Shell in which nobody works: its own stage, which is the desktop, and the frames that it
// draws around the windows of X programs. Each frame says by itself whether it is active, or nothing.
bool isOfShell(const QString& program) {
    return program == QLatin1String("gnome-shell") || program == QLatin1String("mutter-x11-frames");
}

// Numbers are forgotten beyond this many, so that a program that opens windows all day does not use up
// memory.
constexpr std::size_t kMostNumbers = 10000;

bool isInFront(const AtspiApplication& application) {
    return !application.activeWindow().isEmpty() && !isOfShell(application.title()) &&
           !isOfShell(QFileInfo(executableOfProcess(application.processIdentifier())).fileName());
}

} // namespace

AtspiFrontDesktop::AtspiFrontDesktop(Bus& sessionBus, RunLoop& runLoop, SystemLog& log,
                                     DesktopEntries& entries, std::chrono::milliseconds patience)
    : KnownWindows(entries)
    , m_sessionBus(sessionBus)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_patience(patience)
    , m_emptyMoment(
          runLoop, [this] { look(); }, kEmptyMoment) {}

void AtspiFrontDesktop::begin() {
    if (m_link)
        return;
    m_log.log(QStringLiteral("Programs are asked for their windows by AT-SPI."));
    m_link = std::make_unique<AtspiLink>(
        m_sessionBus, m_runLoop, m_log,
        [this](std::int64_t processIdentifier, AtspiApplication::Change change) {
            take(processIdentifier, change);
        },
        m_patience);
    m_link->start();
}

void AtspiFrontDesktop::end() {
    m_link.reset();
    m_latest.clear();
    look();
}

QString AtspiFrontDesktop::describe() const {
    return isTelling() ? QStringLiteral("AT-SPI: programs tell of their own windows")
                       : QStringLiteral("AT-SPI: nobody tells of the windows");
}

AtspiDesktop* AtspiFrontDesktop::programs() const {
    AtspiDesktop* desktop = m_link ? m_link->desktop() : nullptr;
    return desktop && desktop->isServed() ? desktop : nullptr;
}

void AtspiFrontDesktop::take(std::int64_t processIdentifier, AtspiApplication::Change change) {
    const auto* application = programs() ? programs()->ofProcess(processIdentifier) : nullptr;
    if (change.isActivity && application && isInFront(*application))
        setLatest(application->connectionName());
    look();
}

void AtspiFrontDesktop::look() {
    if (const auto* application = findActive())
        showProgram(*application);
    else if (!isTelling())
        showNothing(std::nullopt);
    else if (m_emptyMoment.isOver(false))
        showNothing(nothingInFront());
}

const AtspiApplication* AtspiFrontDesktop::findActive() {
    if (!isTelling())
        return nullptr;
    const auto* active = programs()->named(m_latest);
    if (!active || !isInFront(*active))
        active = programs()->find(isInFront);
    if (active)
        setLatest(active->connectionName());
    return active;
}

void AtspiFrontDesktop::setLatest(const QString& connectionName) {
    const QString before = std::exchange(m_latest, connectionName);
    // A program that hangs still says that it is active. Asking it now reveals that, before it would be taken
    // for the one in front.
    if (auto* former = before != m_latest ? programs()->named(before) : nullptr)
        former->reread();
}

ApplicationRecord AtspiFrontDesktop::applicationOf(const AtspiApplication& program) const {
    const std::int64_t process = program.processIdentifier();
    auto installed = desktopEntries().nameForWindow({program.title()}, {});
    if (!installed)
        installed = desktopEntries().nameForExecutable(executableOfProcess(process));
    return recordOf(process, {program.title()}, process == QCoreApplication::applicationPid(), installed);
}

void AtspiFrontDesktop::showProgram(const AtspiApplication& program) {
    const ApplicationRecord application = applicationOf(program);
    const QString title = program.windowTitle(program.activeWindow()).value_or(QString());
    const QString window = program.connectionName() + program.activeWindow();
    if (m_numbers.size() >= kMostNumbers)
        m_numbers.clear();
    const auto [entry, isNew] = m_numbers.try_emplace(window, m_lastNumber + 1);
    if (isNew)
        ++m_lastNumber;
    if (!m_rereading)
        m_rereading = m_runLoop.scheduleRepeating(kTitlePace, kTitlePace / 2, [this] {
            if (auto* latest = programs() ? programs()->named(m_latest) : nullptr)
                latest->reread();
        });
    m_emptyMoment.end();
    show({WindowListEntry{entry->second, application.processIdentifier, true,
                          title.isEmpty() ? std::nullopt : std::optional(title), application.name}},
         application);
}

void AtspiFrontDesktop::showNothing(const std::optional<ApplicationRecord>& front) {
    m_emptyMoment.end();
    m_rereading.reset();
    show({}, front);
}
