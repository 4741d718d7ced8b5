// SPDX-License-Identifier: MIT
#include "interface/mainwindow/RenameCommand.h"

#include "interface/outline/TKAppDisplayFormatter.h"
#include "platform/foundation/CleanText.h"
#include "platform/foundation/LocalizedStrings.h"

RenameCommand::RenameCommand(const TimeTracker& tracker, std::shared_ptr<TimeStoreItem> item,
                             const QString& name)
    : m_tracker(tracker)
    , m_item(std::move(item))
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
    // A timer that was deleted and put back is another object of the same identity.
    if (const auto uuid = m_item->uuid())
        for (const auto& item : m_tracker.timeChildrenForChildUUIDs({*uuid}, false))
            if (item->isApp() == m_item->node().isApp())
                return item;
    return m_item;
}
