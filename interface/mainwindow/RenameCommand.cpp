// SPDX-License-Identifier: MIT
#include "interface/mainwindow/RenameCommand.h"

#include "interface/outline/TKAppDisplayFormatter.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

RenameCommand::RenameCommand(const TimeTracker& tracker, std::shared_ptr<TimeStoreItem> item,
                             const QString& name)
    : m_tracker(tracker)
    , m_item(std::move(item))
    , m_application(tracker.tree().applicationHolding(m_item->node()))
    , m_oldName(m_item->renamedName())
    , m_newName(name.isEmpty() ? m_item->name() : cleanText(name)) {
    setText(localized("Rename"));
}

void RenameCommand::redo() {
    giveName(m_newName);
}

void RenameCommand::undo() {
    giveName(m_oldName);
}

void RenameCommand::giveName(const QString& name) const {
    currentItem()->setRenamedNameFormatted(TKAppDisplayFormatter::objectValueForString(name));
}

std::shared_ptr<TimeStoreItem> RenameCommand::currentItem() const {
    // A timer that was deleted and put back is a new object with the same identity; so may be its
    // application.
    const auto uuid = m_item->uuid();
    if (!uuid || !m_application || !m_application->uuid())
        return m_item;
    const auto timer =
        m_tracker.tree().timerOf({*m_application->uuid(), m_item->node().isApp() ? std::nullopt : uuid});
    return timer ? timer : m_item;
}
