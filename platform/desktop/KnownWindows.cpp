// SPDX-License-Identifier: MIT
#include "platform/desktop/KnownWindows.h"

#include "platform/foundation/programs/ProcessExecutable.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>

QString KnownWindows::nameOfProgram(const QString& path) const {
    return m_desktopEntries.nameForExecutable(path).value_or(QFileInfo(path).fileName());
}

ApplicationRecord KnownWindows::recordOf(std::int64_t process, const QStringList& classes, bool isOwn) const {
    return recordOf(process, classes, isOwn,
                    isOwn ? std::nullopt
                          : m_desktopEntries.nameForWindow(classes, executableOfProcess(process)));
}

ApplicationRecord KnownWindows::recordOf(std::int64_t process, const QStringList& classes, bool isOwn,
                                         const std::optional<QString>& installed) {
    const QString path = executableOfProcess(process);
    if (isOwn)
        return {kOwnName, path, process};
    // The last name that is not empty is used: the installed one or, without it, the class.
    QStringList names{kNamelessName, QFileInfo(path).fileName()};
    names << classes << installed.value_or(QString());
    const auto name = std::find_if_not(names.crbegin(), names.crend(), std::mem_fn(&QString::isEmpty));
    return {*name, path, process};
}

void KnownWindows::show(std::vector<WindowListEntry> frontToBack,
                        const std::optional<ApplicationRecord>& front, bool isUndecided) {
    if (take(std::move(frontToBack), front, isUndecided))
        tellOfSwitch();
}

void KnownWindows::show(std::vector<WindowListEntry> frontToBack, std::int64_t focused,
                        const std::optional<ApplicationRecord>& front, bool isUndecided) {
    std::vector<WindowListEntry> windows;
    windows.reserve(frontToBack.size());
    for (const bool hasFocus : {true, false})
        for (WindowListEntry& window : frontToBack)
            if ((window.number == focused) == hasFocus)
                windows.push_back(std::move(window));
    show(std::move(windows), front, isUndecided);
}

std::optional<ApplicationRecord> KnownWindows::frontAfterwards() const {
    return m_front ? std::optional(nothingInFront()) : std::nullopt;
}

bool KnownWindows::take(std::vector<WindowListEntry> frontToBack,
                        const std::optional<ApplicationRecord>& front, bool isUndecided) {
    m_windows = std::move(frontToBack);
    if (m_front == front && m_isUndecided == isUndecided)
        return false;
    m_front = front;
    m_isUndecided = isUndecided;
    return true;
}
