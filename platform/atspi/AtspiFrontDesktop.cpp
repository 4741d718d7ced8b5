// SPDX-License-Identifier: MIT
#include "platform/atspi/AtspiFrontDesktop.h"

#include "platform/foundation/programs/ProcessExecutable.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

// The shell's own stage is on the bus, too, and it is the desktop.
const QString kShellProgram = QStringLiteral("gnome-shell");

// Numbers are forgotten beyond so many, before somebody who opens windows all day has them all.
constexpr std::size_t kMostNumbers = 10000;

bool isInFront(const AtspiApplication& application) {
    return !application.activeWindow().isEmpty() && application.title() != kShellProgram &&
           QFileInfo(executableOfProcess(application.processIdentifier())).fileName() != kShellProgram;
}

} // namespace

AtspiFrontDesktop::AtspiFrontDesktop(Bus& sessionBus, RunLoop& runLoop, SystemLog& log,
                                     DesktopEntries& entries)
    : m_sessionBus(sessionBus)
    , m_runLoop(runLoop)
    , m_log(log)
    , m_desktopEntries(entries) {}

void AtspiFrontDesktop::begin() {
    if (m_link)
        return;
    m_log.log(QStringLiteral("Programs are asked for their windows by AT-SPI."));
    m_link =
        std::make_unique<AtspiLink>(m_sessionBus, m_runLoop, m_log,
                                    [this](std::int64_t processIdentifier, AtspiApplication::Change change) {
                                        take(processIdentifier, change);
                                    });
    m_link->start();
}

void AtspiFrontDesktop::end() {
    m_link.reset();
    m_latest.clear();
    look();
}

bool AtspiFrontDesktop::installSwitchHandler(std::function<void()> handler) {
    m_handler = std::move(handler);
    return true;
}

QString AtspiFrontDesktop::bundleName(const QString& path) const {
    return m_desktopEntries.nameForExecutable(path).value_or(QFileInfo(path).fileName());
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
        show(*application);
    else if (!isTelling())
        show({}, std::nullopt);
    else if (!m_emptyMoment)
        m_emptyMoment = m_runLoop.scheduleOnce(kEmptyMoment, [this] { show({}, nothingInFront()); });
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
    // One that hangs goes on saying that it is active. That is found out now, not when it is taken for the one in front.
    if (auto* former = before != m_latest ? programs()->named(before) : nullptr)
        former->reread();
}

ApplicationRecord AtspiFrontDesktop::recordOf(const AtspiApplication& application) const {
    ApplicationRecord record;
    record.processIdentifier = application.processIdentifier();
    record.path = executableOfProcess(record.processIdentifier);
    if (record.processIdentifier == QCoreApplication::applicationPid())
        record.name = kOwnName;
    else if (const auto titled = m_desktopEntries.nameForWindow({application.title()}, {}))
        record.name = *titled;
    else
        record.name = m_desktopEntries.nameForExecutable(record.path).value_or(application.title());
    for (const QString& name : {QFileInfo(record.path).fileName(), kNamelessName}) {
        if (record.name.isEmpty())
            record.name = name;
    }
    return record;
}

void AtspiFrontDesktop::show(const AtspiApplication& application) {
    const ApplicationRecord record = recordOf(application);
    const QString title = application.windowTitle(application.activeWindow()).value_or(QString());
    const QString window = application.connectionName() + application.activeWindow();
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
    show({WindowListEntry{entry->second, record.processIdentifier, 0,
                          title.isEmpty() ? std::nullopt : std::optional(title), record.name}},
         record);
}

void AtspiFrontDesktop::show(std::vector<WindowListEntry> entries,
                             const std::optional<ApplicationRecord>& front) {
    m_emptyMoment.reset();
    if (entries.empty())
        m_rereading.reset();
    m_entries = std::move(entries);
    if (m_front == front)
        return;
    m_front = front;
    // A copy, because the handler may install another one.
    if (const std::function<void()> handler = m_handler)
        handler();
}
